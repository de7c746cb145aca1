#include "benevix/command.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QGuiApplication>
#include <cstdio>

#include "base/runtime_error.h"
#include "base/text.h"
#include "benevix/machine.h"
#include "core/codec.h"
#include "core/settings_store.h"
#include "giving/gifts_csv.h"
#include "giving/statement.h"
#include "people/contact_information.h"
#include "records/history.h"
#include "records/payment_states.h"

namespace benevix {
namespace {

constexpr int kNotDone = 1, kNotUnderstood = 2;

int Fail(int status, const std::string& reason) {
  std::fprintf(stderr, "benevix: %s\n", ToUtf8(reason).c_str());
  return status;
}

// Nothing of this waits or asks.
class NoWaits : public Waits {
 public:
  void Begin() override {}
  void End() override {}
  void DoEvents() override {}
};

class NoBoxes : public MessageBoxes {
 public:
  BoxAnswer Show(const std::string& /*title*/, const std::string& text, BoxIcon /*icon*/,
                 BoxButtons buttons) override {
    Fail(0, text);
    return buttons == BoxButtons::OK ? BoxAnswer::OK : BoxAnswer::No;
  }
  FilePath AskWhereToSave(const std::string& /*title*/, const std::string& /*name*/) override {
    return {};
  }
};

// The contact details as they are stored; empty where they cannot be read.
void ReadDonor(const Environment& environment, frmPersInfo& donor) {
  try {
    SettingsStore settings(environment.registry);
    SplitContact(TextCodec(environment.info.exeName).Unscramble(settings.GetUserString("UsrInfo")),
                 donor);
  } catch (const RuntimeError&) {
    // The statement names nobody then.
  }
}

// Raises RuntimeError.
void WriteGifts(const Environment& environment, const QString& file, bool asTable,
                const std::optional<Day>& from, const std::optional<Day>& to) {
  const FilePath historyFile = environment.info.Resource("history.dat");
  if (!environment.files.Exists(historyFile)) throw RuntimeError(kNoHistory);
  const GivenHistory history(environment.files, historyFile);
  const DateTime now = environment.clock.Now();
  DayRange range = WholeRange(history).value_or(WholeYear(now.year));
  range = {from.value_or(range.from), to.value_or(range.to)};
  const auto states = ReadPaymentStates(environment);
  const auto stateOf = [&](std::string_view transaction) { return StateOf(states, transaction); };
  std::string bytes;
  if (asTable) {
    bytes = GiftsCsv(history, range, stateOf);
  } else {
    frmPersInfo donor;
    ReadDonor(environment, donor);
    bytes = environment.printer.Pdf(
        StatementOf(history, range, stateOf,
                    {donor, environment.info.deployment.product, {now.year, now.month, now.day}}));
  }
  environment.files.Replace(FilePath(QFileInfo(file).absoluteFilePath().toStdString()), bytes);
  if (history.UnreadLines() > 0) {
    Fail(0, std::to_string(history.UnreadLines()) + " lines of the history could not be read");
  }
}

}  // namespace

std::optional<int> RunCommand(int argc, char** argv) {
  if (argc < 2) return std::nullopt;
  // Only for the fonts of a statement.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication app(argc, argv);
  QGuiApplication::setApplicationName("Benevix");
  QGuiApplication::setApplicationVersion(BENEVIX_VERSION);
  QCommandLineParser parser;
  parser.setApplicationDescription("Plan and pay charitable donations.");
  parser.addHelpOption();
  parser.addVersionOption();
  const QCommandLineOption csv("export", "Write the gifts as a table (CSV) to <file>.", "file");
  const QCommandLineOption pdf("statement", "Write a statement of the gifts (PDF) to <file>.",
                               "file");
  const QCommandLineOption from("from", "The first <day>, YYYY-MM-DD.", "day");
  const QCommandLineOption to("to", "The last <day>, YYYY-MM-DD.", "day");
  parser.addOptions({csv, pdf, from, to});
  if (!parser.parse(QCoreApplication::arguments())) {
    return Fail(kNotUnderstood, FromUtf8(parser.errorText().toStdString()));
  }
  if (parser.isSet("help") || parser.isSet("version")) {
    const QString text = parser.isSet("help") ? parser.helpText() : "benevix " BENEVIX_VERSION "\n";
    std::fputs(text.toUtf8().constData(), stdout);
    return 0;
  }
  if (!parser.positionalArguments().isEmpty() || parser.isSet(csv) == parser.isSet(pdf)) {
    return Fail(kNotUnderstood, "one of --export and --statement is wanted; see --help");
  }
  std::optional<Day> days[2];
  for (const auto& [option, day] : {std::pair{&from, &days[0]}, {&to, &days[1]}}) {
    if (!parser.isSet(*option)) continue;
    *day = ReadIsoDay(parser.value(*option).toStdString());
    if (!*day) return Fail(kNotUnderstood, "a day is YYYY-MM-DD");
  }
  try {
    NoWaits waits;
    NoBoxes boxes;
    Machine machine(QCoreApplication::applicationFilePath().toStdString(), waits, boxes);
    WriteGifts(machine.TheEnvironment(), parser.value(parser.isSet(csv) ? csv : pdf),
               parser.isSet(csv), days[0], days[1]);
  } catch (const RuntimeError& error) {
    return Fail(kNotDone, error.what());
  }
  return 0;
}

}  // namespace benevix
