#include "giving/given_history.h"

#include <cstring>
#include <future>
#include <limits>

#include "base/runtime_error.h"
#include "base/text.h"
#include "giving/history_reader.h"

namespace benevix {
namespace {

// Memory that is never touched costs nothing, while growing would copy all of it.
constexpr std::size_t kShortGift = 80;  // bytes of a line

}  // namespace

GivenHistory::GivenHistory(const Files& files, const FilePath& file) {
  if (!files.Exists(file)) return;
  const auto reader = files.Open(file);
  const std::size_t size = reader->State().size;
  if (size > std::numeric_limits<std::uint32_t>::max()) {
    throw RuntimeError(FromUtf8(file.Utf8()) + ": too large");
  }
  bytes_.resize(size);
  std::size_t loaded = 0;
  const auto load = [&](std::size_t end) {
    for (std::size_t count = 1; count > 0 && loaded < end; loaded += count) {
      count = reader->Read(loaded, bytes_.data() + loaded, end - loaded);
    }
  };
  constexpr std::size_t isLong = std::size_t{1} << 20;  // worth a second thread
  load(bytes_.size() < isLong ? 0 : bytes_.size() / 2);
  // While the second half is loaded the records of the first one are read.
  const auto end = std::string_view(bytes_.data(), loaded).rfind("\n-- ");
  const std::size_t half = end == std::string_view::npos ? 0 : end + 1;
  HistoryReader first(bytes_.data()), second(bytes_.data());
  first.gifts.reserve(bytes_.size() / kShortGift);
  second.gifts.reserve((bytes_.size() - half) / kShortGift);
  const auto reading = std::async(half == 0 ? std::launch::deferred : std::launch::async,
                                  [&] { first.Read(bytes_.data(), bytes_.data() + half); });
  load(bytes_.size());
  second.Read(bytes_.data() + half, bytes_.data() + loaded);
  reading.wait();
  bytes_.resize(loaded);
  Add(std::move(first));
  Add(std::move(second));
}

GivenHistory::GivenHistory(std::string_view records) : bytes_(records.begin(), records.end()) {
  HistoryReader all(bytes_.data());
  all.Read(bytes_.data(), bytes_.data() + bytes_.size());
  Add(std::move(all));
}

void GivenHistory::Add(HistoryReader&& part) {
  Names index(names_);
  std::vector<std::uint32_t> indexes;
  for (const std::string_view name : part.names) indexes.push_back(index.Of(name));
  const auto before = static_cast<std::uint32_t>(gifts_.size());
  for (GivenSession session : part.sessions) {
    session.firstGift += before;
    if (!session.hasPayment) session.paid = session.given;
    sessions_.push_back(session);
  }
  unread_ += part.unread;
  if (before == 0 && names_.size() == part.names.size()) {
    gifts_ = std::move(part.gifts);  // whose indexes are the same here
    return;
  }
  gifts_.reserve(before + part.gifts.size());
  for (Gift gift : part.gifts) {
    gift.organization = indexes[gift.organization];
    gifts_.push_back(gift);
  }
}

GiftTexts GivenHistory::TextsOf(const Gift& gift) const {
  const char* const begin = bytes_.data() + gift.line;
  const std::size_t left = bytes_.size() - gift.line;
  const void* const end = std::memchr(begin, '\n', left);
  std::string_view line(
      begin,
      end == nullptr ? left : static_cast<std::size_t>(static_cast<const char*>(end) - begin));
  if (line.ends_with('\r')) line.remove_suffix(1);
  GiftTexts texts;
  texts.Read(line);
  return texts;
}

std::string PaymentMethod(std::string_view transaction) {
  switch (transaction.empty() ? '\0' : transaction.back()) {
    case 'C':
      return "Credit Card";
    case 'A':
      return "Funds Transfer";
    case 'E':
      return "e-check";
    default:
      return {};
  }
}

}  // namespace benevix
