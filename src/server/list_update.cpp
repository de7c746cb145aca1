#include "server/list_update.h"

#include "base/number_text.h"
#include "base/runtime_error.h"
#include "database/organization_list.h"
#include "platform/line_reader.h"

namespace benevix {
namespace {

// Of a list's first line.
float VersionIn(const std::string& list) {
  return list.starts_with(kListHeader) ? ToSingle(Val(list.substr(kListHeader.size()))) : 0;
}

}  // namespace

std::unique_ptr<FolderLock> ListUpdate::Lock(std::chrono::milliseconds patience) {
  return environment_.files.Lock(environment_.info.folder / "Resources", patience);
}

FilePath ListUpdate::Downloaded() const {
  return environment_.info.Resource("$shrdb.dat");
}

ListCheck ListUpdate::CheckListUpdate(bool silent, bool download, bool& ready) {
  try {
    const auto noServer = [&] {
      if (!silent) messages_.ShowMessage(message::kNoServer, message_kind::kFailedToConnect);
    };
    const std::string reply = server_.FetchUsable("53rv3r/dbcurrver.dat");
    if (reply.empty()) {
      noServer();
      return {};
    }
    const float version = ToSingle(Val(reply));
    if (version == run_.DBVersion && !silent) {
      messages_.ShowMessage(message::kNoUpdates, message_kind::kNone);
    }
    if (version < run_.DBVersion && !silent) {
      messages_.ShowMessage(message::kLocalListNewer, message_kind::kInputError);
    }
    if (version <= run_.DBVersion || !download) return {};

    environment_.files.Replace(Downloaded(), "");
    const std::string path = "downloads/db" + reply;
    const std::string list =
        downloads_.Fetch(path, {.purpose = "Downloading the organization list..."});
    if (!IsUsable(list)) {
      noServer();
      return {};
    }
    downloads_.CheckSignature(path, list);
    // The version that the server tells is not signed, the one in the list is.
    if (downloads_.MustBeSigned() && VersionIn(list) <= run_.DBVersion) {
      throw RuntimeError(path + " is no newer list");
    }
    environment_.files.Replace(Downloaded(), list);
    if (silent) {
      ready = true;
    } else {
      messages_.ShowMessage(message::kUpdateDownloaded, message_kind::kNone);
    }
    return {.downloaded = true, .brokeOff = {}};
  } catch (const RuntimeError& error) {
    return {.downloaded = false, .brokeOff = error.what()};  // no message is shown
  }
}

bool ListUpdate::IsInstallable() const {
  LineReader lines(environment_.files.Open(Downloaded()));
  const auto first = lines.Next();
  return first && first->starts_with(kListHeader) &&
         ListFault(environment_.files, Downloaded()).empty();
}

bool ListUpdate::InstallList() {
  Files& files = environment_.files;
  const ProgramInfo& info = environment_.info;
  const bool isInstallable = IsInstallable();
  if (isInstallable) {
    // The doubled "d" is intended: in an installation that name is a link to sharedb.dat, from
    // which the list is loaded. Without the link that file is gone afterwards.
    const FilePath place = files.Move(Downloaded(), info.Resource("/shareddb.dat"));
    if (!place.Utf8().ends_with("/sharedb.dat")) files.Remove(info.Resource(kListFile));
  }
  files.Remove(Downloaded());
  return isInstallable;
}

bool ListUpdate::ReinstallList() {
  const bool isInstallable = IsInstallable();
  if (isInstallable) {
    environment_.files.Move(Downloaded(), environment_.info.Resource(kListFile));
  }
  environment_.files.Remove(Downloaded());
  return isInstallable;
}

}  // namespace benevix
