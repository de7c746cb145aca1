#include "memory.h"

#include <fstream>
#include <stdexcept>

namespace benevix {

Memory MemoryOf(const std::string& process) {
  constexpr double bytesPerUnit = 1024;
  std::ifstream in("/proc/" + process + "/smaps_rollup");
  std::string line;
  std::getline(in, line);
  Memory memory;
  std::string name;
  std::string unit;
  for (double value = 0; in >> name >> value >> unit;) {
    if (name == "Rss:") memory.resident = value * bytesPerUnit;
    if (name == "Pss:") memory.proportional = value * bytesPerUnit;
  }
  if (memory.resident == 0) throw std::runtime_error("the memory of a process cannot be read");
  return memory;
}

}  // namespace benevix
