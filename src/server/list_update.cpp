#include "server/list_update.h"

#include "base/number_text.h"
#include "base/runtime_error.h"
#include "database/organization_list.h"

namespace benevix {

std::string ListUpdate::Download(const std::string& path, HttpOptions options) {
  WaitNotice notice(wait_);
  options.limit = kDownloadLimit;
  options.progress = notice.Progress();
  return server_.FetchServerText(path, options);
}

void ListUpdate::CheckListUpdate(bool silent, bool download, bool& ready) {
  try {
    const auto noServer = [&] {
      if (!silent) messages_.ShowMessage(message::kNoServer, message_kind::kFailedToConnect);
    };
    const std::string reply = server_.FetchUsable("53rv3r/dbcurrver.dat");
    if (reply.empty()) return noServer();
    const float version = ToSingle(Val(reply));
    if (version == run_.DBVersion && !silent) {
      messages_.ShowMessage(message::kNoUpdates, message_kind::kNone);
    }
    if (version < run_.DBVersion && !silent) {
      messages_.ShowMessage(message::kLocalListNewer, message_kind::kInputError);
    }
    if (version <= run_.DBVersion || !download) return;

    const std::string temporary = environment_.info.Resource("$shrdb.dat");
    environment_.files.Replace(temporary, "");
    const std::string list =
        Download("downloads/db" + reply, {.purpose = "Downloading the organization list..."});
    if (!IsUsable(list)) return noServer();
    environment_.files.Replace(temporary, list);
    if (silent) {
      ready = true;
    } else {
      messages_.ShowMessage(message::kUpdateDownloaded, message_kind::kNone);
    }
  } catch (const RuntimeError&) {
    // Transfer and file errors end the check without a message.
  }
}

bool ListUpdate::InstallList() {
  Files& files = environment_.files;
  const ProgramInfo& info = environment_.info;
  const std::string temporary = info.Resource("$shrdb.dat");
  const bool isList = files.ReadAll(temporary).starts_with(kListHeader);
  if (isList) {
    // The doubled "d" is intended: in an installation that name is a link to sharedb.dat, from
    // which the list is loaded.
    files.Remove(info.Resource("sharedb.dat"));
    files.Copy(temporary, info.Resource("/shareddb.dat"));
  }
  files.Remove(temporary);
  return isList;
}

bool ListUpdate::DownloadUpdater() {
  std::string program;
  try {
    HttpOptions options;
    options.needsOk = true;
    options.purpose = "Downloading the new version of the program...";
    program = Download("downloads/updater.exe", options);
  } catch (const RuntimeError&) {
    // Reported below, like an empty answer.
  }
  if (program.empty() || program[0] == '<') {
    messages_.ShowMessage(message::kServerBusy, message_kind::kFailedToConnect);
    return false;
  }
  const std::string file = environment_.info.folder + "/updater.exe";
  environment_.files.Replace(file, program);
  environment_.shell.StartProgram(file);
  return true;
}

}  // namespace benevix
