#include "player/properties.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>

#include "base/number_text.h"
#include "player/paths.h"
#include "player/words.h"

namespace benevix {
namespace {

using Text = std::optional<std::string>;

std::string RowsText(const ListView& list) {
  std::string rows;
  for (int place = 1; place <= list.ShownCount(); ++place) {
    rows += (place == 1 ? "" : " ") + std::to_string(list.RowAt(place));
  }
  return rows;
}

Text OfWindow(const Desk& desk, const Desk::Entry& entry, const std::string& property) {
  const Window& window = *entry.window;
  if (property == "Caption") return window.caption;
  if (property == "Shown" || property == "Visible") return BooleanText(entry.shown);
  if (property == "Enabled") return BooleanText(desk.IsEnabled(window));
  if (property == "Topmost") return BooleanText(window.topmost);
  if (property == "MousePointer") {
    return window.mousePointer == MousePointer::Hourglass ? "Hourglass" : "Default";
  }
  if (property != "Focus") return std::nullopt;
  for (const NamedControl& control : entry.controls) {
    if (&control.Base() == entry.focus) return NameOf(control);
  }
  return "";
}

Text OfEvery(const Control& control, const std::string& property) {
  if (property == "Enabled") return BooleanText(control.enabled);
  if (property == "Visible") return BooleanText(control.visible);
  if (property == "ToolTip") return control.toolTip;
  if (property == "Tag") return control.tag;
  if (property == "Note") return control.note;
  return std::nullopt;
}

// The further properties of each kind of control.
struct Further {
  const std::string& property;

  Text operator()(const TextBox* box) const {
    if (property == "Text") return box->text;
    if (property == "ForeColor") return ColorText(box->foreColor);
    if (property == "BackColor") return ColorText(box->backColor);
    if (property == "FontSize") return std::to_string(box->fontSize);
    if (property == "FontBold") return BooleanText(box->fontBold);
    return std::nullopt;
  }
  Text operator()(const Label* label) const {
    if (property == "ForeColor") return ColorText(label->foreColor);
    if (property == "Left") return std::to_string(label->left);
    return Caption(label->caption);
  }
  Text operator()(const Button* button) const { return Caption(button->caption); }
  Text operator()(const Frame* frame) const { return Caption(frame->caption); }
  Text operator()(const OptionButton* option) const {
    if (property == "Value") return BooleanText(option->value);
    if (property == "BackColor") return ColorText(option->backColor);
    return Caption(option->caption);
  }
  Text operator()(const CheckBox* box) const {
    if (property == "Value") return std::to_string(box->value);
    return Caption(box->caption);
  }
  Text operator()(const ComboBox* combo) const {
    if (property == "Text") return combo->text;
    if (property == "Count") return std::to_string(combo->list.size());
    const auto index = IndexIn(property, "List");
    if (!index || *index >= static_cast<int>(combo->list.size())) return std::nullopt;
    return combo->list[static_cast<std::size_t>(*index)];
  }
  Text operator()(const MenuItem* item) const {
    if (property == "Checked") return BooleanText(item->checked);
    return Caption(item->caption);
  }
  Text operator()(const ListView* list) const {
    if (property == "Count") return std::to_string(list->Count());
    if (property == "Selected") return std::to_string(list->selected);
    if (property == "Top") return std::to_string(list->top);
    if (property == "ShownRows") return RowsText(*list);
    if (property == "EmptyText") return list->emptyText;
    const auto row = IndexIn(property.substr(0, property.find('.')), "Row");
    if (!row || *row < 1 || *row > list->Count()) return std::nullopt;
    if (property.ends_with(").Note")) return list->noteOf(*row);
    const auto cell = CellIn(property);
    return cell ? Text(list->SubItem(cell->row, cell->column)) : std::nullopt;
  }
  Text operator()(const Table* table) const {
    if (property == "Count") return std::to_string(table->Count());
    if (property == "Selected") return std::to_string(table->selected);
    if (property == "Sorted") {
      return std::to_string(table->sorted) + (table->descending ? " descending" : "");
    }
    const auto cell = CellIn(property);
    if (!cell || cell->row < 1 || cell->row > table->Count()) return std::nullopt;
    return table->rows->Text(cell->row, cell->column);
  }
  Text operator()(const Chart* chart) const {
    if (property == "Count") return std::to_string(chart->marks.size());
    const auto index = IndexIn(property, "Mark");
    if (!index || *index < 1 || *index > static_cast<int>(chart->marks.size())) return std::nullopt;
    return chart->marks[static_cast<std::size_t>(*index - 1)].text;
  }
  Text operator()(const Shape* shape) const {
    if (property == "FillColor") return ColorText(shape->fillColor);
    if (property == "BorderColor") return ColorText(shape->borderColor);
    if (property == "FillStyle") return std::to_string(shape->fillStyle);
    return std::nullopt;
  }
  Text operator()(const Timer* timer) const {
    if (property != "Interval") return std::nullopt;
    return std::to_string(timer->interval);
  }
  Text operator()(const ScrollBar* bar) const {
    if (property == "Max") return std::to_string(bar->max);
    if (property == "Value") return std::to_string(bar->value);
    return std::nullopt;
  }
  Text operator()(const PageViewer* viewer) const {
    if (property != "Address") return std::nullopt;
    return ScriptText(viewer->page.Utf8());
  }
  Text operator()(const Control* /*nothing further*/) const { return std::nullopt; }

