// The routines of the program that a script can call.

#include <algorithm>
#include <charconv>
#include <functional>
#include <map>

#include "base/currency.h"
#include "base/format.h"
#include "base/number_text.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "core/run_values.h"
#include "core/shell_helpers.h"
#include "player/program_runner.h"
#include "player/script.h"
#include "player/words.h"
#include "session/hints.h"

namespace benevix {
namespace {

using Texts = std::vector<std::string>;

double Double(const std::string& text) {
  const auto value = DoubleIn(text);
  if (!value) throw CannotBeDone("\"" + text + "\" is no number");
  return *value;
}

int Whole(const std::string& text) {
  const auto value = WholeNumberIn(text);
  if (!value) throw CannotBeDone("\"" + text + "\" is no whole number");
  return *value;
}

std::int16_t Whole16(const std::string& text) {
  return ToInt16(Whole(text));
}

std::uint8_t Whole8(const std::string& text) {
  const int value = Whole(text);
  if (value < 0 || value > 255) throw RuntimeError("Overflow");
  return static_cast<std::uint8_t>(value);
}

// A plain decimal text of at most four decimals, exactly: a double cannot hold the largest.
Currency Money(const std::string& text) {
  const auto point = std::min(text.find('.'), text.size());
  std::string units = text.substr(0, point) + text.substr(std::min(point + 1, text.size()));
  const std::size_t decimals = text.size() - std::min(point + 1, text.size());
  if (decimals <= 4) units.append(4 - decimals, '0');
  std::int64_t value = 0;
  const auto read = std::from_chars(units.data(), units.data() + units.size(), value);
  if (read.ec == std::errc::result_out_of_range) throw RuntimeError("Overflow");
  if (decimals > 4 || read.ec != std::errc() || read.ptr != units.data() + units.size()) {
    throw CannotBeDone("\"" + text + "\" is no currency text");
  }
  return Currency::FromUnits(value);
}

// Runs something of the program as an event would; its errors come out.
void InProgram(Program& program, const std::function<void()>& what) {
  bool ran = false;
  std::optional<RuntimeError> raised;
  program.TheInput().Enter([&] {
    ran = true;
    try {
      what();
    } catch (const RuntimeError& error) {
      raised = error;
    }
  });
  if (!ran) throw CannotBeDone("the program has ended");
  if (raised) throw RuntimeError(*raised);
}

std::string CallCodec(ProgramRunner& runner, const Texts& arguments) {
  const bool built = runner.IsRunning() || runner.HasEnded();
  const TextCodec codec =
      built ? runner.TheProgram().Codec() : TextCodec(runner.TheWorld().info.exeName);
  std::string output;
  codec.Codec(arguments[0], output, Whole16(arguments[1]), Whole16(arguments[2]));
  return output;
}

std::string CallFormat(ProgramRunner&, const Texts& arguments) {
  if (!IsNumeric(arguments[0])) return FormatText(arguments[0], arguments[1]);
  return Format(Money(arguments[0]), arguments[1]);
}

std::string CallFormatSingle(ProgramRunner&, const Texts& arguments) {
  if (!IsNumeric(arguments[0])) return FormatText(arguments[0], arguments[1]);
  return FormatSingle(static_cast<float>(Double(arguments[0])), arguments[1]);
}

std::string CallShowHint(ProgramRunner& runner, const Texts& arguments) {
  Program& program = runner.TheProgram();
  const int step = Whole(arguments[0]);
  InProgram(program, [&] { ShowHint(program.TheForms().Get<frmBVX>(), step); });
  return "";
}

std::string CallShowMessage(ProgramRunner& runner, const Texts& arguments) {
  Program& program = runner.TheProgram();
  const std::uint8_t number = Whole8(arguments[0]), kind = Whole8(arguments[1]);
  std::string extra = arguments[2];
  InProgram(program, [&] { program.TheMessages().ShowMessage(number, kind, extra); });
  return extra;
}

std::string CallLookupContacts(ProgramRunner& runner, const Texts& arguments) {
  Program& program = runner.TheProgram();
  std::string first, second;
  InProgram(program, [&] { program.Contacts().LookupContacts(arguments[0], first, second); });
  return first + ";" + second;
}

struct Routine {
  std::size_t arguments = 0;
  std::string (*call)(ProgramRunner& runner, const Texts& arguments);
};

const std::map<std::string, Routine>& Routines() {
  static const std::map<std::string, Routine> routines = {
      {"Codec", {3, CallCodec}},
      {"Val", {1, [](ProgramRunner&, const Texts& a) { return DoubleToText(Val(a[0])); }}},
      {"IsNumeric",
       {1, [](ProgramRunner&,
              const Texts& a) { return std::string(IsNumeric(a[0]) ? "True" : "False"); }}},
      {"Currency",
       {1, [](ProgramRunner&,
              const Texts& a) { return Currency::FromDouble(Double(a[0])).ToText(); }}},
      {"CurrencyProduct",
       {2,
        [](ProgramRunner&, const Texts& a) { return Product(Money(a[0]), Money(a[1])).ToText(); }}},
      {"WholeNumber",
       {1, [](ProgramRunner&, const Texts& a) { return std::to_string(ToInt32(Double(a[0]))); }}},
      {"Format", {2, CallFormat}},
      {"FormatSingle", {2, CallFormatSingle}},
      {"GetPlatformCode",
       {0,
        [](ProgramRunner& runner, const Texts&) {
          return std::to_string(
              GetPlatformCode(runner.TheProgram().TheEnvironment().info.platformId));
        }}},
      {"GetSpecialFolder",
       {1,
        [](ProgramRunner& runner, const Texts& a) {
          return ScriptText(GetSpecialFolder(runner.TheWorld().shell, Whole(a[0])).Utf8());
        }}},
      {"LookupContacts", {1, CallLookupContacts}},
      {"ShowHint", {1, CallShowHint}},
      {"ShowMessage", {3, CallShowMessage}},
  };
  return routines;
}

}  // namespace

void CallRoutine(ProgramRunner& runner, const Texts& words) {
  const auto found = Routines().find(words[0]);
  if (found == Routines().end()) throw CannotBeDone("there is no routine " + words[0]);
  const Routine& routine = found->second;
  const Texts arguments(words.begin() + 1, words.end() - 2);
  if (arguments.size() != routine.arguments) {
    throw CannotBeDone(words[0] + " takes " + std::to_string(routine.arguments) + " arguments");
  }
  std::optional<std::string> result;  // nothing when it raises an error
  try {
    result = routine.call(runner, arguments);
  } catch (const RuntimeError&) {
  }
  const std::string& expected = words.back();
  if (result ? *result == expected : expected == "error") return;
  throw Mismatch{words[0] + " = " + Quoted(expected), result ? Quoted(*result) : "an error"};
}

}  // namespace benevix
