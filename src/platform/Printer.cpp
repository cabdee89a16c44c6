#include "platform/Printer.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "platform/Dialogs.h"
#include "platform/RuntimeError.h"
#include "platform/headless/HeadlessPrinter.h"

namespace platform {

namespace {

PrinterDevice* installedDevice = nullptr;
bool previewOn = false;

std::string Number(double value) {
    char buffer[32];
    if (value == std::floor(value)) {
        std::snprintf(buffer, sizeof buffer, "%.0f", value);
    } else {
        std::snprintf(buffer, sizeof buffer, "%.2f", value);
    }
    return buffer;
}

std::string FontText(const PrintFont& font) {
    std::string text = font.name + " " + Number(font.size);
    if (font.bold) text += " bold";
    if (font.italic) text += " italic";
    if (font.underline) text += " underline";
    return text;
}

// Splits printed text at CR LF (or a lone LF or CR), as the platform's Print does.
std::vector<std::string_view> SplitLines(std::string_view text) {
    std::vector<std::string_view> lines;
    std::size_t start = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' || text[i] == '\n') {
            lines.push_back(text.substr(start, i - start));
            if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
            start = i + 1;
        }
    }
    lines.push_back(text.substr(start));
    return lines;
}

}  // namespace

std::vector<std::string> DescribeDocument(const PrintedDocument& document) {
    std::vector<std::string> lines;
    lines.push_back("document: " + std::to_string(document.pages.size()) + " page(s), " +
                    std::to_string(document.copies) + " copies, " +
                    (document.colorMode == vbPRCMColor ? "colour" : "monochrome") +
                    (document.file.empty() ? std::string() : ", to file " + document.file));
    for (const PrintedPage& page : document.pages) {
        lines.push_back("page " + std::to_string(page.number) + " " +
                        (page.orientation == vbPRORPortrait ? "portrait" : "landscape") + " " +
                        Number(page.width) + "x" + Number(page.height));
        for (const PrintOperation& op : page.operations) {
            std::string line = "  ";
            switch (op.kind) {
                case PrintOperation::Kind::Text:
                    line += "text " + Number(op.x) + "," + Number(op.y) + " " + FontText(op.font) +
                            " color " + std::to_string(op.color) + ": " + op.text;
                    break;
                case PrintOperation::Kind::Line:
                    line += std::string(op.shape == LineShape::Line  ? "line "
                                        : op.shape == LineShape::Box ? "box "
                                                                     : "filled box ") +
                            Number(op.x) + "," + Number(op.y) + "-" + Number(op.x2) + "," +
                            Number(op.y2) + " color " + std::to_string(op.color) + " width " +
                            std::to_string(op.drawWidth);
                    break;
                case PrintOperation::Kind::Picture:
                    line += "picture " + Number(op.x) + "," + Number(op.y) + " " +
                            Number(op.width()) + "x" + Number(op.height()) + ": " + op.text;
                    break;
            }
            lines.push_back(line);
        }
    }
    return lines;
}

PrinterDevice& PrinterDevices() {
    if (installedDevice) return *installedDevice;
    return RecordingPrinter();
}

void SetPrinterDevice(PrinterDevice* device) {
    installedDevice = device;
}

bool PrintPreviewOn() {
    return previewOn;
}

void SetPrintPreview(bool on) {
    previewOn = on;
}

PrinterObject& Printer() {
    static PrinterObject printer;
    return printer;
}

void PrinterObject::SetOrientation(int orientation) {
    if (orientation != vbPRORPortrait && orientation != vbPRORLandscape) {
        Raise(err::InvalidProcedureCall, "Printer.Orientation");
    }
    orientation_ = orientation;
}

void PrinterObject::SetPaperSize(int size) {
    paperSize_ = size;
    if (size == vbPRPSLetter) {
        paperWidth_ = kLetterWidth;
        paperHeight_ = kLetterHeight;
    }
}

double PrinterObject::Width() const {
    return orientation_ == vbPRORPortrait ? paperWidth_ : paperHeight_;
}

double PrinterObject::Height() const {
    return orientation_ == vbPRORPortrait ? paperHeight_ : paperWidth_;
}

void PrinterObject::SetWidth(double twips) {
    if (twips <= 0) Raise(err::InvalidProcedureCall, "Printer.Width");
    paperWidth_ = twips;
}

void PrinterObject::SetHeight(double twips) {
    if (twips <= 0) Raise(err::InvalidProcedureCall, "Printer.Height");
    paperHeight_ = twips;
}

