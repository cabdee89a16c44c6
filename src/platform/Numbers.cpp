#include "platform/Numbers.h"

#include <charconv>
#include <cmath>
#include <cstdio>

#include "platform/RuntimeError.h"

namespace platform {

std::string FormatFixed(double value, int decimals, bool groupThousands) {
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.*f", decimals, std::fabs(value));
    std::string digits(buf);
    const auto point = digits.find('.');
    std::string whole = digits.substr(0, point);
    const std::string fraction = point == std::string::npos ? "" : digits.substr(point);
    if (groupThousands)
        for (int i = static_cast<int>(whole.size()) - 3; i > 0; i -= 3)
            whole.insert(static_cast<size_t>(i), ",");
    const bool negative = value < 0 && digits.find_first_not_of("0.") != std::string::npos;
    return (negative ? "-" : "") + whole + fraction;
}

std::string FormatCurrency(double value) {
    std::string text = FormatFixed(value, 2, true);
    if (!text.empty() && text[0] == '-') return "($" + text.substr(1) + ")";
    return "$" + text;
}

namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsExponentMark(char c) {
    return c == 'e' || c == 'E' || c == 'd' || c == 'D';
}

int DigitValue(char c, int radix) {
    int d = -1;
    if (c >= '0' && c <= '9')
        d = c - '0';
    else if (c >= 'a' && c <= 'f')
        d = c - 'a' + 10;
    else if (c >= 'A' && c <= 'F')
        d = c - 'A' + 10;
    return d < radix ? d : -1;
}

// The radix of "&H" or "&O" at the start of the text; 0 when there is none.
int RadixPrefix(std::string_view text) {
    if (text.size() < 2 || text[0] != '&') return 0;
    if (text[1] == 'H' || text[1] == 'h') return 16;
    if (text[1] == 'O' || text[1] == 'o') return 8;
    return 0;
}

struct Digits {
    size_t count = 0;  // digits read
    size_t end = 0;    // position after them
    bool overflow = false;
    double value = 0;
};

// Hexadecimal or octal digits from `pos` as far as they go. Up to 16 bits the value is
// that of a 16-bit integer, up to 32 bits that of a 32-bit one; more is Overflow.
Digits ReadRadixDigits(std::string_view text, size_t pos, int radix) {
    Digits r;
    std::uint64_t v = 0;
    for (; pos < text.size(); ++pos) {
        const int d = DigitValue(text[pos], radix);
        if (d < 0) break;
        ++r.count;
        if (v > 0xFFFFFFFFull)
            r.overflow = true;
        else
            v = v * static_cast<std::uint64_t>(radix) + static_cast<std::uint64_t>(d);
    }
    r.end = pos;
    if (v > 0xFFFFFFFFull) r.overflow = true;
    const auto wide = static_cast<std::int64_t>(v);
    if (v <= 0xFFFF)
        r.value = static_cast<double>(v > 0x7FFF ? wide - 0x10000 : wide);
    else
        r.value = static_cast<double>(v > 0x7FFFFFFF ? wide - 0x100000000LL : wide);
    return r;
}

// A decimal number taken apart: sign, the digits with the point, and the exponent.
struct Decimal {
    std::string mantissa;  // digits and at most one point
    bool negative = false;
    long exponent = 0;
    size_t digits = 0;
};

// Reads digits, a point and digits from `pos`; commas between digits are skipped when
// `commas` allows them.
size_t ReadMantissa(std::string_view t, size_t p, bool commas, Decimal& d) {
    while (p < t.size()) {
        if (IsDigit(t[p])) {
            d.mantissa += t[p++];
            ++d.digits;
        } else if (commas && t[p] == ',' && d.digits > 0 && p + 1 < t.size() && IsDigit(t[p + 1])) {
            ++p;
        } else {
            break;
        }
    }
    if (p < t.size() && t[p] == '.') {
        d.mantissa += t[p++];
        while (p < t.size() && IsDigit(t[p])) {
            d.mantissa += t[p++];
            ++d.digits;
        }
    }
    return p;
}

// An exponent mark with its optional sign and digits at `p`; returns `p` unchanged when
// no digit follows the mark.
size_t ReadExponent(std::string_view t, size_t p, Decimal& d) {
    if (p >= t.size() || !IsExponentMark(t[p])) return p;
    size_t q = p + 1;
    bool negative = false;
    if (q < t.size() && (t[q] == '+' || t[q] == '-')) negative = t[q++] == '-';
    if (q >= t.size() || !IsDigit(t[q])) return p;
    long value = 0;
    for (; q < t.size() && IsDigit(t[q]); ++q)
        if (value < 100000) value = value * 10 + (t[q] - '0');
    d.exponent = negative ? -value : value;
    return q;
}

// The value of the decimal number, without the locale: false when it is past the range of
// a double. A value too small to hold is 0.
bool DecimalValue(const Decimal& d, double& value) {
    std::string text = d.mantissa + "e" + std::to_string(d.exponent);
    double v = 0;
    const auto res = std::from_chars(text.data(), text.data() + text.size(), v);
    if (res.ec == std::errc::result_out_of_range) {
        // Too large or too small: the order of magnitude of the first significant digit tells.
        const size_t point = d.mantissa.find('.');
        const size_t whole = point == std::string::npos ? d.mantissa.size() : point;
        const size_t first = d.mantissa.find_first_of("123456789");
        if (first == std::string::npos) {
            v = 0;
        } else {
            // 10 to the power (order - 1) is the place of the first significant digit.
            const long order = static_cast<long>(whole) - static_cast<long>(first) +
                               (first > whole ? 1 : 0) + d.exponent;
            if (order > 0) return false;
            v = 0;
        }
    } else if (res.ec != std::errc() || !std::isfinite(v)) {
        return false;
    }
    value = d.negative ? -v : v;
    return true;
}

}  // namespace

