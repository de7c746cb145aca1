#pragma once

#include <string>
#include <string_view>

namespace benevix {

// What the demonstration's translation service answers. It knows the names of a few languages and
// nothing else: a page comes back word for word below a line that says so.
//
// Takes the languages as "FROM/TO", each a code ("en") or an English name ("English"), and the page
// as 8-bit text (Windows-1252). The answer is what the program wants of such a service: behind its
// first ">" stands plain text with entities; for a language that it does not know, "error".
std::string Interpret(std::string_view languages, std::string_view page);

}  // namespace benevix
