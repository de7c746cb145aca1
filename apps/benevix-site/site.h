#pragma once

#include <atomic>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "listed_organizations.h"

namespace benevix {

struct SiteAnswer {
  int status = 200;
  std::string contentType;
  std::string body;
};

// What the demonstration site answers: the files of a folder, a page about each listed organization
// that has no file, the mail script, the payment page and the translation service.
class Site {
 public:
  // Takes the folder to serve and the site's own address, ending in "/". In text files "{site}"
  // stands for that address. Raises std::filesystem::filesystem_error when there is no such folder.
  Site(const std::filesystem::path& folder, std::string address);

  // Takes a request target as it arrived, beginning with "/".
  SiteAnswer Answer(std::string_view target);

 private:
  // The news file holds a line for each kind of news: 1 is told, 3 asks and opens the news page, 2
  // asks and starts the updater, 0 only blinks. Each request gets the next line, so each start of
  // the program shows another kind.
  SiteAnswer AnswerNews();
  SiteAnswer AnswerTranslation(std::string_view query) const;
  std::optional<std::filesystem::path> FindFile(const std::string& relative) const;
  SiteAnswer AnswerPath(const std::string& relative) const;
  SiteAnswer AnswerFile(const std::filesystem::path& file) const;

  std::filesystem::path folder_;
  std::string address_;
  ListedOrganizations organizations_;
  std::atomic<unsigned> newsAsked_ = 0;
};

// The answer of an HTTP error as a page.
SiteAnswer ErrorAnswer(int status);

}  // namespace benevix
