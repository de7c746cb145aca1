#include <algorithm>
#include <memory>

#include "database/organization_list.h"
#include "targets.h"

namespace benevix {
namespace {

// Gives its text in pieces of at most `piece` bytes.
class Pieces : public FileReader {
 public:
  Pieces(std::string_view text, std::size_t piece)
      : text_(text), state_{.size = text.size()}, piece_(piece) {}
  [[nodiscard]] const FileState& State() const override { return state_; }
  std::size_t Read(std::size_t offset, char* buffer, std::size_t size) const override {
    return text_.copy(buffer, std::min(size, piece_), offset);
  }

 private:
  std::string_view text_;
  FileState state_;
  std::size_t piece_;
};

}  // namespace

void CheckOrganizationList(std::string_view input) {
  Pieces whole(input, input.size() + 1);
  Pieces pieces(input, input.size() % 97 + 1);
  const OrganizationList list(whole);
  const OrganizationList same(pieces);
  Require(list.Count() == same.Count() && list.Damage() == same.Damage() &&
              list.Headings() == same.Headings() && list.Version() == same.Version(),
          "a list is the same however it is read");
  Require(list.Damage().empty() || !list.Fault().empty(), "a damaged list has a fault");
  for (int row = 1; row <= list.Count(); ++row) {
    for (int column = column::kCountry; column <= column::kCardFee; ++column) {
      Require(list.Text(row, column) == same.Text(row, column), "so are its texts");
    }
    const auto& headings = list.Headings();
    Require(std::binary_search(headings.begin(), headings.end(), row) == !list.Id(row),
            "organizations have an ID, headings none");
    const std::string name = list.Text(row, column::kOrganization);
    if (!list.Id(row) || name.empty()) continue;
    const int found = list.FindName(name, row);
    Require(found == row, "a name is found where it stands");
  }
}

}  // namespace benevix
