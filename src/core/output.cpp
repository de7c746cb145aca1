#include "core/output.h"

#include "base/runtime_error.h"
#include "base/text.h"

namespace benevix {

std::string SaveAs(Environment& environment, const std::string& title, const std::string& name,
                   const std::function<std::string()>& bytes) {
  const FilePath file = environment.boxes.AskWhereToSave(title, name);
  if (file.IsEmpty()) return {};
  try {
    environment.files.Replace(file, bytes());
  } catch (const RuntimeError& error) {
    return error.what();
  }
  const std::string& path = file.Utf8();
  return "Saved as " + FromUtf8(path.substr(path.rfind('/') + 1));
}

std::string PrintOrSave(Environment& environment, const PrintDocument& document,
                        const std::string& name) {
  Printer& printer = environment.printer;
  if (!printer.IsThere()) {
    const std::string saved = SaveAs(environment, "There is no printer: save as PDF", name + ".pdf",
                                     [&] { return printer.Pdf(document); });
    return saved.empty() ? kNoPrinter : saved;
  }
  try {
    printer.Print(document);
  } catch (const RuntimeError& error) {
    return error.what();
  }
  return {};
}

}  // namespace benevix