NumberText ParseNumber(std::string_view text, double& value) {
    size_t b = 0;
    size_t e = text.size();
    while (b < e && IsBlank(text[b])) ++b;
    while (e > b && IsBlank(text[e - 1])) --e;
    const std::string_view t = text.substr(b, e - b);
    if (const int radix = RadixPrefix(t)) {
        const Digits r = ReadRadixDigits(t, 2, radix);
        if (r.count == 0 || r.end != t.size()) return NumberText::NotANumber;
        if (r.overflow) return NumberText::Overflow;
        value = r.value;
        return NumberText::Number;
    }
    Decimal d;
    size_t p = 0;
    bool currency = false;
    bool signed_ = false;
    bool parenthesis = false;
    // A "$" and a sign or an opening parenthesis, in either order.
    for (int k = 0; k < 2 && p < t.size(); ++k) {
        if (t[p] == '$' && !currency) {
            currency = true;
            ++p;
        } else if (!signed_ && (t[p] == '+' || t[p] == '-' || t[p] == '(')) {
            signed_ = true;
            d.negative = t[p] != '+';
            parenthesis = t[p] == '(';
            ++p;
        }
    }
    p = ReadMantissa(t, p, true, d);
    if (d.digits == 0) return NumberText::NotANumber;
    if (p < t.size() && IsExponentMark(t[p])) {
        const size_t after = ReadExponent(t, p, d);
        if (after == p) return NumberText::NotANumber;
        p = after;
    }
    if (parenthesis) {
        if (p >= t.size() || t[p] != ')') return NumberText::NotANumber;
        ++p;
    }
    if (p != t.size()) return NumberText::NotANumber;
    return DecimalValue(d, value) ? NumberText::Number : NumberText::Overflow;
}

bool IsNumeric(std::string_view text) {
    double value;
    return ParseNumber(text, value) == NumberText::Number;
}

double Val(std::string_view text) {
    std::string t;
    for (char c : text)
        if (c != ' ' && c != '\t' && c != '\n') t += c;
    if (const int radix = RadixPrefix(t)) {
        const Digits r = ReadRadixDigits(t, 2, radix);
        if (r.overflow) Raise(err::Overflow, "Val");
        return r.value;
    }
    Decimal d;
    size_t p = 0;
    if (p < t.size() && (t[p] == '+' || t[p] == '-')) d.negative = t[p++] == '-';
    p = ReadMantissa(t, p, false, d);
    if (d.digits == 0) return 0;
    ReadExponent(t, p, d);
    double value = 0;
    if (!DecimalValue(d, value)) Raise(err::Overflow, "Val");
    return value;
}

namespace {

double RoundedWithin(double value, double low, double high) {
    const double rounded = std::nearbyint(value);  // half to even
    if (!(rounded >= low && rounded <= high)) Raise(err::Overflow);
    return rounded;
}

}  // namespace

std::int16_t CInt(double value) {
    return static_cast<std::int16_t>(RoundedWithin(value, -32768.0, 32767.0));
}

std::int32_t CLng(double value) {
    return static_cast<std::int32_t>(RoundedWithin(value, -2147483648.0, 2147483647.0));
}

std::uint8_t CByte(double value) {
    return static_cast<std::uint8_t>(RoundedWithin(value, 0.0, 255.0));
}

}  // namespace platform