 private:
  [[nodiscard]] Text Caption(const std::string& caption) const {
    if (property != "Caption") return std::nullopt;
    return caption;
  }
};

Text OfElement(const MenuArray& array, int element, const std::string& property) {
  const auto found = array.items.find(element);
  const bool exists = found != array.items.end();
  if (property == "Exists") return BooleanText(exists);
  if (!exists) return std::nullopt;
  const MenuItem& item = found->second;
  if (property == "Enabled") return BooleanText(array.enabled && item.enabled);
  if (property == "Visible") return BooleanText(array.visible && item.visible);
  const Text text = OfEvery(item, property);
  return text ? text : Further{property}(&item);
}

}  // namespace

Text ReadProperty(const Desk& desk, const Target& target, const std::string& property) {
  if (target.control == nullptr) return OfWindow(desk, *target.window, property);
  if (const auto* const array = target.control->As<MenuArray>()) {
    return OfElement(*array, target.element, property);
  }
  const Text text = OfEvery(target.control->Base(), property);
  return text ? text : std::visit(Further{property}, target.control->any);
}

std::optional<std::string> ReadValue(const Program& program, const std::string& name) {
  const SessionValues& values = program.Values();
  const FeeRates& rates = program.Rates();
  const RunValues& run = program.Run();
  const std::map<std::string, std::string> texts = {
      {"Budget", values.Budget.ToText()},
      {"BudgetEntered", values.BudgetEntered.ToText()},
      {"Balance", values.Balance.ToText()},
      {"Donation", values.Donation.ToText()},
      {"TotalDonated", values.TotalDonated.ToText()},
      {"BvxFee", values.BvxFee.ToText()},
      {"CardFee", values.CardFee.ToText()},
      {"PoolFee", std::to_string(rates.PoolFee)},
      {"StandAloneFee", std::to_string(rates.StandAloneFee)},
      {"CardRate", rates.CardRate.ToText()},
      {"CardFixed", rates.CardFixed.ToText()},
      {"SessionFee", rates.SessionFee.ToText()},
      {"RatesField6", rates.RatesField6},
      {"RatesField7", rates.RatesField7},
      {"ServerOK", BooleanText(run.ServerOK)},
      {"DBVersion", SingleToText(run.DBVersion)},
      {"YtdState", std::to_string(run.YtdState)},
      {"PlatformCode", std::to_string(run.PlatformCode)},
  };
  const auto found = texts.find(name);
  if (found == texts.end()) return std::nullopt;
  return found->second;
}

std::optional<int> IndexIn(const std::string& property, const std::string& name) {
  const std::string before = name + "(";
  if (!property.starts_with(before) || !property.ends_with(')')) return std::nullopt;
  return WholeNumberIn(property.substr(before.size(), property.size() - before.size() - 1));
}

std::optional<Cell> CellIn(const std::string& property) {
  const auto point = std::min(property.find('.'), property.size());
  const auto row = IndexIn(property.substr(0, point), "Row");
  const std::string cell = property.substr(point);
  if (row && cell == ".Text") return Cell{*row, 0};
  const auto column = IndexIn(cell, ".SubItem");
  if (!row || !column || *column < 1 || *column >= ListView::kColumns) return std::nullopt;
  return Cell{*row, *column};
}

std::string BooleanText(bool value) {
  return value ? "True" : "False";
}

std::string ColorText(Color color) {
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), "&H%08X", static_cast<unsigned>(color));
  return text.data();
}

}  // namespace benevix
