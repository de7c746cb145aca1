#pragma once

#include <future>
#include <memory>

#include "database/organization_list.h"
#include "platform/files.h"

namespace benevix {

// A list file that is loaded in the background, before the program needs it.
class ListAhead {
 public:
  // Begins to load the file. Whoever takes a list that could not be loaded gets none.
  ListAhead(const Files& files, const FilePath& path);
  // Of no file.
  ListAhead() = default;

  // The list, at the first call; waits until it is loaded. Null without one, and when this path
  // leads to another file by now.
  [[nodiscard]] std::shared_ptr<const OrganizationList> Take(const Files& files,
                                                             const FilePath& path);

 private:
  FileState state_;
  std::future<std::shared_ptr<const OrganizationList>> list_;
};

}  // namespace benevix
