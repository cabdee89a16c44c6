#include "platform/headless/HeadlessPrinter.h"

#include <array>
#include <stdexcept>

#include "platform/RuntimeError.h"
#include "platform/headless/HeadlessBackend.h"

namespace platform {

namespace {

// Advance widths of the standard Helvetica and Helvetica-Bold metrics, 1000 units to the em,
// for the Windows-1252 characters 32 to 255. Arial shares them.
constexpr std::array<short, 224> kRegular = {
    278,  278, 355, 556, 556, 889,  667,  191,  333, 333,  389, 584, 278,  333, 278, 278,  // 32
    556,  556, 556, 556, 556, 556,  556,  556,  556, 556,  278, 278, 584,  584, 584, 556,  // 48
    1015, 667, 667, 722, 722, 667,  611,  778,  722, 278,  500, 667, 556,  833, 722, 778,  // 64
    667,  778, 722, 667, 611, 722,  667,  944,  667, 667,  611, 278, 278,  278, 469, 556,  // 80
    333,  556, 556, 500, 556, 556,  278,  556,  556, 222,  222, 500, 222,  833, 556, 556,  // 96
    556,  556, 333, 500, 278, 556,  500,  722,  500, 500,  500, 334, 260,  334, 584, 278,  // 112
    556,  278, 222, 556, 333, 1000, 556,  556,  333, 1000, 667, 333, 1000, 278, 611, 278,  // 128
    278,  222, 222, 333, 333, 350,  556,  1000, 333, 1000, 500, 333, 944,  278, 500, 667,  // 144
    278,  333, 556, 556, 556, 556,  260,  556,  333, 737,  370, 556, 584,  333, 737, 333,  // 160
    400,  584, 333, 333, 333, 556,  537,  278,  333, 333,  365, 556, 834,  834, 834, 611,  // 176
    667,  667, 667, 667, 667, 667,  1000, 722,  667, 667,  667, 667, 278,  278, 278, 278,  // 192
    722,  722, 778, 778, 778, 778,  778,  584,  778, 722,  722, 722, 722,  667, 667, 611,  // 208
    556,  556, 556, 556, 556, 556,  889,  500,  556, 556,  556, 556, 278,  278, 278, 278,  // 224
    556,  556, 556, 556, 556, 556,  556,  584,  611, 556,  556, 556, 556,  500, 556, 500,  // 240
};

constexpr std::array<short, 224> kBold = {
    278, 333, 474, 556, 556, 889,  722,  238,  333, 333,  389, 584, 278,  333, 278, 278,  // 32
    556, 556, 556, 556, 556, 556,  556,  556,  556, 556,  333, 333, 584,  584, 584, 611,  // 48
    975, 722, 722, 722, 722, 667,  611,  778,  722, 278,  556, 722, 611,  833, 722, 778,  // 64
    667, 778, 722, 667, 611, 722,  667,  944,  667, 667,  611, 333, 278,  333, 584, 556,  // 80
    333, 556, 611, 556, 611, 556,  333,  611,  611, 278,  278, 556, 278,  889, 611, 611,  // 96
    611, 611, 389, 556, 333, 611,  556,  778,  556, 556,  500, 389, 280,  389, 584, 278,  // 112
    556, 278, 278, 556, 500, 1000, 556,  556,  333, 1000, 667, 333, 1000, 278, 611, 278,  // 128
    278, 278, 278, 500, 500, 350,  556,  1000, 333, 1000, 556, 333, 944,  278, 500, 667,  // 144
    278, 333, 556, 556, 556, 556,  280,  556,  333, 737,  370, 556, 584,  333, 737, 333,  // 160
    400, 584, 333, 333, 333, 611,  556,  278,  333, 333,  365, 556, 834,  834, 834, 611,  // 176
    722, 722, 722, 722, 722, 722,  1000, 722,  667, 667,  667, 667, 278,  278, 278, 278,  // 192
    722, 722, 778, 778, 778, 778,  778,  584,  778, 722,  722, 722, 722,  667, 667, 611,  // 208
    556, 556, 556, 556, 556, 556,  889,  556,  556, 556,  556, 556, 278,  278, 278, 278,  // 224
    611, 611, 611, 611, 611, 611,  611,  584,  611, 611,  611, 611, 611,  556, 611, 556,  // 240
};

// A line of Arial is its ascent and descent plus the external leading: 2355 of 2048 units.
constexpr double kLineHeightPerEm = 2355.0 / 2048.0;

HeadlessBackend* HeadlessUi() {
    try {
        return dynamic_cast<HeadlessBackend*>(&Ui());
    } catch (const std::logic_error&) {
        return nullptr;
    }
}

}  // namespace

int HelveticaWidth(unsigned char character, bool bold) {
    if (character < 32) return 0;
    return (bold ? kBold : kRegular)[character - 32];
}

double HeadlessPrinter::TextWidth(const PrintFont& font, std::string_view text) {
    long units = 0;
    for (char c : text) units += HelveticaWidth(static_cast<unsigned char>(c), font.bold);
    // Points are twentieths of a twip's inch: one em of a size-s font is s * 20 twips.
    return static_cast<double>(units) * font.size * 20.0 / 1000.0;
}

double HeadlessPrinter::TextHeight(const PrintFont& font) {
    return font.size * 20.0 * kLineHeightPerEm;
}

void HeadlessPrinter::Output(const PrintedDocument& document) {
    if (failNext_ != 0) {
        const int number = failNext_;
        failNext_ = 0;
        Raise(number, "Printer.EndDoc");
    }
    documents_.push_back(document);
    if (HeadlessBackend* ui = HeadlessUi()) {
        for (const std::string& line : DescribeDocument(document)) ui->Log("print " + line);
    }
}

const PrintedDocument& HeadlessPrinter::LastDocument() const {
    static const PrintedDocument none;
    return documents_.empty() ? none : documents_.back();
}

HeadlessPrinter& RecordingPrinter() {
    static HeadlessPrinter printer;
    return printer;
}

}  // namespace platform
