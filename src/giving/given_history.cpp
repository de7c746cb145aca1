#include "giving/given_history.h"

#include <cstring>
#include <future>
#include <limits>

#include "base/runtime_error.h"
#include "base/text.h"
#include "giving/history_reader.h"

namespace benevix {

GivenHistory::GivenHistory(const Files& files, const FilePath& file) {
  if (!files.Exists(file)) return;
  const auto reader = files.Open(file);
  if (reader->Size() > std::numeric_limits<std::uint32_t>::max()) {
    throw RuntimeError(FromUtf8(file.Utf8()) + ": too large");
  }
  bytes_.resize(reader->Size());
  std::size_t size = 0;
  while (size < bytes_.size()) {
    const std::size_t count = reader->Read(bytes_.data() + size, bytes_.size() - size);
    if (count == 0) break;
    size += count;
  }
  bytes_.resize(size);
  ReadAll();
}

GivenHistory::GivenHistory(std::string_view records) : bytes_(records.begin(), records.end()) {
  ReadAll();
}

void GivenHistory::ReadAll() {
  constexpr std::size_t isLong = std::size_t{1} << 20;  // worth a second thread
  const std::string_view text(bytes_.data(), bytes_.size());
  const auto middle =
      text.size() < isLong ? std::string_view::npos : text.find("\n-- ", text.size() / 2);
  HistoryReader first(text.data());
  // Memory that is never touched costs nothing, while growing would copy it all.
  constexpr std::size_t shortGift = 80;  // bytes of a line
  first.gifts.reserve(text.size() / shortGift);
  if (middle == std::string_view::npos) {
    first.Read(text.data(), text.data() + text.size());
    Add(std::move(first));
    return;
  }
  const char* const half = text.data() + middle + 1;
  HistoryReader second(text.data());
  second.gifts.reserve(text.size() / shortGift / 2);
  const auto reading =
      std::async(std::launch::async, [&] { second.Read(half, text.data() + text.size()); });
  first.Read(text.data(), half);
  reading.wait();
  Add(std::move(first));
  Add(std::move(second));
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
  if (before == 0) {
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
