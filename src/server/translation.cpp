#include "server/translation.h"

#include "base/runtime_error.h"
#include "base/text.h"
#include "database/organization_list.h"
#include "server/connection.h"

namespace benevix {
namespace {

using namespace translate_field;

}  // namespace

void Translation::Label3_Click() {
  windows_.info.Label3.tag = "Yes";
  desk_.Show(windows_.preferences);
}

void Translation::Form_Load() {
  auto& boxes = windows_.preferences.Text1;
  const std::string service = settings_.GetUserString("LangService");
  boxes[kMyLanguage].Write(settings_.GetUserString("Language"));
  boxes[kService].Write(service.empty() ? environment_.info.deployment.translationName : service);
  boxes[kAddressKey].Write(settings_.GetUserString("comdService"));
}

void Translation::StorePreferences() {
  const auto& boxes = windows_.preferences.Text1;
  settings_.SaveUserString("Language", boxes[kMyLanguage].text);
  settings_.SaveUserString("LangService", boxes[kService].text);
  settings_.SaveUserString("comdService", boxes[kAddressKey].text);
}

void Translation::Close() {
  StorePreferences();
  desk_.Unload(windows_.preferences);
}

std::string Translation::RequestAddress() const {
  const Deployment& deployment = environment_.info.deployment;
  const auto& boxes = windows_.preferences.Text1;
  const bool builtIn = SameText(boxes[kService].text, deployment.translationName);
  const ListView& list = windows_.main.ListView1;
  // For another service the user enters its address and its key.
  const std::string prefix =
      builtIn ? deployment.translationBase + "?sequence=core&language=" : boxes[kService].text;
  return prefix + boxes[kFromLanguage].text + "/" + boxes[kMyLanguage].text +
         (builtIn ? "&url=" : boxes[kAddressKey].text) + deployment.serverBase + "infoDB/" +
         list.SelectedText(column::kId) + ".dat";
}

std::string Translation::Fetch() const {
  try {
    return OpenURL(environment_.http, windows_.main.Inet2, RequestAddress(),
                   {.purpose = "Translating the page..."});
  } catch (const RuntimeError&) {
    return {};
  }
}

void Translation::Translate() {
  frmInfo& info = windows_.info;
  if (info.Label3.tag != "Yes") return;
  StorePreferences();
  windows_.preferences.mousePointer = MousePointer::Hourglass;
  const std::string page = TranslatedPage(Fetch());
  windows_.preferences.mousePointer = MousePointer::Default;
  const FilePath file = environment_.info.Resource("tmp.html");
  environment_.files.Replace(file, page + "\r\n");
  viewer_.ShowPage(Page::File(file), std::string(info.caption));
  info.Label3.tag.clear();
  info.Label3.visible = false;
  desk_.Unload(windows_.preferences);
}

std::string TranslatedPage(const std::string& answer) {
  if (answer.empty()) return "Request timed out";
  std::string text = answer;
  const auto bracket = text.find('>');
  if (bracket != std::string::npos) text.erase(0, bracket + 1);
  if (LowerCase(text).find("error") != std::string::npos || text.find("404") != std::string::npos) {
    return "Language not supported";
  }
  if (text.empty() || text.find('<') != std::string::npos) {
    return "The service could not be contacted";
  }
  return text;
}

}  // namespace benevix
