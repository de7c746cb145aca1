#include "mirror/bindings/menu_binding.h"

#include <QCursor>
#include <QShortcut>
#include <algorithm>
#include <memory>

#include "mirror/bindings/mnemonics.h"
#include "mirror/look/texts.h"

namespace benevix {
namespace {

void ApplyItem(const MenuItem& item, const QString& text, bool enabled, QAction& action) {
  if (action.text() != text) action.setText(text);
  if (action.isEnabled() != enabled) action.setEnabled(enabled);
  if (action.isCheckable() != item.checked) action.setCheckable(item.checked);
  if (action.isChecked() != item.checked) action.setChecked(item.checked);
}

}  // namespace

bool IsMenu(const NamedControl& control) {
  return control.As<MenuItem>() != nullptr || control.As<MenuArray>() != nullptr;
}

MenuBinding::MenuBinding(const Desk::Entry& entry, QMenuBar& bar, BindingContext& context)
    : bar_(bar), context_(context) {
  bar.setAccessibleName(QStringLiteral("Menus"));
  for (const NamedControl& control : entry.controls) {
    if (control.As<MenuItem>() != nullptr) {
      const bool holds = std::any_of(
          entry.controls.begin(), entry.controls.end(),
          [&](const NamedControl& other) { return other.Base().holder == control.name; });
      AddItem(control, holds);
    } else if (MenuArray* const array = control.As<MenuArray>()) {
      AddArray(*array);
    }
  }
  for (const auto& [name, menu] : menus_) SetMnemonicsIn(name, Mnemonics(CaptionsIn(name)));
  auto* const toMenus = new QShortcut(QKeySequence(Qt::Key_F10), &bar);
  QObject::connect(toMenus, &QShortcut::activated, &bar,
                   [&bar] { bar.setActiveAction(bar.actions().value(0)); });
}

QStringList MenuBinding::CaptionsIn(std::string_view holder) const {
  QStringList captions;
  for (const Item& item : items_) {
    if (IsIn(item, holder)) captions.append(ToQString(item.item->caption));
  }
  return captions;
}

void MenuBinding::SetMnemonicsIn(std::string_view holder, const std::vector<QChar>& letters) {
  auto letter = letters.begin();
  for (Item& item : items_) {
    if (IsIn(item, holder)) item.mnemonic = *letter++;
  }
}

// Pop-up menus are hidden items outside every menu.
bool MenuBinding::IsIn(const Item& item, std::string_view holder) {
  return item.item->holder == holder && (!holder.empty() || item.item->visible);
}

QMenu* MenuBinding::MenuNamed(const std::string& name) const {
  const auto found = menus_.find(name);
  return found == menus_.end() ? nullptr : found->second;
}

void MenuBinding::AddItem(const NamedControl& control, bool holds) {
  MenuItem& item = *control.As<MenuItem>();
  QMenu* const holder = MenuNamed(item.holder);
  const QString text = ToQString(item.caption);
  if (holder != nullptr && item.separated) holder->addSeparator();
  QMenu* menu = nullptr;
  QAction* action = nullptr;
  if (holds) {
    if (holder != nullptr) {
      menu = holder->addMenu(text);
    } else if (item.visible) {
      menu = bar_.addMenu(text);
    } else {
      menu = std::make_unique<QMenu>(text, &bar_).release();  // a pop-up; the bar owns it
    }
    menus_[control.name] = menu;
    action = menu->menuAction();
  } else {
    action = holder->addAction(text);
    QObject::connect(action, &QAction::triggered, &bar_,
                     [this, &item] { context_.input.ChooseMenu(item); });
  }
  action->setObjectName(QString::fromStdString(control.name));
  action->setShortcuts(QKeySequence::listFromString(QLatin1String(item.shortcut)));
  action->setAutoRepeat(false);
  items_.push_back({&item, action, menu, item.popUps});
}

void MenuBinding::AddArray(MenuArray& array) {
  QMenu* const menu = MenuNamed(array.holder);
  if (array.separated) menu->addSeparator();
  const bool isAlone = menu->actions().isEmpty();
  QAction* const end = menu->addAction(isAlone ? QStringLiteral("&None") : QString());
  end->setEnabled(false);
  arrays_.push_back({&array, menu, end, isAlone, {}});
}

void MenuBinding::Apply() {
  for (Item& bound : items_) {
    ApplyItem(*bound.item, WithMnemonic(Drawn(bound.item->caption), bound.mnemonic),
              bound.item->enabled, *bound.action);
    if (bound.popUps == bound.item->popUps) continue;
    bound.popUps = bound.item->popUps;
    const bool byKey = !context_.popUpPlace.isNull();
    bound.menu->popup(byKey ? context_.popUpPlace : QCursor::pos());
    if (byKey) bound.menu->setActiveAction(bound.menu->actions().value(0));
  }
  for (Array& array : arrays_) ApplyArray(array);
}

void MenuBinding::ApplyArray(Array& array) {
  bool isEmpty = true;
  for (auto it = array.elements.begin(); it != array.elements.end();) {
    if (array.array->items.count(it->first) == 0) {
      it->second->deleteLater();
      array.menu->removeAction(it->second);
      it = array.elements.erase(it);
    } else {
      ++it;
    }
  }
  for (const auto& [index, item] : array.array->items) {
    QAction*& action = array.elements[index];
    if (action == nullptr) {
      // In the order of the indexes, in whatever order they are made.
      const auto next = std::next(array.elements.find(index));
      QAction* const before = next == array.elements.end() ? array.end : next->second;
      action = std::make_unique<QAction>(array.menu).release();
      array.menu->insertAction(before, action);
      QObject::connect(action, &QAction::triggered, &bar_,
                       [this, menuArray = array.array, element = index] {
                         context_.input.ChooseMenu(*menuArray, element);
                       });
    }
    // These are names from files and settings, in which an ampersand marks no mnemonic. Where they
    // have the menu to themselves, typing a first letter goes from one such name to the next.
    QString text = Drawn(item.caption).replace(QLatin1Char('&'), QLatin1String("&&"));
    if (array.isAlone && !text.isEmpty() && text[0].isLetter()) text.prepend(QLatin1Char('&'));
    ApplyItem(item, text, item.enabled && array.array->enabled, *action);
    const bool shown = item.visible && !item.caption.empty();
    if (action->isVisible() != shown) action->setVisible(shown);
    isEmpty = isEmpty && !shown;
  }
  // A menu that is opened without an entry does not open again.
  array.end->setVisible(array.isAlone && isEmpty);
}

QAction* MenuBinding::Action(const NamedControl& control, int element) const {
  for (const Item& bound : items_) {
    if (bound.item == control.As<MenuItem>()) return bound.action;
  }
  for (const Array& bound : arrays_) {
    if (bound.array != control.As<MenuArray>()) continue;
    const auto found = bound.elements.find(element);
    return found == bound.elements.end() ? nullptr : found->second;
  }
  return nullptr;
}

}  // namespace benevix
