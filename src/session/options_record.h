#pragma once

#include <string>
#include <string_view>

namespace benevix {

// The options of a row's donation, kept in the list's record column: six fields joined by ",".
struct OptionsRecord {
  std::string organization;  // the ID; after a recall possibly the name (see LastSession)
  std::string amount, delivery, from;
  std::string certificate, proof;  // "1" if requested, otherwise "0"

  [[nodiscard]] std::string ToText() const;
  // Cuts a record off the front of `text`; missing fields are empty.
  static OptionsRecord CutFrom(std::string_view& text);
};

// The flags of a record, counted from its end because the donor's name may contain a comma.
bool AsksForCertificate(std::string_view record);
bool AsksForProof(std::string_view record);

}  // namespace benevix
