#include "base/runtime_error.h"
#include "base/text.h"
#include "people/contact_information.h"
#include "people/donors_ranking.h"
#include "served.h"
#include "targets.h"

namespace benevix {

void CheckContact(std::string_view input) {
  const std::string text(input);
  const TextCodec codec("benevix");
  Require(codec.Unscramble(codec.Scramble(text)) == text, "what is scrambled can be read");
  try {
    const std::string plain = codec.Unscramble(text);
    Require(text.size() % 2 != 0 || codec.Scramble(plain) == UpperCase(text), "and the other way");
  } catch (const RuntimeError&) {
    // No hexadecimal digits.
  }
  frmPersInfo first, second;
  SplitContact(text, first);
  SplitContact(JoinContact(first), second);
  Require(JoinContact(first) == JoinContact(second), "the details are read as they are written");

  Served served({});
  frmDonRankg window;
  served.desk.Add(window);
  SettingsStore settings(served.world.settings);
  settings.SaveUserString("RankOpt", codec.Scramble(text));
  DonorsRanking ranking(window, served.desk, settings, codec, served.messages);
  ranking.Form_Load();
  const int chosen = Chosen(window.Option1);
  Require(chosen >= 0, "one kind of name is chosen");
  const std::string notice = ranking.ForNotice(true);
  Require(notice.find(',', 3) == std::string::npos, "the choice is one field of the notice");
}

}  // namespace benevix
