#include "platform/qt/WidgetText.h"

#include <QApplication>
#include <QPalette>
#include <QStringList>

#include "platform/qt/Ansi.h"

namespace platform::qt {

QColor ToColor(std::int32_t value) {
    const auto raw = static_cast<std::uint32_t>(value);
    if (raw & 0x80000000u) {  // a system colour by its index
        const QPalette pal = QApplication::palette();
        switch (raw & 0xFF) {
            case 5:
                return pal.color(QPalette::Base);
            case 8:
                return pal.color(QPalette::Text);
            case 13:
                return pal.color(QPalette::Highlight);
            case 14:
                return pal.color(QPalette::HighlightedText);
            case 18:
                return pal.color(QPalette::ButtonText);
            case 15:
                return pal.color(QPalette::Button);
            default:
                return pal.color(QPalette::Window);
        }
    }
    return QColor(raw & 0xFF, (raw >> 8) & 0xFF, (raw >> 16) & 0xFF);
}

QString WithoutMnemonic(const QString& text) {
    QString out;
    out.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'&' && i + 1 < text.size()) {
            ++i;
        }
        out.append(text[i]);
    }
    return out;
}

QString WrappedCaption(const QString& text, const QFontMetrics& metrics, int width) {
    if (width <= 0 || metrics.horizontalAdvance(WithoutMnemonic(text)) <= width) return text;
    const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    QString out, line;
    for (const QString& word : words) {
        const QString candidate = line.isEmpty() ? word : line + u' ' + word;
        if (!line.isEmpty() && metrics.horizontalAdvance(WithoutMnemonic(candidate)) > width) {
            out += line + u'\n';
            line = word;
        } else {
            line = candidate;
        }
    }
    return out + line;
}

QString ToWidgetText(const std::string& text, bool multiLine) {
    QString q = FromAnsi(text);
    if (multiLine) q.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return q;
}

std::string FromWidgetText(const QString& text, bool multiLine) {
    if (!multiLine) return ToAnsi(text);
    QString q = text;
    q.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
    return ToAnsi(q);
}

namespace {
bool CrLfAt(const std::string& text, int i) {
    return text[static_cast<size_t>(i)] == '\r' && i + 1 < static_cast<int>(text.size()) &&
           text[static_cast<size_t>(i) + 1] == '\n';
}
}  // namespace

int ModelToWidget(const std::string& text, int offset, bool multiLine) {
    if (!multiLine) return offset;
    int pos = 0;
    for (int i = 0; i < offset && i < static_cast<int>(text.size()); ++i)
        if (!CrLfAt(text, i)) ++pos;
    return pos;
}

int WidgetToModel(const std::string& text, int pos, bool multiLine) {
    if (!multiLine) return pos;
    int seen = 0;
    int i = 0;
    for (; i < static_cast<int>(text.size()) && seen < pos; ++i) {
        if (CrLfAt(text, i)) continue;
        ++seen;
    }
    return i;
}

QDate ToQDate(DateTime d) {
    return QDate(d.Year(), d.Month(), d.Day());
}

DateTime FromQDate(QDate d) {
    return DateTime::FromYmd(d.year(), d.month(), d.day());
}

}  // namespace platform::qt
