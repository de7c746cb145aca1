#pragma once

namespace benevix {

// Program-wide values that are no part of a session.
struct RunValues {
  bool ServerOK = false;  // the server answered "server ok" when last asked
  float DBVersion = 0;    // version of the organization list
  int YtdState = 0;       // 0 no year-to-date table in this run, 1 downloaded, 2 found damaged
  int PlatformCode = 0;   // of the operating system
};

// 3, 9, 1 or 0 by the operating system's platform identifier 0, 1, 2 or any other.
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
