#include "controls/directory.h"

namespace benevix {

NamedControl NamedAlone(const std::string& name, AnyControl any) {
  const auto bracket = name.find('(');
  if (bracket == std::string::npos) return {name, -1, any};
  return {name.substr(0, bracket), std::stoi(name.substr(bracket + 1)), any};
}

}  // namespace benevix
