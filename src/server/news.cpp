#include "server/news.h"

#include "base/number_text.h"
#include "base/runtime_error.h"

namespace benevix {
namespace {

// A number beyond a double counts as an unknown kind, like any above 2.
double KindOf(const std::string& number) {
  try {
    return Val(number);
  } catch (const RuntimeError&) {
    return 3;
  }
}

}  // namespace

void News::LoadNews() {
  const std::string news = server_.FetchUsable("53rv3r/news.txt");
  if (news.empty()) return Hide();
  if (news.compare(0, 2, "2,") != 0) return Show(news);
  const auto equals = news.find('=');
  if (equals == std::string::npos) return Hide();
  // Compared as texts on purpose: the server's versions are chosen for that.
  if (news.substr(equals + 1) > info_.Version()) return Show(news.substr(0, equals));
  Hide();
}

void News::Show(const std::string& news) {
  main_.Label12.tag = news;
  main_.Label12.foreColor = colors::kNewsText;
  main_.Timer2.enabled = true;
  main_.Shape5.fillColor = colors::kNewsLit;
  main_.Shape5.meaning = "There is news";
}

void News::Hide() {
  main_.Timer2.enabled = false;
  main_.Label12.tag.clear();
  main_.Shape5.meaning = kNoNews;
}

void News::Label12_Click() {
  const std::string news = main_.Label12.tag;
  if (news.empty()) return;
  const auto comma = news.find(',');
  if (comma != std::string::npos) {
    const double kind = KindOf(news.substr(0, comma));
    const std::string text = news.substr(comma + 1);
    if (kind == 0) return;
    if (kind == 1) {
      messages_.Show(text);
    } else if (messages_.Show(text, BoxIcon::None, BoxButtons::YesNo) == BoxAnswer::Yes) {
      if (kind == 2) {
        downloadUpdater_();
      } else {
        viewer_.ShowPage(Page::Web(server_.Base() + "53rv3r/bvxnews.html"), frmInfo::kTitle,
                         Attention::KeepsMainDisabled);
      }
    }
  }
  MarkAsRead();
}

void News::MarkAsRead() {
  main_.Timer2.enabled = false;
  main_.Shape7.fillStyle = 1;
  main_.Shape7.borderColor = colors::kMuted;
  main_.Shape5.borderColor = colors::kMuted;
  main_.Shape5.fillColor = colors::kButtonFace;
  main_.Label12.foreColor = colors::kMuted;
  main_.Shape5.meaning = kNoNews;
}

}  // namespace benevix
