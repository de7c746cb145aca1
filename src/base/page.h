#pragma once

#include <string>
#include <utility>

#include "base/file_path.h"
#include "base/text.h"

namespace benevix {

// What a page viewer shows: a page of the web, or a file.
struct Page {
  static Page Web(std::string address) { return {std::move(address), {}, {}}; }
  static Page File(FilePath file, std::string anchor = {}) {
    return {{}, std::move(file), std::move(anchor)};
  }

  // As people write it, UTF-8.
  [[nodiscard]] std::string Utf8() const {
    if (!web.empty()) return ToUtf8(web);
    return file.Utf8() + (anchor.empty() ? "" : "#" + ToUtf8(anchor));
  }

  std::string web;  // its address in the code page; empty for a file
  FilePath file;
  std::string anchor;  // of the file, in the code page; may be empty
};

}  // namespace benevix
