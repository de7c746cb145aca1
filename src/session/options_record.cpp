#include "session/options_record.h"

#include "base/lines.h"
#include "base/number_text.h"

namespace benevix {
namespace {

// Whether the character `fromEnd` places before the record's end is a 1.
bool HasFlag(std::string_view record, std::size_t fromEnd) {
  return record.size() >= fromEnd && Val(record.substr(record.size() - fromEnd, 1)) == 1;
}

}  // namespace

std::string OptionsRecord::ToText() const {
  return organization + "," + amount + "," + delivery + "," + from + "," + certificate + "," +
         proof;
}

OptionsRecord OptionsRecord::CutFrom(std::string_view& text) {
  OptionsRecord record;
  for (std::string* const field : {&record.organization, &record.amount, &record.delivery,
                                   &record.from, &record.certificate, &record.proof}) {
    *field = CutField(text, ',');
  }
  return record;
}

bool AsksForCertificate(std::string_view record) {
  return HasFlag(record, 3);
}
bool AsksForProof(std::string_view record) {
  return HasFlag(record, 1);
}

}  // namespace benevix
