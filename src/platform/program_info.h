#pragma once

#include <string>

#include "base/file_path.h"

namespace benevix {

// The values of deployment.ini, in the code page.
struct Deployment {
  std::string serverBase;   // http or https address that ends in "/"
  std::string paymentBase;  // of the payment service, ends in "/xclick/business="
  std::string mail;         // the application's own mail address
  std::string translationName;
  std::string translationBase;
  std::string copyright;
  std::string product;
  // Where updates and lists are signed: the public key (platform/signature.h), otherwise empty.
  std::string updateKey = {};
  bool paymentInBrowser = false;  // not in the page viewer
};

// Facts about the program and its machine, set once at start-up.
struct ProgramInfo {
  FilePath folder;  // the program folder
  // The folder of the installation where that is another one and the program folder is the user's
  // own; its Resources are only read.
  FilePath installed;
  std::string exeName;  // file name of the executable without folder and extension
  int major = 0, minor = 0, revision = 0;
  int platformId = 2;                             // as the operating system reports it
  int screenWidth = 15360, screenHeight = 11520;  // twips
  Deployment deployment;

  [[nodiscard]] std::string Version() const {
    return std::to_string(major) + "." + std::to_string(minor) + "." + std::to_string(revision);
  }
  // A file of the Resources folder.
  [[nodiscard]] FilePath Resource(const FilePath& name) const {
    return folder / "Resources" / name;
  }
};

}  // namespace benevix