void PrinterObject::SetFontSize(double points) {
    if (points <= 0 || points > 2160) Raise(err::InvalidProcedureCall, "Printer.FontSize");
    font_.size = points;
}

void PrinterObject::SetDrawWidth(int width) {
    if (width < 1 || width > 32767) Raise(err::InvalidProcedureCall, "Printer.DrawWidth");
    drawWidth_ = width;
}

void PrinterObject::SetCopies(int copies) {
    if (copies < 1) Raise(err::InvalidProcedureCall, "Printer.Copies");
    copies_ = copies;
}

double PrinterObject::TextWidth(std::string_view text) const {
    // The widest of its lines, as the platform measures.
    double widest = 0;
    for (std::string_view line : SplitLines(text)) {
        widest = std::max(widest, PrinterDevices().TextWidth(font_, line));
    }
    return widest;
}

double PrinterObject::TextHeight(std::string_view text) const {
    return PrinterDevices().TextHeight(font_) * static_cast<double>(SplitLines(text).size());
}

PrintedPage& PrinterObject::CurrentPage() {
    if (!open_) {
        open_ = true;
        document_ = PrintedDocument{};
    }
    // Pages skipped by NewPage without drawing stay blank.
    while (static_cast<int>(document_.pages.size()) < page_) {
        PrintedPage page;
        page.number = static_cast<int>(document_.pages.size()) + 1;
        page.orientation = orientation_;
        page.width = Width();
        page.height = Height();
        document_.pages.push_back(std::move(page));
    }
    return document_.pages.back();
}

void PrinterObject::Line(double x1, double y1, double x2, double y2, std::int32_t color,
                         LineShape shape) {
    PrintOperation op;
    op.kind = PrintOperation::Kind::Line;
    op.x = x1;
    op.y = y1;
    op.x2 = x2;
    op.y2 = y2;
    op.color = color == -1 ? foreColor_ : color;
    op.drawWidth = drawWidth_;
    op.shape = shape;
    CurrentPage().operations.push_back(std::move(op));
    currentX_ = x2;
    currentY_ = y2;
}

void PrinterObject::PaintPicture(const std::string& picturePath, double x, double y, double width,
                                 double height) {
    if (picturePath.empty()) {
        Raise(err::InvalidPicture, "Printer.PaintPicture");
    }
    PrintOperation op;
    op.kind = PrintOperation::Kind::Picture;
    op.x = x;
    op.y = y;
    op.x2 = x + width;
    op.y2 = y + height;
    op.text = picturePath;
    CurrentPage().operations.push_back(std::move(op));
}

void PrinterObject::Print(std::string_view text, PrintEnd end) {
    PrintedPage& page = CurrentPage();
    const std::vector<std::string_view> lines = SplitLines(text);
    const double lineHeight = PrinterDevices().TextHeight(font_);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i > 0) {
            // A line break inside the text starts the next line at the left edge.
            currentX_ = 0;
            currentY_ += lineHeight;
        }
        if (!lines[i].empty()) {
            PrintOperation op;
            op.kind = PrintOperation::Kind::Text;
            op.x = currentX_;
            op.y = currentY_;
            op.color = foreColor_;
            op.font = font_;
            op.text = std::string(lines[i]);
            page.operations.push_back(std::move(op));
        }
    }
    if (end == PrintEnd::Semicolon) {
        currentX_ += PrinterDevices().TextWidth(font_, lines.back());
    } else {
        currentX_ = 0;
        currentY_ += lineHeight;
    }
}

void PrinterObject::NewPage() {
    CurrentPage();
    ++page_;
    currentX_ = 0;
    currentY_ = 0;
}

void PrinterObject::EndDoc() {
    if (!open_) {
        page_ = 1;
        return;
    }
    PrintedDocument document = std::move(document_);
    document.copies = copies_;
    document.file = outputFile_;
    document.colorMode = colorMode_;
    open_ = false;
    document_ = PrintedDocument{};
    page_ = 1;
    currentX_ = 0;
    currentY_ = 0;
    // Every document passes the preview here, so none needs its own.
    if (previewOn && !Dialogs().PreviewDocument(document)) return;
    PrinterDevices().Output(document);
}

void PrinterObject::KillDoc() {
    open_ = false;
    document_ = PrintedDocument{};
    page_ = 1;
    currentX_ = 0;
    currentY_ = 0;
}

void PrinterObject::Reset() {
    *this = PrinterObject{};
}

}  // namespace platform
