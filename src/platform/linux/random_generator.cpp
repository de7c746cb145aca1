#include "platform/linux/random_generator.h"

#include <bit>
#include <cstdint>

namespace benevix {

void RandomGenerator::Seed(float seed) {
  std::random_device entropy;
  std::seed_seq sequence{std::bit_cast<std::uint32_t>(seed), entropy(), entropy(), entropy()};
  engine_.seed(sequence);
}

// The 53 bits that a double holds exactly: 1 cannot come out by rounding.
double RandomGenerator::Next() {
  return static_cast<double>(engine_() >> 11) * 0x1p-53;
}

}  // namespace benevix
