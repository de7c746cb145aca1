#include "targets.h"

#include <cstdio>
#include <cstdlib>

namespace benevix {

void Require(bool holds, const char* property) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", property);
  std::abort();
}

const std::map<std::string, Target>& Targets() {
  static const std::map<std::string, Target> targets = {
      {"addresses", CheckAddress},       {"contacts", CheckOrganizationContacts},
      {"details", CheckContact},         {"help", CheckHelpAnchors},
      {"history", CheckHistory},         {"journal", CheckJournal},
      {"list", CheckOrganizationList},   {"news", CheckNews},
      {"numbers", CheckNumber},          {"rates", CheckRates},
      {"recall", CheckRecall},           {"settings", CheckSettings},
      {"year-to-date", CheckYearToDate},
  };
  return targets;
}

}  // namespace benevix
