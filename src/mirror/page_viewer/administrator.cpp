#include "mirror/page_viewer/administrator.h"

#include <unistd.h>

namespace benevix {

bool RunsAsAdministrator() {
  return geteuid() == 0;
}

}  // namespace benevix
