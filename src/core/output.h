#pragma once

#include <functional>
#include <string>

#include "platform/environment.h"

namespace benevix {

// What leaves the program on paper or as a file. Each routine returns what the user should be told:
// the name of the file, or what went wrong; empty when there is nothing to say.

// Asks for a file, with `name` as a proposal, and writes there what `bytes` makes.
std::string SaveAs(Environment& environment, const std::string& title, const std::string& name,
                   const std::function<std::string()>& bytes);

// Without a printer the document can be saved as a PDF file.
std::string PrintOrSave(Environment& environment, const PrintDocument& document,
                        const std::string& name);

}  // namespace benevix
