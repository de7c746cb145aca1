#pragma once

#include <string>
#include <string_view>

namespace benevix {

// What a row with a donation keeps of it, as one text of the list: six fields joined by ",".
struct OptionsRecord {
  std::string organization;  // its ID; after a recall perhaps what the list file has in its place
  std::string amount, delivery, from;
  std::string certificate, proof;  // "1" when it was asked for, otherwise "0"

  [[nodiscard]] std::string ToText() const;
  // Cuts a record off the front of `text`. Fields that are missing are empty.
  static OptionsRecord Take(std::string_view& text);
};

// The flags of a record's text, found from its end, since a donor's name may hold a comma.
bool AsksForCertificate(std::string_view record);
bool AsksForProof(std::string_view record);

}  // namespace benevix
