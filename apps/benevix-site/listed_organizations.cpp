#include "listed_organizations.h"

#include "base/runtime_error.h"
#include "database/organization_list.h"
#include "platform/linux/linux_files.h"

namespace benevix {
namespace {

namespace fs = std::filesystem;

std::string PageAbout(const std::string& name, const std::string& kind,
                      const std::string& country) {
  return name + "\r\n" + kind + " - " + country + "\r\n\r\n" + name +
         " has not written a text about its work for this list yet. The list says what its work "
         "is: " +
         kind + "; and where: " + country +
         ".\r\n\r\nAsk the organization itself: Contact this organization writes to it.\r\n";
}

}  // namespace

ListedOrganizations::ListedOrganizations(const fs::path& site) {
  std::error_code none;
  for (const auto& entry : fs::directory_iterator(site / "downloads", none)) {
    if (!entry.path().filename().string().starts_with("db")) continue;
    try {
      const OrganizationList list(*LinuxFiles().Open(FilePath(entry.path().string())));
      std::string country;
      for (int row = 1; row <= list.Count(); ++row) {
        const std::string id = list.Text(row, column::kId);
        if (id.empty()) {
          country = list.Text(row, column::kCountry);
        } else {
          pages_["infoDB/" + id + ".dat"] = PageAbout(list.Text(row, column::kOrganization),
                                                      list.Text(row, column::kType), country);
        }
      }
    } catch (const RuntimeError&) {
      // As if the list were empty.
    }
  }
}

std::string ListedOrganizations::PageFor(const std::string& path) const {
  const auto found = pages_.find(path);
  return found == pages_.end() ? "" : found->second;
}

}  // namespace benevix
