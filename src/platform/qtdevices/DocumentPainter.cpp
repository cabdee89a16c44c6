#include "platform/qtdevices/DocumentPainter.h"

#include <QFile>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPen>
#include <algorithm>

#include "platform/headless/HeadlessPrinter.h"
#include "platform/qtdevices/MetricFonts.h"

namespace platform {

namespace {

// Windows-1252 0x80 to 0x9F; the rest of the code page is Latin-1.
constexpr char16_t kCp1252High[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

// Line widths count printer dots as on a 600 dpi printer, whatever the device.
constexpr double kDrawWidthDotsPerInch = 600;

QString PicturePath(const std::string& path) {
    QString qpath = QString::fromLocal8Bit(path.data(), static_cast<qsizetype>(path.size()));
    if (!QFile::exists(qpath) && qpath.contains(QLatin1Char('\\'))) {
        qpath.replace(QLatin1Char('\\'), QLatin1Char('/'));
    }
    return qpath;
}

}  // namespace

QString FromAnsi(std::string_view text) {
    QString result;
    result.reserve(static_cast<qsizetype>(text.size()));
    for (char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        result.append(byte >= 0x80 && byte < 0xA0 ? QChar(kCp1252High[byte - 0x80]) : QChar(byte));
    }
    return result;
}

QColor ToQColor(std::int32_t color) {
    return QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
}

QFont ToQFont(const PrintFont& font) {
    MapWindowsFonts();
    QFont qfont(QString::fromStdString(font.name));
    qfont.setStyleHint(QFont::SansSerif);
    qfont.setPointSizeF(font.size);
    qfont.setBold(font.bold);
    qfont.setUnderline(font.underline);
    qfont.setItalic(font.italic);
    return qfont;
}

void PaintPage(QPainter& painter, const PrintedPage& page, double dotsPerInch,
               bool fitToRecordedWidths) {
    const double scale = dotsPerInch / kTwipsPerInch;
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
    for (const PrintOperation& op : page.operations) {
        switch (op.kind) {
            case PrintOperation::Kind::Text: {
                const QFont font = ToQFont(op.font);
                painter.setFont(font);
                painter.setPen(ToQColor(op.color));
                const QFontMetricsF metrics(font, painter.device());
                const QString text = FromAnsi(op.text);
                // The position is the top of the text cell; Qt draws on the baseline.
                const QPointF baseline(op.x * scale, op.y * scale + metrics.ascent());
                const double drawn = metrics.horizontalAdvance(text);
                const double measured = RecordingPrinter().TextWidth(op.font, op.text) * scale;
                painter.save();
                painter.translate(baseline);
                if (fitToRecordedWidths && drawn > 0 && measured > 0) {
                    painter.scale(measured / drawn, 1.0);
                }
                painter.drawText(QPointF(0, 0), text);
                painter.restore();
                break;
            }
            case PrintOperation::Kind::Line: {
                const QRectF corners(QPointF(op.x * scale, op.y * scale),
                                     QPointF(op.x2 * scale, op.y2 * scale));
                if (op.shape == LineShape::FilledBox) {
                    painter.fillRect(corners.normalized(), ToQColor(op.color));
                    break;
                }
                QPen pen(ToQColor(op.color));
                pen.setWidthF(std::max(1.0, op.drawWidth * dotsPerInch / kDrawWidthDotsPerInch));
                pen.setCapStyle(Qt::SquareCap);
                painter.setPen(pen);
                painter.setBrush(Qt::NoBrush);
                if (op.shape == LineShape::Box) {
                    painter.drawRect(corners.normalized());
                } else {
                    painter.drawLine(corners.topLeft(), corners.bottomRight());
                }
                break;
            }
            case PrintOperation::Kind::Picture: {
                const QImage image(PicturePath(op.text));
                if (image.isNull()) break;  // a picture that cannot be read prints as nothing
                painter.drawImage(
                    QRectF(op.x * scale, op.y * scale, op.width() * scale, op.height() * scale),
                    image);
                break;
            }
        }
    }
}

}  // namespace platform
