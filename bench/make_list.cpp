#include "make_list.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>

namespace benevix {
namespace {

constexpr std::array<std::string_view, 16> kFirst = {
    "Harbour", "Open",  "Green", "Winter", "Silver",  "Northern", "Little", "United",
    "River",   "First", "Clear", "Stone",  "Morning", "Free",     "Old",    "Common"};
constexpr std::array<std::string_view, 16> kMiddle = {
    "Hands",  "Fields", "Water",    "Books",  "Schools", "Meadow",  "Kitchen", "Voices",
    "Garden", "Forest", "Children", "Health", "Music",   "Shelter", "Bridge",  "Light"};
constexpr std::array<std::string_view, 8> kLast = {"Trust",   "Fund",    "Society", "Relief",
                                                   "Project", "Network", "Union",   "Friends"};
constexpr std::array<std::string_view, 8> kTypes = {
    "Education", "Health", "Environment", "Water", "Culture", "Animals", "Relief", "Human Rights"};

template <std::size_t size>
std::string_view PickFrom(const std::array<std::string_view, size>& words, std::mt19937& random) {
  return words[random() % size];
}

std::string Organization(int number, std::mt19937& random) {
  std::array<char, 16> id{};
  std::snprintf(id.data(), id.size(), "%08d ", number);
  std::string line = id.data();
  line += PickFrom(kFirst, random);
  line += ' ';
  line += PickFrom(kMiddle, random);
  line += ' ';
  line += PickFrom(kLast, random);
  if (random() % 4 == 0) {
    line += " of the ";
    line += PickFrom(kFirst, random);
    line += " District";
  }
  line += ", ";
  line += PickFrom(kTypes, random);
  return line;
}

}  // namespace

void MakeList(const std::filesystem::path& file, int organizations, int countries) {
  std::ofstream out(file, std::ios::binary);
  std::mt19937 random(1);
  out << ";QUORL1.0000\r\n";
  for (int number = 0; number < organizations; ++number) {
    const int perCountry = (organizations + countries - 1) / countries;
    if (number % perCountry == 0) out << "[Country " << number / perCountry + 1 << "]\r\n";
    out << Organization(number + 1, random) << "\r\n";
  }
  if (!out.flush()) throw std::runtime_error(file.string() + ": cannot be written");
}

}  // namespace benevix
