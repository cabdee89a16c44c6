#pragma once

#include <QColor>
#include <QDate>
#include <QFontMetrics>
#include <QString>
#include <cstdint>
#include <string>

#include "platform/DateTime.h"

// Conversions between what the system keeps and what the widgets show.
namespace platform::qt {

// A colour as the platform stores it (blue-green-red), or a system colour by its index.
QColor ToColor(std::int32_t value);

// Labels and frames show "&x" as a plain x; "&&" is one ampersand.
QString WithoutMnemonic(const QString& text);

// The platform's buttons wrap a caption that does not fit on one line.
QString WrappedCaption(const QString& text, const QFontMetrics& metrics, int width);

// Multi-line text is kept with CR LF; the widget knows only LF.
QString ToWidgetText(const std::string& text, bool multiLine);
std::string FromWidgetText(const QString& text, bool multiLine);
// Offsets differ where the model holds CR LF and the widget one LF.
int ModelToWidget(const std::string& text, int offset, bool multiLine);
int WidgetToModel(const std::string& text, int pos, bool multiLine);

QDate ToQDate(DateTime d);
DateTime FromQDate(QDate d);

}  // namespace platform::qt
