#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace benevix {

// The organizations of the lists that the site offers, for a page about each of them.
class ListedOrganizations {
 public:
  // Reads every list "downloads/db..." of the site's folder; one that cannot be read counts as
  // empty.
  explicit ListedOrganizations(const std::filesystem::path& site);

  // A text about the organization of "infoDB/ID.dat", in the code page, made from its line in the
  // list; empty for any other path.
  [[nodiscard]] std::string PageFor(const std::string& path) const;

 private:
  std::map<std::string, std::string> pages_;  // by path
};

}  // namespace benevix
