// fuzz TARGET [OPTION...] [FOLDER...]: libFuzzer on one target.

#include <cstdint>

#include "targets.h"

namespace {
benevix::Target target = nullptr;
}

// The library's own names.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  const auto found = *argc > 1 ? benevix::Targets().find((*argv)[1]) : benevix::Targets().end();
  benevix::Require(found != benevix::Targets().end(), "the first argument is a target");
  target = found->second;
  (*argv)[1] = (*argv)[0];
  ++*argv;
  --*argc;
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  target({reinterpret_cast<const char*>(bytes), size});
  return 0;
}
