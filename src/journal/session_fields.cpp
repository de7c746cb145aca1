#include "journal/session_fields.h"

#include <algorithm>
#include <charconv>
#include <type_traits>

namespace benevix {
namespace {

struct Field {
  std::string name;
  FieldKind kind;
};

// Calls `visit(control name, index or -1, field name, kind, reference)` for each field. A new field
// stands in its line here and nowhere else.
template <class Main, class Payment, class Values, class Visit>
void VisitFields(Main& main, Payment& payment, Values& values, Visit&& visit) {
  using enum FieldKind;
  visit("Budget", -1, "", Money, values.Budget);
  visit("Balance", -1, "", Money, values.Balance);
  visit("TotalDonated", -1, "", Money, values.TotalDonated);
  visit("SessionFeeTaken", -1, "", Money, values.SessionFeeTaken);
  visit("BudgetEntered", -1, "", Other, values.BudgetEntered);
  visit("Donation", -1, "", Other, values.Donation);
  visit("BvxFee", -1, "", Other, values.BvxFee);
  visit("CardFee", -1, "", Other, values.CardFee);

  for (int i = 0; auto& option : payment.Option1) {
    visit("frmPayOpt.Option1", i++, ".value", Choice, option.value);
  }
  visit("frmPayOpt.Command1", 0, ".enabled", Other, payment.Command1[0].enabled);

  const auto item = [&](const char* name, auto& menuItem) {
    visit(name, -1, ".enabled", Other, menuItem.enabled);
    visit(name, -1, ".checked", Choice, menuItem.checked);
  };
  item("mnuAddFees", main.mnuAddFees);
  item("mnuDeductFees", main.mnuDeductFees);
  item("mnuDirectCurr", main.mnuDirectCurr);
  item("mnuPercentBal", main.mnuPercentBal);
  item("mnuRound", main.mnuRound);
  item("mnuChgPayMethod", main.mnuChgPayMethod);
  item("mnuDistribFavs", main.mnuDistribFavs);
  item("mnuPrntSession", main.mnuPrntSession);
  item("mnuMoreInfo", main.mnuMoreInfo);
  item("mnuContactThem", main.mnuContactThem);
  item("mnuGotheirWeb", main.mnuGotheirWeb);
  item("MMTellMe", main.MMTellMe);
  item("MMContactThem", main.MMContactThem);
  item("MMGoWeb", main.MMGoWeb);
  item("mnuFavAddTop", main.mnuFavAddTop);
  item("mnuFavAdd", main.mnuFavAdd);

  for (int i = 0; auto& box : main.Text1) {
    visit("Text1", i, ".text", Other, box.text);
    visit("Text1", i, ".typed", Other, box.typed);
    visit("Text1", i, ".lastWritten", Other, box.lastWritten);
    visit("Text1", i, ".enabled", Other, box.enabled);
    visit("Text1", i, ".foreColor", Other, box.foreColor);
    visit("Text1", i, ".backColor", Other, box.backColor);
    visit("Text1", i, ".fontSize", Other, box.fontSize);
    visit("Text1", i, ".fontBold", Other, box.fontBold);
    ++i;
  }
  const auto options = [&](const char* name, auto& array) {
    for (int i = 0; auto& option : array) {
      visit(name, i, ".value", Other, option.value);
      visit(name, i, ".enabled", Other, option.enabled);
      ++i;
    }
  };
  options("Option1", main.Option1);
  options("Option2", main.Option2);
  options("Option3", main.Option3);
  visit("Combo1", -1, ".text", Other, main.Combo1.text);
  visit("Combo1", -1, ".enabled", Other, main.Combo1.enabled);
  visit("Check1", -1, ".value", Other, main.Check1.value);
  visit("Check1", -1, ".enabled", Other, main.Check1.enabled);
  visit("Check2", -1, ".value", Other, main.Check2.value);
  visit("Command1", -1, ".enabled", Other, main.Command1.enabled);
  visit("Command1", -1, ".tag", Other, main.Command1.tag);
  visit("Label3", -1, ".caption", Other, main.Label3.caption);
  visit("Label4", -1, ".caption", Other, main.Label4.caption);
  visit("Label4", -1, ".tag", Other, main.Label4.tag);
  visit("Label6", -1, ".caption", Other, main.Label6.caption);
  visit("Label8", -1, ".caption", Other, main.Label8.caption);
  visit("Label8", -1, ".visible", Other, main.Label8.visible);
  visit("caption", -1, "", Other, main.caption);
  visit("selected", -1, "", Other, main.ListView1.selected);
}

template <class T>
std::string ToText(const T& value) {
  if constexpr (std::is_same_v<T, std::string>) {
    return value;
  } else if constexpr (std::is_same_v<T, Currency>) {
    return std::to_string(value.Units());
  } else {
    return std::to_string(value);
  }
}

// A text that is no number leaves the value as it is.
template <class T>
void FromText(const std::string& text, T& value) {
  if constexpr (std::is_same_v<T, std::string>) {
    value = text;
  } else {
    std::int64_t number = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), number).ec != std::errc()) return;
    if constexpr (std::is_same_v<T, Currency>) {
      value = Currency::FromUnits(number);
    } else {
      value = static_cast<T>(number);
    }
  }
}

const std::vector<Field>& Fields() {
  static const std::vector<Field> fields = [] {
    std::vector<Field> all;
    const frmBVX main;
    const frmPayOpt payment;
    const SessionValues values;
    VisitFields(
        main, payment, values,
        [&](const char* name, int index, const char* property, FieldKind kind, const auto&) {
          const std::string element = index < 0 ? std::string() : "(" + std::to_string(index) + ")";
          all.push_back({name + element + property, kind});
        });
    return all;
  }();
  return fields;
}

}  // namespace

SessionFields ReadFields(const SessionPlaces& places) {
  SessionFields fields;
  fields.reserve(Fields().size());
  VisitFields(std::as_const(places.main), std::as_const(places.payment),
              std::as_const(places.values),
              [&](const char*, int, const char*, FieldKind, const auto& value) {
                fields.push_back(ToText(value));
              });
  return fields;
}

void WriteFields(const SessionPlaces& places, const SessionFields& fields) {
  auto text = fields.begin();
  VisitFields(places.main, places.payment, places.values,
              [&](const char*, int, const char*, FieldKind, auto& value) {
                if (ToText(value) != *text) FromText(*text, value);
                ++text;
              });
}

const std::string& FieldName(std::size_t field) {
  return Fields()[field].name;
}

FieldKind KindOf(std::size_t field) {
  return Fields()[field].kind;
}

std::size_t FieldNamed(const std::string& name) {
  const auto found = std::ranges::find(Fields(), name, &Field::name);
  return static_cast<std::size_t>(found - Fields().begin());
}

}  // namespace benevix
