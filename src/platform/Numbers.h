#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace platform {

// Number formats of the one fixed locale (United States English).
std::string FormatCurrency(double value);  // $1,234.50, negative as ($1,234.50)
std::string FormatFixed(double value, int decimals, bool groupThousands);  // 1,234.50

// The platform's reading of numbers from text. Every test for a number, `Val`, and the
// numeric input of data files go through these rules, and no other parser: there is no
// "nan", "inf" or "0x" form. A number is decimal with an optional sign, point and an
// exponent written with E or D ("1d5" is 100000), or &H hexadecimal or &O octal ("&H10"
// is 16), where up to four digits' worth is a 16-bit value ("&HFFFF" is -1) and up to
// eight a 32-bit one.

enum class NumberText { Number, NotANumber, Overflow };

// The whole text as the conversion to a number takes it: blanks around it, a "$", commas
// between the digits and parentheses for a negative amount are allowed.
NumberText ParseNumber(std::string_view text, double& value);
bool IsNumeric(std::string_view text);
// The number at the start of the text: blanks, tabs and line feeds anywhere are skipped,
// and reading stops at the first character that cannot continue the number; no number
// is 0. A value past the range of a double is Overflow (6).
double Val(std::string_view text);

// A value put into a 16-bit, 32-bit or byte variable: rounded half to even, Overflow (6)
// past the variable's range.
std::int16_t CInt(double value);
std::int32_t CLng(double value);
std::uint8_t CByte(double value);

}  // namespace platform
