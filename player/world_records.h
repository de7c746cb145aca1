#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/runtime_error.h"
#include "platform/http_client.h"
#include "platform/linux/linux_shell.h"
#include "platform/message_boxes.h"
#include "platform/printer.h"

namespace benevix {

// What happened, in its order; checked one by one from the oldest on.
template <class T>
class Recorded {
 public:
  void Add(T happened) { all_.push_back(std::move(happened)); }

  // The oldest one not checked yet; it is checked now.
  std::optional<T> Next() {
    if (checked_ == all_.size()) return std::nullopt;
    return all_[checked_++];
  }
  void SkipAll() { checked_ = all_.size(); }
  [[nodiscard]] const std::vector<T>& All() const { return all_; }

 private:
  std::vector<T> all_;
  std::size_t checked_ = 0;
};

struct ShownBox {
  std::string title;
  std::string text;
  BoxIcon icon = BoxIcon::None;
  BoxButtons buttons = BoxButtons::OK;
};

// Records the message boxes that are shown and knows the user's answers.
class BoxAnswers {
 public:
  // Records the box and gives the button that answers it: the next queued answer, No without one.
  BoxAnswer Take(ShownBox box) {
    const bool asks = box.buttons != BoxButtons::OK;
    shown.Add(std::move(box));
    if (!asks) return BoxAnswer::OK;
    if (queue_.empty()) return BoxAnswer::No;
    const BoxAnswer answer = queue_.front();
    queue_.pop_front();
    return answer;
  }

  // A box with OK alone takes no answer of the queue, so an OK is not queued.
  void Queue(BoxAnswer answer) {
    if (answer != BoxAnswer::OK) queue_.push_back(answer);
  }

  // Where the user saves the next file; without one he saves none.
  void QueueFile(FilePath file) { files_.push_back(std::move(file)); }
  FilePath TakeFile() {
    if (files_.empty()) return {};
    FilePath file = std::move(files_.front());
    files_.pop_front();
    return file;
  }

  Recorded<ShownBox> shown;

 private:
  std::deque<BoxAnswer> queue_;
  std::deque<FilePath> files_;
};

// Records every address that is handed over, also when no answer comes.
class RecordingHttpClient : public HttpClient {
 public:
  RecordingHttpClient(HttpClient& client, Recorded<std::string>& requests)
      : client_(client), requests_(requests) {}

  std::string OpenURL(const std::string& address, const HttpOptions& options) override {
    requests_.Add(address);
    HttpOptions told = options;
    told.onSlow = [&] {
      options.onSlow();
      if (const auto action = std::exchange(meanwhile, nullptr)) action();
    };
    return client_.OpenURL(address, told);
  }
  void Cancel() override { client_.Cancel(); }

  // Done once, while a slow request is under way.
  std::function<void()> meanwhile;

 private:
  HttpClient& client_;
  Recorded<std::string>& requests_;
};

// A document is its lines here, on paper as in a file.
class RecordingPrinter : public Printer {
 public:
  [[nodiscard]] bool IsThere() const override { return !off; }
  void Print(const PrintDocument& document) override {
    if (off) throw RuntimeError(kNoPrinter);
    for (const PrintLine& line : document) lines.Add(TextOf(line));
  }
  [[nodiscard]] std::string Pdf(const PrintDocument& document) const override {
    std::string text;
    for (const PrintLine& line : document) text += TextOf(line) + "\r\n";
    return text;
  }

  bool off = false;
  Recorded<std::string> lines;

 private:
  static std::string TextOf(const PrintLine& line) {
    return std::string(static_cast<std::size_t>(line.column > 1 ? line.column - 1 : 0), ' ') +
           line.text;
  }
};

// The real shell on folders of its own; programs are recorded in place of being started.
class RecordingShell : public LinuxShell {
 public:
  RecordingShell(FilePath programs, FilePath desktop)
      : programs_(std::move(programs)), desktop_(std::move(desktop)) {}

  [[nodiscard]] FilePath SpecialFolder(int folderId) const override {
    if (folderId == kProgramsFolder) return programs_;
    return folderId == kDesktopFolder ? desktop_ : FilePath();
  }
  [[nodiscard]] std::string ShortcutExtension() const override { return ".lnk"; }
  void StartProgram(const FilePath& file) override { started.Add(file.Utf8()); }
  bool OpenInBrowser(const std::string& address) override {
    started.Add(address);
    return true;
  }

  Recorded<std::string> started;

 private:
  FilePath programs_;
  FilePath desktop_;
};

}  // namespace benevix
