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
      : rest_(text), size_(text.size()), piece_(piece) {}
  [[nodiscard]] std::size_t Size() const override { return size_; }
  std::size_t Read(char* buffer, std::size_t size) override {
    const std::size_t read = rest_.copy(buffer, std::min(size, piece_));
    rest_.remove_prefix(read);
    return read;
  }

 private:
  std::string_view rest_;
  std::size_t size_, piece_;
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
