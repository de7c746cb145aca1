#include "server/list_at_start.h"

#include "base/runtime_error.h"
#include "database/organization_list.h"

namespace benevix {
namespace {

// For another copy of the program that repairs the same list.
constexpr std::chrono::seconds kPatience{2};

}  // namespace

void ListAtStart::Update() {
  try {
    const auto lock = update_.Lock();
    if (!lock) return;
    database_.ReadListVersion();
    bool ready = false;
    update_.CheckListUpdate(true, true, ready);
    updated_ = ready && update_.InstallList();
  } catch (const RuntimeError&) {
    // The list that is there is good enough to start with.
  }
}

void ListAtStart::Load() {
  const std::string fault = Fault();
  if (fault.empty()) return;
  const auto tell = [&](const std::string& what) {
    messages_.Show("The organization list could not be used (" + fault + "). " + what,
                   BoxIcon::Information);
  };
  if (FetchAgain()) return tell("It was fetched again from the server.");
  if (UseInstalled()) return tell("The one that was installed with the program is used instead.");
  database_.LoadOrganizationList();
}

std::string ListAtStart::Fault() {
  try {
    database_.LoadOrganizationList();
    return database_.List()->Fault();
  } catch (const RuntimeError& error) {
    return error.what();
  }
}

bool ListAtStart::FetchAgain() {
  // A list that was fetched just now would not get better.
  if (!run_.ServerOK || updated_) return false;
  try {
    const auto lock = update_.Lock(kPatience);
    if (!lock) return false;
    if (Fault().empty()) return true;  // another copy was faster
    run_.DBVersion = 0;
    bool ready = false;
    update_.CheckListUpdate(true, true, ready);
    return ready && update_.ReinstallList() && Fault().empty();
  } catch (const RuntimeError&) {
    return false;
  }
}

bool ListAtStart::UseInstalled() {
  const ProgramInfo& info = environment_.info;
  const FilePath installed = info.installed / "Resources" / kListFile;
  if (info.installed.IsEmpty() || !ListFault(environment_.files, installed).empty()) return false;
  try {
    environment_.files.Link(installed, info.Resource(kListFile));
  } catch (const RuntimeError&) {
    return false;
  }
  return Fault().empty();
}

}  // namespace benevix
