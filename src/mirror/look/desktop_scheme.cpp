#include "mirror/look/desktop_scheme.h"

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusReply>

namespace benevix {
namespace {

constexpr auto kService = "org.freedesktop.portal.Desktop";
constexpr auto kPath = "/org/freedesktop/portal/desktop";
constexpr auto kInterface = "org.freedesktop.portal.Settings";
constexpr auto kGroup = "org.freedesktop.appearance";
constexpr auto kName = "color-scheme";
constexpr int kMoment = 150;  // milliseconds

}  // namespace

DesktopSchemeWatch::DesktopSchemeWatch()
    : withoutPreference_(DesktopScheme()), now_(withoutPreference_) {
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (qEnvironmentVariableIsSet(kSchemeVariable) || !bus.isConnected()) return;
  bus.connect(kService, kPath, kInterface, "SettingChanged", this, SLOT(TakeChange(QDBusMessage)));
  QDBusMessage question = QDBusMessage::createMethodCall(kService, kPath, kInterface, "Read");
  question.setArguments({kGroup, kName});
  const QDBusReply<QDBusVariant> soon = bus.call(question, QDBus::Block, kMoment);
  if (soon.isValid()) Take(QVariant::fromValue(soon.value()));
  if (soon.error().type() != QDBusError::NoReply) return;
  // A portal that is only being started answers later.
  auto* const later = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
  connect(later, &QDBusPendingCallWatcher::finished, this, [this, later] {
    const QDBusReply<QDBusVariant> reply(*later);
    if (reply.isValid()) Take(QVariant::fromValue(reply.value()));
    later->deleteLater();
  });
}

void DesktopSchemeWatch::TakeChange(const QDBusMessage& message) {
  const QVariantList words = message.arguments();  // group, name, value
  if (words.value(0) == kGroup && words.value(1) == kName) Take(words.value(2));
}

void DesktopSchemeWatch::Take(const QVariant& value) {
  QVariant number = value;  // in one variant or, as older portals answer, in two
  while (number.canConvert<QDBusVariant>()) number = number.value<QDBusVariant>().variant();
  constexpr uint dark = 1, light = 2;
  const Scheme scheme = number.toUInt() == dark    ? Scheme::Dark
                        : number.toUInt() == light ? Scheme::Light
                                                   : withoutPreference_;
  if (scheme == now_) return;
  now_ = scheme;
  onChanged(scheme);
}

}  // namespace benevix
