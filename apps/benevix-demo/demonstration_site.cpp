#include "demonstration_site.h"

#include <csignal>
#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif

#include "base/runtime_error.h"

namespace benevix {

void EndWithThisProcess(QProcess& process) {
#ifdef Q_OS_LINUX
  process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
#else
  Q_UNUSED(process);
#endif
}

DemonstrationSite::DemonstrationSite(const QString& folder) {
  EndWithThisProcess(process_);
  process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process_.start(folder + "/benevix-site", {"--folder", folder + "/site"});
  while (!process_.canReadLine() && process_.waitForReadyRead()) continue;
  address_ = QString::fromUtf8(process_.readLine()).trimmed();
  if (!address_.startsWith("http://")) {
    throw RuntimeError("the demonstration site did not start: " +
                       process_.errorString().toStdString());
  }
  QObject::connect(&process_, &QProcess::readyRead, &process_, [this] { TakeLines(); });
}

DemonstrationSite::~DemonstrationSite() {
  process_.terminate();
  process_.waitForFinished();
}

void DemonstrationSite::TakeLines() {
  while (process_.canReadLine()) {
    log_.append(QString::fromUtf8(process_.readLine()).trimmed());
    onLogLine(log_.last());
  }
}

}  // namespace benevix
