#pragma once

#include <map>
#include <string>
#include <string_view>

namespace benevix {

// Ends the process with the property's name when it does not hold.
void Require(bool holds, const char* property);

// Each reads an input of its kind and requires what must hold for any bytes whatsoever.
void CheckAddress(std::string_view input);
void CheckContact(std::string_view input);
void CheckHelpAnchors(std::string_view input);
void CheckHistory(std::string_view input);
void CheckJournal(std::string_view input);
void CheckNews(std::string_view input);
void CheckNumber(std::string_view input);  // the number, and in a second line a pattern
void CheckOrganizationContacts(std::string_view input);
void CheckOrganizationList(std::string_view input);
void CheckRates(std::string_view input);
void CheckRecall(std::string_view input);
void CheckSettings(std::string_view input);  // a value, and in the lines below the file
void CheckYearToDate(std::string_view input);

// By the name of their folder in corpus.
using Target = void (*)(std::string_view);
const std::map<std::string, Target>& Targets();

}  // namespace benevix
