#pragma once

namespace benevix {

// Program-wide values that do not belong to a session.
struct RunValues {
  bool ServerOK = false;  // the server's status when last asked
  float DBVersion = 0;    // version of the organization list
  int YtdState = 0;       // 0 no year-to-date table in this run, 1 downloaded, 2 malformed
  int PlatformCode = 0;   // see GetPlatformCode
  // False while another copy runs on the same program folder. The year-to-date table and the
  // journal there are that one's then.
  bool HoldsFolder = false;
};

// The code of the operating system's platform identifier; 0 for an unknown one.
constexpr int GetPlatformCode(int platformId) {
  switch (platformId) {
    case 0:
      return 3;
    case 1:
      return 9;
    case 2:
      return 1;
    default:
      return 0;
  }
}

}  // namespace benevix
