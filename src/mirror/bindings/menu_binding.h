#pragma once

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <map>
#include <string_view>
#include <vector>

#include "controls/desk.h"
#include "mirror/bindings/binding.h"

namespace benevix {

// Menus have actions in place of widgets.
[[nodiscard]] bool IsMenu(const NamedControl& control);

// The menu bar and the pop-up menus of a window, built from its menu items in their order.
class MenuBinding {
 public:
  MenuBinding(const Desk::Entry& entry, QMenuBar& bar, BindingContext& context);

  void Apply();

  // The captions on the menu bar, which share their letters with the window's other controls.
  [[nodiscard]] QStringList Titles() const { return CaptionsIn({}); }
  void SetTitleMnemonics(const std::vector<QChar>& letters) { SetMnemonicsIn({}, letters); }

  // The action of an item, or of a menu array's element; null when there is none.
  [[nodiscard]] QAction* Action(const NamedControl& control, int element) const;

 private:
  struct Item {
    MenuItem* item = nullptr;
    QAction* action = nullptr;
    QMenu* menu = nullptr;  // null for an item that holds none
    int popUps = 0;
    QChar mnemonic = {};
  };
  struct Array {
    MenuArray* array;
    QMenu* menu;
    QAction* end;  // elements stand before it; it is shown while there are none
    bool isAlone;  // in its menu
    std::map<int, QAction*> elements;
  };

  // In the menu of that name, or, without one, on the menu bar.
  [[nodiscard]] static bool IsIn(const Item& item, std::string_view holder);
  [[nodiscard]] QStringList CaptionsIn(std::string_view holder) const;
  void SetMnemonicsIn(std::string_view holder, const std::vector<QChar>& letters);
  void AddItem(const NamedControl& control, bool holds);
  void AddArray(MenuArray& array);
  QMenu* MenuNamed(const std::string& name) const;
  void ApplyArray(Array& array);

  QMenuBar& bar_;
  BindingContext& context_;
  std::map<std::string, QMenu*> menus_;
  std::vector<Item> items_;
  std::vector<Array> arrays_;
};

}  // namespace benevix
