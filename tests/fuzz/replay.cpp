// replay FOLDER: every target with each input of its folder there, and with an empty one.

#include <cstdio>
#include <filesystem>

#include "../platform/temp_files.h"
#include "targets.h"

int main(int argc, char** argv) {
  benevix::Require(argc == 2, "the argument is the corpus");
  for (const auto& [name, check] : benevix::Targets()) {
    check({});
    for (const auto& file : std::filesystem::directory_iterator(argv[1] + ("/" + name))) {
      std::printf("%s\n", file.path().c_str());
      std::fflush(stdout);
      check(benevix::ReadFile(file.path()));
    }
  }
}
