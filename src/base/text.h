#pragma once

#include <string>
#include <string_view>

namespace benevix {

// Texts are in the program's 8-bit code page, Windows-1252, unless they are said to be UTF-8.

unsigned char LowerCaseOf(unsigned char c);
bool SameLetter(char a, char b);  // case-insensitive
std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);

// Case-insensitive.
bool SameText(std::string_view a, std::string_view b);
bool BeginsWith(std::string_view text, std::string_view word);

// Without leading and trailing blanks (0x20 only).
std::string_view Trim(std::string_view text);

// Between the code page and UTF-8. FromUtf8 leaves out invalid bytes and characters that the code
// page lacks, and sets `lost` to whether there were any.
std::string ToUtf8(std::string_view text);
std::string FromUtf8(std::string_view text, bool* lost = nullptr);

// The code page byte of a Unicode character, or -1 when it has none.
int CodePageByte(char32_t character);

// The Unicode character of a code page byte.
char32_t CodePageCharacter(unsigned char byte);

}  // namespace benevix
