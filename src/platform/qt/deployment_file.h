#pragma once

#include <string>

#include "platform/program_info.h"

namespace benevix {

// Reads deployment.ini: UTF-8 lines "Key=Value", blanks around key and value ignored; lines that
// begin with # or ; are comments. The keys are the members of Deployment with a capital first
// letter; PaymentIn=browser and UpdateKey may be left out. Raises RuntimeError with the file's
// name, and the key's, when the file cannot be read, a key is missing or empty, a value has
// characters that the code page lacks, ServerBase is not an http or https address that ends in "/",
// PaymentBase is none, PaymentIn names no place, or UpdateKey is no public key.
Deployment ReadDeployment(const std::string& file);

}  // namespace benevix
