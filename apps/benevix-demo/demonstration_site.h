#pragma once

#include <QProcess>
#include <QStringList>
#include <functional>

namespace benevix {

// The demonstration site as a process of its own on a free port. It goes with this object, and with
// this process, however that ends.
class DemonstrationSite {
 public:
  // `folder` holds the program benevix-site and what it serves. Raises RuntimeError when it does
  // not start.
  explicit DemonstrationSite(const QString& folder);
  DemonstrationSite(const DemonstrationSite&) = delete;
  DemonstrationSite& operator=(const DemonstrationSite&) = delete;
  ~DemonstrationSite();

  // "http://127.0.0.1:PORT/"
  [[nodiscard]] const QString& Address() const { return address_; }

  // Called with each line of its log.
  std::function<void(const QString&)> onLogLine = [](const QString&) {};

  // The log as far as the event loop has brought it.
  [[nodiscard]] const QStringList& Log() const { return log_; }

 private:
  void TakeLines();

  QProcess process_;
  QString address_;
  QStringList log_;
};

// Lets the process end when the one that starts it does.
void EndWithThisProcess(QProcess& process);

}  // namespace benevix
