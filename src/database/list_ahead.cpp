#include "database/list_ahead.h"

#include "base/runtime_error.h"

namespace benevix {

ListAhead::ListAhead(const Files& files, const FilePath& path) {
  try {
    const std::shared_ptr<const FileReader> file = files.Open(path);
    state_ = file->State();
    list_ = std::async(std::launch::async,
                       [file] { return std::make_shared<const OrganizationList>(*file); });
  } catch (const RuntimeError&) {
    // Whoever loads it then will raise it.
  }
}

std::shared_ptr<const OrganizationList> ListAhead::Take(const Files& files, const FilePath& path) {
  if (!list_.valid()) return nullptr;
  try {
    auto list = list_.get();
    if (files.Open(path)->State() == state_) return list;
  } catch (const RuntimeError&) {
    // It is loaded as if nothing had been tried before.
  }
  return nullptr;
}

}  // namespace benevix
