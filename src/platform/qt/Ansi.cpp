#include "platform/qt/Ansi.h"

namespace platform::qt {
namespace {

// 0x80 to 0x9F, the only range where the code page differs from Latin-1. The five
// unassigned bytes pass through as the C1 controls of the same number.
constexpr char16_t kHighControls[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  //
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

}  // namespace

QString FromAnsi(const std::string& bytes) {
    QString text;
    text.reserve(static_cast<qsizetype>(bytes.size()));
    for (unsigned char b : bytes)
        text.append(QChar(b >= 0x80 && b < 0xA0 ? kHighControls[b - 0x80] : char16_t(b)));
    return text;
}

int AnsiOf(QChar ch) {
    const char16_t u = ch.unicode();
    if (u < 0x80 || (u >= 0xA0 && u < 0x100)) return u;
    for (int i = 0; i < 32; ++i)
        if (kHighControls[i] == u) return 0x80 + i;
    return 0;
}

std::string ToAnsi(const QString& text) {
    std::string bytes;
    bytes.reserve(static_cast<size_t>(text.size()));
    for (QChar ch : text) {
        const int b = AnsiOf(ch);
        bytes.push_back(b == 0 && ch.unicode() != 0 ? '?' : static_cast<char>(b));
    }
    return bytes;
}

}  // namespace platform::qt
