#include "store/Windows1252.h"

#include <array>

namespace {

// Windows-1252 characters 0x80 to 0x9F; 0 where the code page has none.
constexpr std::array<char32_t, 32> kCp1252High = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

void AppendUtf8(std::string& out, char32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

}  // namespace

std::string AnsiToUtf8(std::string_view text) {
    std::string out;
    for (char ch : text) {
        const auto c = static_cast<unsigned char>(ch);
        if (c >= 0x80 && c < 0xA0) {
            const char32_t mapped = kCp1252High[c - 0x80];
            AppendUtf8(out, mapped ? mapped : U'?');
        } else {
            AppendUtf8(out, c);
        }
    }
    return out;
}

std::string Utf8ToAnsi(std::string_view text) {
    std::string out;
    size_t i = 0;
    while (i < text.size()) {
        const auto lead = static_cast<unsigned char>(text[i++]);
        size_t extra = 0;
        char32_t c = lead;
        if ((lead & 0xE0) == 0xC0) {
            extra = 1, c = lead & 0x1F;
        } else if ((lead & 0xF0) == 0xE0) {
            extra = 2, c = lead & 0x0F;
        } else if ((lead & 0xF8) == 0xF0) {
            extra = 3, c = lead & 0x07;
        } else if (lead >= 0x80) {
            out += '?';
            continue;
        }
        bool whole = i + extra <= text.size();
        for (size_t k = 0; whole && k < extra; ++k) {
            const auto next = static_cast<unsigned char>(text[i + k]);
            whole = (next & 0xC0) == 0x80;
            c = (c << 6) | (next & 0x3F);
        }
        if (!whole) {
            out += '?';
            continue;
        }
        i += extra;
        if (c < 0x80 || (c >= 0xA0 && c < 0x100)) {
            out += static_cast<char>(c);
            continue;
        }
        char mapped = '?';
        for (size_t k = 0; k < kCp1252High.size(); ++k)
            if (kCp1252High[k] == c) mapped = static_cast<char>(0x80 + k);
        out += mapped;
    }
    return out;
}
