#pragma once

#include <cstddef>
#include <future>
#include <list>
#include <mutex>
#include <vector>

#include "base/large_memory.h"
#include "database/list_lines.h"
#include "platform/files.h"

namespace benevix {

using ListBytes = std::vector<char, LargeAllocator<char>>;

// The load of a list file: by threads in the background, and from the moment on when the list is
// needed also by the thread that needs it. Until then that one is not kept from its own work, and
// afterwards it does not only wait.
class ListLoad {
 public:
  // Begins in the background where the file is long. The reader must stay as long as this.
  explicit ListLoad(const FileReader& file);
  ListLoad(const ListLoad&) = delete;
  ListLoad& operator=(const ListLoad&) = delete;
  // Gives up what is not loaded yet.
  ~ListLoad();

  // Loads the rest and hands over the bytes and their lines; to be called once. A bad line ends
  // them, and a file of 4 GiB or more is not loaded at all. Raises RuntimeError when the file
  // cannot be read.
  void Finish(ListBytes& bytes, ListLines& lines);

 private:
  // A part of the file that one thread loads, from a line's beginning to a line's end.
  struct Part {
    Part(std::size_t from, std::size_t to);
    std::size_t begin;
    std::size_t next;  // where its thread goes on
    std::size_t end;
    ListLines lines;
  };

  void Load(Part& part);
  // Takes the second half of what is left of the part that has most left, as a part behind it.
  Part& Halve();
  // Behind the line that holds this byte.
  [[nodiscard]] std::size_t LineEnd(std::size_t at) const;

  const FileReader& file_;
  ListBytes bytes_;
  std::mutex mutex_;       // for the places in the parts
  std::list<Part> parts_;  // in their order in the file
  std::vector<std::future<void>> threads_;
};

}  // namespace benevix
