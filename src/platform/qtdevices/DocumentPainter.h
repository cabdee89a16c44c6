#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <string_view>

#include "platform/Printer.h"

class QPainter;

namespace platform {

QString FromAnsi(std::string_view text);  // Windows-1252 bytes
QColor ToQColor(std::int32_t color);      // &H00BBGGRR
QFont ToQFont(const PrintFont& font);

// Paints a page whose operations are in twips onto a device of the given resolution, with
// (0, 0) at the paper's corner. With fitToRecordedWidths, each text is stretched or squeezed
// to the width the headless recorder measured for it.
void PaintPage(QPainter& painter, const PrintedPage& page, double dotsPerInch,
               bool fitToRecordedWidths);

}  // namespace platform
