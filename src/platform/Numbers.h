#pragma once

#include <string>

namespace platform {

// Number formats of the one fixed locale (United States English).
std::string FormatCurrency(double value);  // $1,234.50, negative as ($1,234.50)
std::string FormatFixed(double value, int decimals, bool groupThousands);  // 1,234.50

}  // namespace platform
