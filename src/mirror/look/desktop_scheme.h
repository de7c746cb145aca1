#pragma once

#include <QDBusMessage>
#include <QObject>
#include <functional>

#include "mirror/look/theme.h"

namespace benevix {

// The scheme that the desktop asks for, from now on: as its portal tells
// (org.freedesktop.appearance, https://flatpak.github.io/xdg-desktop-portal), since the toolkit of
// our oldest system does not tell of a change. Where there is no portal, or it has no preference,
// the toolkit's palette decides at the start, and so does BENEVIX_SCHEME for good.
class DesktopSchemeWatch : public QObject {
  Q_OBJECT
 public:
  // Before ApplyTheme. Waits for the portal, but no longer than a moment.
  DesktopSchemeWatch();

  [[nodiscard]] Scheme Now() const { return now_; }

  std::function<void(Scheme)> onChanged = [](Scheme) {};

 private:
  Q_SLOT void TakeChange(const QDBusMessage& message);
  void Take(const QVariant& value);

  const Scheme withoutPreference_;
  Scheme now_;
};

}  // namespace benevix
