#include "platform/linux/random_generator.h"

#include <bit>
#include <cstdint>

namespace benevix {

void RandomGenerator::Seed(float seed) {
  std::random_device entropy;
  std::seed_seq sequence{std::bit_cast<std::uint32_t>(seed), entropy(), entropy(), entropy()};
  engine_.seed(sequence);
}

// 53 bits, which a double holds exactly: the result is never rounded up to 1.
double RandomGenerator::Next() {
  return static_cast<double>(engine_() >> 11) * 0x1p-53;
}

}  // namespace benevix
