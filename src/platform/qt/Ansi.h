#pragma once

#include <QString>
#include <string>

// Text in the system is Windows-1252 bytes; the widgets speak Unicode. Every string
// crosses here, so accented names survive a round trip through a text box.
namespace platform::qt {

QString FromAnsi(const std::string& bytes);
// Characters the code page lacks become "?", as the platform's own conversion does.
std::string ToAnsi(const QString& text);
// One typed character as the code page's byte, 0 when it has none.
int AnsiOf(QChar ch);

}  // namespace platform::qt
