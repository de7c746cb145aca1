#include "giving/given_history.h"

#include <future>
#include <limits>

#include "base/lines.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "giving/history_reader.h"
#include "platform/line_reader.h"

namespace benevix {
namespace {

// Memory that is never touched costs nothing, while growing would copy all of it.
constexpr std::size_t kShortGift = 80, kShortRecord = 160;  // bytes

// Where a record begins near the middle of a long history, so that two threads can read it; the end
// when there is none.
std::size_t SecondPart(const FileReader& file, std::size_t size) {
  constexpr std::size_t isLong = std::size_t{1} << 20, near = std::size_t{1} << 16;
  if (size < isLong) return size;
  std::string piece(near, '\0');
  piece.resize(file.Read(size / 2, piece.data(), near));
  const auto at = piece.find("\n-- ");
  return at == std::string::npos ? size : size / 2 + at + 1;
}

// A thread's reader stands on its own stack, apart from the other one's.
HistoryReader ReadPart(const Files& files, const FilePath& file, std::size_t begin,
                       std::size_t end) {
  HistoryReader records;
  records.gifts.reserve((end - begin) / kShortGift);
  records.sessions.reserve((end - begin) / kShortRecord);
  LineReader lines(files.Open(file), begin, end);
  while (const auto line = lines.Next()) records.Read(*line);
  return records;
}

// The index that each of these has among those.
std::vector<std::uint32_t> IndexesOf(const Names& these, Names& those) {
  std::vector<std::uint32_t> indexes;
  for (const std::string_view text : these.All()) indexes.push_back(those.Of(text));
  return indexes;
}

}  // namespace

GivenHistory::GivenHistory(const Files& files, const FilePath& file) {
  if (!files.Exists(file)) return;
  const auto reader = files.Open(file);
  const std::size_t size = reader->State().size;
  if (size > std::numeric_limits<std::uint32_t>::max()) {
    throw RuntimeError(FromUtf8(file.Utf8()) + ": too large");
  }
  const std::size_t middle = SecondPart(*reader, size);
  auto second = std::async(middle == size ? std::launch::deferred : std::launch::async,
                           [&] { return ReadPart(files, file, middle, size); });
  gifts_.reserve(size / kShortGift);
  sessions_.reserve(size / kShortRecord);
  Add(ReadPart(files, file, 0, middle));
  Add(second.get());
}

GivenHistory::GivenHistory(std::string_view records) {
  HistoryReader all;
  for (const std::string_view line : Lines(records)) all.Read(line);
  Add(all);
}

void GivenHistory::Add(const HistoryReader& part) {
  const auto transactions = static_cast<std::uint32_t>(transactions_.size());
  const auto gifts = static_cast<std::uint32_t>(gifts_.size());
  transactions_ += part.transactions;
  for (GivenSession session : part.sessions) {
    session.transaction += transactions;
    session.firstGift += gifts;
    if (!session.hasPayment) session.paid = session.given;
    sessions_.push_back(session);
  }
  const auto organizations = IndexesOf(part.organizations, organizations_);
  const auto donors = IndexesOf(part.donors, donors_);
  const auto deliveries = IndexesOf(part.deliveries, deliveries_);
  for (Gift gift : part.gifts) {
    gift.organization = organizations[gift.organization];
    gift.donor = donors[gift.donor];
    gift.delivery = deliveries[gift.delivery];
    gifts_.push_back(gift);
  }
  unread_ += part.unread;
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
