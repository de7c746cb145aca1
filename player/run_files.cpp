#include "player/run_files.h"

#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <charconv>
#include <iostream>
#include <string>
#include <string_view>

#include "player/player.h"

namespace benevix {
namespace {

struct Counts {
  int passed = 0;
  int failed = 0;
};

// Adds what a line "FILE: N passed, M failed" says; any other line says nothing.
void AddCounts(std::string_view line, const std::string& file, Counts& counts) {
  if (!line.starts_with(file + ": ")) return;
  line.remove_prefix(file.size() + 2);
  const auto take = [&](std::string_view behind) -> int {
    int number = 0;
    const auto read = std::from_chars(line.data(), line.data() + line.size(), number);
    line.remove_prefix(static_cast<std::size_t>(read.ptr - line.data()));
    if (!line.starts_with(behind)) return 0;
    line.remove_prefix(behind.size());
    return number;
  };
  counts.passed += take(" passed, ");
  counts.failed += take(" failed");
}

int RunFile(const QString& program, const QStringList& arguments, const QString& file,
            Counts& counts) {
  // Holds the temporary files, which a script that breaks off does not remove itself.
  const QTemporaryDir temporary;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("TMPDIR", temporary.path());
  QProcess process;
  process.setProcessEnvironment(environment);
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process.start(program, arguments + QStringList{file}, QIODevice::ReadOnly);
  const std::string name = file.toStdString();
  while (process.waitForReadyRead(-1) || process.canReadLine()) {
    while (process.canReadLine()) {
      const std::string line = process.readLine().toStdString();
      AddCounts(line, name, counts);
      std::cout << line << std::flush;
    }
  }
  process.waitForFinished(-1);
  std::cout << process.readAll().toStdString() << std::flush;
  const bool ended = process.exitStatus() == QProcess::NormalExit &&
                     process.error() == QProcess::UnknownError &&
                     process.exitCode() <= kExitUnreadable;
  if (ended) return process.exitCode();
  std::cout << name << ": the program broke off" << std::endl;
  return kExitUnreadable;
}

}  // namespace

int RunFiles(const QString& program, const QStringList& arguments, const QStringList& files) {
  Counts counts;
  int code = kExitPassed;
  for (const QString& file : files) {
    code = std::max(code, RunFile(program, arguments, file, counts));
  }
  std::cout << counts.passed << " passed, " << counts.failed << " failed" << std::endl;
  return code;
}

}  // namespace benevix
