#include "database/list_load.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string_view>
#include <thread>
#include <utility>

namespace benevix {
namespace {

// What a thread loads before it looks whether another one has taken over the rest.
constexpr std::size_t kStep = std::size_t{1} << 20;
constexpr unsigned kMostThreads = 3;  // in the background; more would wait for the memory

unsigned ThreadsFor(std::size_t size) {
  constexpr std::size_t isLong = 2 * kStep;  // worth another thread
  if (size < isLong) return 0;
  return std::clamp(std::thread::hardware_concurrency(), 2U, kMostThreads + 1) - 1;
}

}  // namespace

ListLoad::Part::Part(std::size_t from, std::size_t to) : begin(from), next(from), end(to) {
  lines.starts.reserve((to - from) / kShortLine);
  lines.loaded = from;
}

ListLoad::ListLoad(const FileReader& file) : file_(file) {
  const std::size_t size = file.State().size;
  if (size > std::numeric_limits<std::uint32_t>::max()) {
    parts_.emplace_back(0, 0).lines.damage = "too large";
    return;
  }
  bytes_.resize(size);
  parts_.emplace_back(0, size);
  for (unsigned thread = 0; thread < ThreadsFor(size); ++thread) {
    Part& part = thread == 0 ? parts_.front() : Halve();
    threads_.push_back(std::async(std::launch::async, [this, &part] { Load(part); }));
  }
}

ListLoad::~ListLoad() {
  const std::lock_guard lock(mutex_);
  for (Part& part : parts_) part.end = part.next;
}

void ListLoad::Load(Part& part) {
  for (bool isIntact = true; isIntact;) {
    const std::size_t from = part.next;
    {
      const std::lock_guard lock(mutex_);
      if (from == part.end) return;
      part.next = part.end - from > kStep ? std::min(LineEnd(from + kStep), part.end) : part.end;
    }
    part.lines.Load(file_, bytes_.data(), from, part.next);
    // Behind a bad line, or what was cut from the file meanwhile, there is no list.
    isIntact = part.lines.damage.empty() && part.lines.loaded == part.next;
  }
}

ListLoad::Part& ListLoad::Halve() {
  const auto left = [](const Part& part) { return part.end - part.next; };
  const std::lock_guard lock(mutex_);
  const auto most = std::ranges::max_element(parts_, {}, left);
  const std::size_t end = most->end;
  most->end = std::min(LineEnd(most->next + left(*most) / 2), end);
  return *parts_.emplace(std::next(most), most->end, end);
}

std::size_t ListLoad::LineEnd(std::size_t at) const {
  std::array<char, 4096> around{};
  while (at < bytes_.size()) {
    const std::size_t count = file_.Read(at, around.data(), around.size());
    const std::size_t lineFeed = std::string_view(around.data(), count).find('\n');
    if (lineFeed != std::string_view::npos) return at + lineFeed + 1;
    if (count == 0) break;  // the file was cut
    at += count;
  }
  return bytes_.size();
}

void ListLoad::Finish(ListBytes& bytes, ListLines& lines) {
  Load(threads_.empty() ? parts_.front() : Halve());
  for (std::future<void>& thread : threads_) thread.get();
  lines = std::move(parts_.front().lines);
  for (auto part = std::next(parts_.begin()); part != parts_.end(); ++part) {
    if (lines.loaded == part->begin) lines.Append(part->lines);
  }
  bytes = std::move(bytes_);
  bytes.resize(lines.loaded);
}

}  // namespace benevix
