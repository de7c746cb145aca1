#include "database/list_ahead.h"

#include "base/runtime_error.h"

namespace benevix {

ListAhead::ListAhead(const Files& files, const FilePath& path) {
  try {
    file_ = files.Open(path);
    load_ = std::make_unique<ListLoad>(*file_);
  } catch (const RuntimeError&) {
    // Whoever loads it then will raise it.
  }
}

std::shared_ptr<const OrganizationList> ListAhead::Take(const Files& files, const FilePath& path) {
  const std::unique_ptr<ListLoad> load = std::move(load_);
  if (!load) return nullptr;
  try {
    auto list = std::make_shared<const OrganizationList>(*load);
    if (files.Open(path)->State() == file_->State()) return list;
  } catch (const RuntimeError&) {
    // It is loaded as if nothing had been tried before.
  }
  return nullptr;
}

}  // namespace benevix
