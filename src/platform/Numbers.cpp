#include "platform/Numbers.h"

#include <cmath>
#include <cstdio>

namespace platform {

std::string FormatFixed(double value, int decimals, bool groupThousands) {
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.*f", decimals, std::fabs(value));
    std::string digits(buf);
    const auto point = digits.find('.');
    std::string whole = digits.substr(0, point);
    const std::string fraction = point == std::string::npos ? "" : digits.substr(point);
    if (groupThousands)
        for (int i = static_cast<int>(whole.size()) - 3; i > 0; i -= 3) whole.insert(static_cast<size_t>(i), ",");
    const bool negative = value < 0 && std::stod(digits) != 0;
    return (negative ? "-" : "") + whole + fraction;
}

std::string FormatCurrency(double value) {
    std::string text = FormatFixed(value, 2, true);
    if (!text.empty() && text[0] == '-') return "($" + text.substr(1) + ")";
    return "$" + text;
}

}  // namespace platform
