#pragma once

#include <string>
#include <string_view>

namespace benevix {

// Texts are bytes of the program's 8-bit code page, Windows-1252.

unsigned char LowerCaseOf(unsigned char c);
bool SameLetter(char a, char b);  // whatever the case
std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);

// Whether the text begins with the word, whatever the case of the letters.
bool BeginsWith(std::string_view text, std::string_view word);

// Without the blanks at both ends.
std::string_view Trim(std::string_view text);

// Between the code page and UTF-8. FromUtf8 sets `lost` when a character has no place in the code
// page or the bytes are no UTF-8; such characters are left out.
std::string ToUtf8(std::string_view text);
std::string FromUtf8(std::string_view text, bool* lost = nullptr);

// The code of a character in the code page, or -1 when it has none.
int CodePageByte(char32_t character);

// The Unicode character of a code page byte.
char32_t CodePageCharacter(unsigned char byte);

}  // namespace benevix
