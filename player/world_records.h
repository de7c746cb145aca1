#pragma once

#include <string>

#include "base/runtime_error.h"
#include "platform/http_client.h"
#include "platform/linux/linux_shell.h"
#include "platform/printer.h"
#include "player/recorded.h"

namespace benevix {

// Records every address that is handed over, also when no answer comes.
class RecordingHttpClient : public HttpClient {
 public:
  RecordingHttpClient(HttpClient& client, Recorded<std::string>& requests)
      : client_(client), requests_(requests) {}

  std::string OpenURL(const std::string& address, const HttpOptions& options) override {
    requests_.Add(address);
    return client_.OpenURL(address, options);
  }

 private:
  HttpClient& client_;
  Recorded<std::string>& requests_;
};

class RecordingPrinter : public Printer {
 public:
  void PrintLine(int column, const std::string& line) override {
    if (off) throw RuntimeError("There is no printer");
    lines.Add(std::string(static_cast<std::size_t>(column > 1 ? column - 1 : 0), ' ') + line);
  }
  void EndDoc() override {}

  bool off = false;
  Recorded<std::string> lines;
};

// The real one on folders of its own, but it starts nothing.
class RecordingShell : public LinuxShell {
 public:
  RecordingShell(std::string programs, std::string desktop)
      : programs_(std::move(programs)), desktop_(std::move(desktop)) {}

  [[nodiscard]] std::string SpecialFolder(int folderId) const override {
    if (folderId == kProgramsFolder) return programs_;
    return folderId == kDesktopFolder ? desktop_ : "";
  }
  [[nodiscard]] std::string ShortcutExtension() const override { return ".lnk"; }
  void StartProgram(const std::string& file) override { started.Add(file); }

  Recorded<std::string> started;

 private:
  std::string programs_;
  std::string desktop_;
};

}  // namespace benevix
