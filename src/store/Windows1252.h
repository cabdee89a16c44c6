#pragma once

#include <string>
#include <string_view>

// The program's text is Windows-1252, as its data files are; other programs read UTF-8.

// Text of the program (Windows-1252) as UTF-8, and back; what has no place there becomes "?".
std::string AnsiToUtf8(std::string_view text);
std::string Utf8ToAnsi(std::string_view text);
