#pragma once

#include <string>

#include "platform/program_info.h"

namespace benevix {

// Reads deployment.ini: lines "Key=Value" in UTF-8, a value being everything behind the first "="
// without the blanks at its ends; lines that begin with # or ; are notes. The keys are named as
// the members of Deployment, but begin with a capital. Raises RuntimeError that names the file and
// the key when the file cannot be read, a key is missing or empty, a value has characters that the
// code page lacks, or ServerBase is no http or https address that ends in "/".
Deployment ReadDeployment(const std::string& file);

}  // namespace benevix
