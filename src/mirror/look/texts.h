#pragma once

#include <QString>
#include <string>

namespace benevix {

// Between the program's 8-bit code page and the toolkit's Unicode. Characters that the code page
// lacks are left out on the way back.
QString ToQString(const std::string& text);
std::string FromQString(const QString& text);

// The text as a widget draws it: of a very long one only the beginning, because the toolkit takes
// minutes to lay out megabytes.
QString Drawn(const std::string& text);
// A window's title: its caption and, where that does not say it, the program's name.
QString TitleOf(const std::string& caption);

// Twips are twentieths of a point: fifteen to a pixel at the 96 dots an inch that the toolkit's
// coordinates count in.
inline constexpr int kTwipsPerPixel = 15;

}  // namespace benevix
