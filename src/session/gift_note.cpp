#include "session/gift_note.h"

#include "base/format.h"
#include "base/number_text.h"
#include "database/organization_list.h"
#include "session/options_record.h"

namespace benevix {

std::string GiftNote(const ListView& list, int row) {
  const std::string record = list.SubItem(row, column::kRecord);
  if (record.empty()) return {};
  const auto money = [&](int column) { return FormatText(list.SubItem(row, column), kSumPattern); };
  std::string note = list.SubItem(row, column::kOrganization) + "\nGiven " +
                     money(column::kAmount) + ", service fee " + money(column::kFee);
  if (Val(list.SubItem(row, column::kCardFee)) != 0)
    note += ", card fee " + money(column::kCardFee);
  note += "\nDelivery: " + list.SubItem(row, column::kPool) + ", from " +
          list.SubItem(row, column::kFrom);
  if (AsksForProof(record)) note += "\nProof of mailing";
  if (AsksForCertificate(record)) note += "\nTax certificate";
  return note;
}

}  // namespace benevix
