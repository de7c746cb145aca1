#include "site.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <system_error>
#include <utility>
#include <vector>

#include "pages.h"
#include "parley.h"
#include "request_fields.h"

namespace benevix {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view mailScript = "/cgi-bin/mail?";
constexpr std::string_view paymentPrefix = "/xclick/";
constexpr std::string_view paymentStart = "/xclick/business=";
constexpr std::string_view translationStart = "/parley?";
constexpr const char* homePage = "index.html";
constexpr const char* newsFile = "53rv3r/news.txt";
constexpr std::string_view addressMark = "{site}";

constexpr const char* bytesType = "application/octet-stream";
constexpr const char* madePageType = "text/html; charset=windows-1252";

// The data files are in the program's code page, the pages in UTF-8.
const std::map<std::string, std::string, std::less<>> contentTypes = {
    {".html", "text/html; charset=utf-8"},
    {".txt", "text/plain; charset=windows-1252"},
    {".dat", "text/plain; charset=windows-1252"},
    {".css", "text/css; charset=utf-8"},
    {".svg", "image/svg+xml"},
    {".png", "image/png"},
    {".jpg", "image/jpeg"},
    {".ico", "image/x-icon"},
    {".zip", "application/zip"},
};

std::string ContentType(const fs::path& file) {
  const auto found = contentTypes.find(file.extension().string());
  return found == contentTypes.end() ? bytesType : found->second;
}

void ReplaceAll(std::string& text, std::string_view mark, std::string_view replacement) {
  for (size_t at = text.find(mark); at != std::string::npos;
       at = text.find(mark, at + replacement.size())) {
    text.replace(at, mark.size(), replacement);
  }
}

// Refuses whatever could mean another place on some system: "..", drive letters, backslashes.
bool IsPlainPath(const std::string& relative) {
  const auto forbidden = [](char c) { return c == '\\' || c == ':' || c == '\0'; };
  if (std::any_of(relative.begin(), relative.end(), forbidden)) return false;
  const fs::path path(relative);
  return path.is_relative() &&
         std::none_of(path.begin(), path.end(), [](const fs::path& part) { return part == ".."; });
}

SiteAnswer AnswerMail(std::string_view query) {
  const std::vector<RequestField> fields = SplitFields(query);
  if (FieldValue(fields, "email").empty() || FieldValue(fields, "recipient").empty()) {
    return {400, madePageType, ErrorPage(400, "A sender and a recipient are needed.")};
  }
  return {200, madePageType, MailSentPage(fields)};
}

}  // namespace

Site::Site(const fs::path& folder, std::string address)
    : folder_(fs::canonical(folder)), address_(std::move(address)), organizations_(folder_) {}

SiteAnswer Site::Answer(std::string_view target) {
  if (target.starts_with(mailScript)) return AnswerMail(target.substr(mailScript.size()));
  if (target.starts_with(paymentStart)) {
    return {200, madePageType, PaymentPage(SplitFields(target.substr(paymentPrefix.size())))};
  }
  if (target.starts_with(translationStart)) {
    return AnswerTranslation(target.substr(translationStart.size()));
  }
  const std::string_view path = target.substr(0, target.find_first_of("?#"));
  std::string relative = PercentDecode(path.substr(std::min<size_t>(1, path.size())));
  if (path == "/") relative = homePage;
  if (relative == newsFile) return AnswerNews();
  return AnswerPath(relative);
}

SiteAnswer Site::AnswerPath(const std::string& relative) const {
  if (const auto file = FindFile(relative)) return AnswerFile(*file);
  std::string page = organizations_.PageFor(relative);
  if (page.empty()) return ErrorAnswer(404);
  return {200, contentTypes.at(".dat"), std::move(page)};
}

SiteAnswer Site::AnswerNews() {
  const auto file = FindFile(newsFile);
  if (!file) return ErrorAnswer(404);
  SiteAnswer answer = AnswerFile(*file);
  std::vector<std::string> kinds;
  std::istringstream lines(answer.body);
  for (std::string line; std::getline(lines, line);) kinds.push_back(line);
  if (!kinds.empty()) answer.body = kinds[newsAsked_++ % kinds.size()];
  return answer;
}

SiteAnswer Site::AnswerTranslation(std::string_view query) const {
  const std::vector<RequestField> fields = SplitFields(query);
  const std::string page = FieldValue(fields, "url");
  if (!page.starts_with(address_)) return ErrorAnswer(404);
  const SiteAnswer original = AnswerPath(page.substr(address_.size()));
  if (original.status != 200) return original;
  return {200, madePageType, Interpret(FieldValue(fields, "language"), original.body)};
}

std::optional<fs::path> Site::FindFile(const std::string& relative) const {
  if (!IsPlainPath(relative)) return std::nullopt;
  // Links are followed first, so that one that leads out of the folder is refused.
  std::error_code failure;
  fs::path file = fs::canonical(folder_ / relative, failure);
  if (failure || !fs::is_regular_file(file, failure)) return std::nullopt;
  const auto parts = std::mismatch(folder_.begin(), folder_.end(), file.begin(), file.end());
  if (parts.first != folder_.end()) return std::nullopt;
  return file;
}

SiteAnswer Site::AnswerFile(const fs::path& file) const {
  std::ifstream stream(file, std::ios::binary);
  std::string body{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  if (!stream) return ErrorAnswer(404);
  std::string type = ContentType(file);
  if (type.starts_with("text/")) ReplaceAll(body, addressMark, address_);
  return {200, std::move(type), std::move(body)};
}

SiteAnswer ErrorAnswer(int status) {
  const auto reason = [status]() -> std::string_view {
    switch (status) {
      case 400:
        return "The request could not be understood.";
      case 404:
        return "There is no such page here.";
      case 405:
        return "Pages can only be read here.";
      case 414:
        return "The address is too long.";
      default:
        return "The request could not be answered.";
    }
  };
  return {status, madePageType, ErrorPage(status, reason())};
}

}  // namespace benevix
