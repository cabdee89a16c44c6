#pragma once

#include <cstdint>
#include <string>

namespace platform {
class TextBox;
}

// Small checks the screens run while the user types.

void ShowCalendarError();
// Key filter for fields that end up in comma-separated files or paths; 0 refuses the key.
std::int16_t CheckKey(int keyAscii, platform::TextBox& field);
// The name parts without surplus blanks; the third part is not used.
std::string JoinName(const std::string& first, const std::string& second, const std::string& third,
                     const std::string& fourth);
