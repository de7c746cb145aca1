// Plays session scripts.

#include <QApplication>
#include <QDir>
#include <iostream>
#include <memory>
#include <optional>

#include "player/player.h"
#include "player/run_files.h"

namespace benevix {
namespace {

constexpr auto kUsage = "usage: benevix-play [--windows] [--shots DIR] FILE...\n";

struct Options {
  bool windows = false;
  // Plays its one file in this process: so the player calls itself for each file.
  bool alone = false;
  QString shots;
  QStringList files;

  // Nothing when they cannot be understood.
  static std::optional<Options> Read(const QStringList& arguments) {
    Options options;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
      const QString& argument = arguments[i];
      if (argument == QLatin1String("--windows")) {
        options.windows = true;
      } else if (argument == QLatin1String("--alone")) {
        options.alone = true;
      } else if (argument == QLatin1String("--shots") && i + 1 < arguments.size()) {
        options.shots = arguments[++i];
      } else if (argument.startsWith(QLatin1String("--"))) {
        return std::nullopt;
      } else {
        options.files.append(argument);
      }
    }
    if (options.files.isEmpty() || (options.alone && options.files.size() > 1)) {
      return std::nullopt;
    }
    return options;
  }

  [[nodiscard]] QStringList ForOneFile() const {
    QStringList arguments{QStringLiteral("--alone")};
    if (windows) arguments << QStringLiteral("--windows");
    if (!shots.isEmpty()) arguments << QStringLiteral("--shots") << shots;
    return arguments;
  }
};

std::unique_ptr<QCoreApplication> MakeApplication(int& count, char** arguments, bool windows) {
  if (windows) {
    if (!IsDisplayNamed() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
      qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    return std::make_unique<QApplication>(count, arguments);
  }
  return std::make_unique<QCoreApplication>(count, arguments);
}

FrontEndMaker MakerOf(const Options& options) {
  if (options.windows) {
    return [shots = options.shots.toStdString()](BoxAnswers& answers) {
      return MakeWindowsFrontEnd(answers, shots);
    };
  }
  return MakeLogicFrontEnd;
}

int Main(int count, char** arguments) {
  QStringList texts;
  for (int i = 1; i < count; ++i) texts << QString::fromLocal8Bit(arguments[i]);
  const auto options = Options::Read(texts);
  if (!options) {
    std::cerr << kUsage;
    return kExitUnreadable;
  }
  const bool needsWindows = options->windows && options->alone;
  const auto application = MakeApplication(count, arguments, needsWindows);
  if (!options->shots.isEmpty() && !QDir().mkpath(options->shots)) {
    std::cerr << "benevix-play: " << options->shots.toStdString() << " cannot be made\n";
    return kExitUnreadable;
  }
  if (options->alone) return PlayFile(options->files.first().toStdString(), MakerOf(*options));
  return RunFiles(QCoreApplication::applicationFilePath(), options->ForOneFile(), options->files);
}

}  // namespace
}  // namespace benevix

int main(int argc, char* argv[]) {
  return benevix::Main(argc, argv);
}
