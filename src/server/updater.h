#pragma once

#include "core/messages.h"
#include "platform/environment.h"
#include "server/downloads.h"

namespace benevix {

// The program's updater, which is downloaded and started.
class Updater {
 public:
  Updater(Environment& environment, Downloads& downloads, Messages& messages)
      : environment_(environment), downloads_(downloads), messages_(messages) {}

  // Downloads and starts the updater; true if the program must end for it. Nothing is saved or
  // started, and the user is told why, when it could have been changed on the way (it comes neither
  // over https nor from this machine), is not signed where it has to be, or when the installation
  // is not the user's own. An answer that is empty, a web page or of another status than 200 is
  // reported with message 8. Raises RuntimeError if the file cannot be written or started.
  bool Download();

 private:
  // Gives false.
  bool Refuse(const std::string& reason);

  Environment& environment_;
  Downloads& downloads_;
  Messages& messages_;
};

}  // namespace benevix
