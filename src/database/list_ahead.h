#pragma once

#include <memory>

#include "database/list_load.h"
#include "database/organization_list.h"
#include "platform/files.h"

namespace benevix {

// A list file whose load begins before the program needs it.
class ListAhead {
 public:
  // Begins. Whoever takes a list that could not be loaded gets none.
  ListAhead(const Files& files, const FilePath& path);
  // Of no file.
  ListAhead() = default;

  // The list, at the first call. Null without one, and when this path leads to another file by now.
  [[nodiscard]] std::shared_ptr<const OrganizationList> Take(const Files& files,
                                                             const FilePath& path);

 private:
  std::unique_ptr<const FileReader> file_;
  std::unique_ptr<ListLoad> load_;
};

}  // namespace benevix
