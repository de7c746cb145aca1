#pragma once

#include <QUrl>
#include <QWebEngineUrlSchemeHandler>

namespace benevix {

// Gives a local text file to the engine as a page that shows it as it stands, in the program's code
// page. From a file's own address the engine guesses both by the bytes, does not show a file that
// it takes for data, and is slow with a long one.
class TextFileScheme : public QWebEngineUrlSchemeHandler {
 public:
  static constexpr const char* kName = "benevix-text";

  // To be called once, before the engine starts.
  static void Register();

  // The address under which the engine loads a page: an address of this scheme for any local file
  // that is no HTML page, otherwise the address itself.
  static QUrl EngineAddress(const QUrl& address);
  // The reverse: the file's own address.
  static QUrl FileAddress(const QUrl& address);

  // Only `file` can be loaded.
  explicit TextFileScheme(const QUrl& file) : page_(EngineAddress(file)) {}

  void requestStarted(QWebEngineUrlRequestJob* job) override;

 private:
  QUrl page_;
};

}  // namespace benevix
