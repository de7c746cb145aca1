#pragma once

#include <string>

namespace benevix {

// Values of deployment.ini.
struct Deployment {
  std::string serverBase;   // http or https, ends in "/"
  std::string paymentBase;  // ends in "/xclick/business=" at the payment service
  std::string mail;         // the application's own mail address
  std::string translationName;
  std::string translationBase;
  std::string copyright;
  std::string product;
};

// What the program knows of itself from its start on.
struct ProgramInfo {
  std::string folder;   // the program folder, UTF-8, no slash at the end
  std::string exeName;  // the executable's file name without folder and extension
  int major = 0, minor = 0, revision = 0;
  int platformId = 2;                             // as the operating system reports it
  int screenWidth = 15360, screenHeight = 11520;  // twips
  Deployment deployment;

  [[nodiscard]] std::string Version() const {
    return std::to_string(major) + "." + std::to_string(minor) + "." + std::to_string(revision);
  }
  // A file of the Resources folder.
  [[nodiscard]] std::string Resource(const std::string& name) const {
    return folder + "/Resources/" + name;
  }
};

}  // namespace benevix
