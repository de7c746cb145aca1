#include "server/updater.h"

#include "base/runtime_error.h"
#include "base/web_address.h"

namespace benevix {

bool Updater::Download() {
  const std::string path = "downloads/updater.exe";
  if (!environment_.info.installed.IsEmpty()) {
    return Refuse(
        "It was installed for all users of this machine, and is updated with the system.");
  }
  std::string unprotected;
  HttpOptions options;
  options.needsOk = true;
  options.purpose = "Downloading the new version of the program...";
  options.onAddress = [&unprotected](const std::string& address) {
    if (IsProtected(address)) return;
    unprotected = address;
    throw RuntimeError(address);
  };
  std::string program;
  try {
    program = downloads_.Fetch(path, std::move(options));
  } catch (const RuntimeError&) {
    // Reported below, like an empty answer.
  }
  if (!unprotected.empty()) {
    return Refuse("It would come from " + unprotected +
                  ", which is not https: others on the way could change it.");
  }
  if (program.empty() || program[0] == '<') {
    messages_.ShowMessage(message::kServerBusy, message_kind::kFailedToConnect);
    return false;
  }
  try {
    downloads_.CheckSignature(path, program);
  } catch (const RuntimeError& error) {
    return Refuse(error.what());
  }
  const FilePath file = environment_.info.folder / "updater.exe";
  environment_.files.Replace(file, program);
  environment_.shell.StartProgram(file);
  return true;
}

bool Updater::Refuse(const std::string& reason) {
  messages_.Show("The program was not updated. " + reason, BoxIcon::Information);
  return false;
}

}  // namespace benevix
