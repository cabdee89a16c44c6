#include "printing/PrinterRoutines.h"

#include <cmath>

#include "platform/Controls.h"
#include "platform/Form.h"
#include "platform/Printer.h"

std::int32_t BorderColor = 0;
std::int16_t BoxLeft = 0;
std::int16_t BoxRight = 0;
std::int16_t BoxTop = 0;
std::int16_t BoxBottom = 0;

namespace {

// A control of the set-up screen, which keeps the print settings; loaded on first use as the
// platform does when a screen's control is read. Null when the screen has no such control.
template <typename T>
T* SetupControl(const char* name) {
    if (!platform::Forms::Existing("frmSetup") && !platform::Forms::Known("frmSetup")) {
        return nullptr;
    }
    platform::Form& setup = platform::Forms::Get("frmSetup");
    if (!setup.IsLoaded()) setup.Load();
    return dynamic_cast<T*>(setup.Find(name));
}

// Inches to twips. The printer cannot place anything finer than a twip, so single-precision
// inches such as 1.3 land on their whole twip (1872), not a hair beside it.
double InchesToTwips(float inches) {
    return std::round(static_cast<double>(inches) * 1440.0);
}

}  // namespace

bool PrintSettingColor() {
    auto* box = SetupControl<platform::CheckBox>("ckColor");
    return box && box->Value() == 1;
}

std::int32_t PrintSettingBorderColor() {
    auto* box = SetupControl<platform::TextBox>("txtBorders");
    return box ? box->BackColor() : 0;
}

std::int32_t PrintSettingDataColor() {
    auto* box = SetupControl<platform::TextBox>("txtData");
    return box ? box->BackColor() : 0;
}

std::string PrintSettingFontName() {
    auto* label = SetupControl<platform::Label>("lblFont");
    return label ? label->Caption() : std::string("Arial");
}

bool PrintSettingUsaAddress() {
    auto* button = SetupControl<platform::CommandButton>("cmdAddress");
    return button && button->Caption() == "USA Style Address";
}

void InitPrinter(const std::string& orientation, bool color) {
    platform::PrinterObject& printer = platform::Printer();
    printer.SetColorMode(color ? platform::vbPRCMColor : platform::vbPRCMMonochrome);
    printer.SetPaperSize(platform::vbPRPSLetter);
    printer.SetOrientation(orientation == "Portrait" ? platform::vbPRORPortrait
                                                     : platform::vbPRORLandscape);
    printer.SetWidth(12240);
    printer.SetScaleMode(platform::vbTwips);
    printer.SetFontName(PrintSettingFontName());
    printer.SetForeColor(0);
    printer.SetFontBold(false);
    printer.SetFontUnderline(false);
}

void SetPrintPosition(float x, float y) {
    platform::PrinterObject& printer = platform::Printer();
    if (x > 0) printer.SetCurrentX(InchesToTwips(x));
    if (y > 0) printer.SetCurrentY(InchesToTwips(y));
}

void SetPrintFont(float size, bool bold, bool underline) {
    platform::PrinterObject& printer = platform::Printer();
    if (size > 0) printer.SetFontSize(size);
    printer.SetFontBold(bold);
    printer.SetFontUnderline(underline);
}

void SetPrintColor(bool dataColor) {
    platform::PrinterObject& printer = platform::Printer();
    if (!PrintSettingColor()) {
        printer.SetForeColor(0);
        BorderColor = 0;
    } else if (dataColor) {
        printer.SetForeColor(kDataBlue);
        BorderColor = PrintSettingDataColor();
    } else {
        const std::int32_t border = PrintSettingBorderColor();
        printer.SetForeColor(border);
        BorderColor = border;
    }
}

void PrintWrappedText(std::int16_t left, std::int16_t top, std::int16_t width, std::int16_t height,
                      const std::string& text) {
    platform::PrinterObject& printer = platform::Printer();
    printer.SetCurrentY(top);
    const double bottom = static_cast<double>(top) + height;
    const double room = static_cast<double>(width) - 20;
    std::string rest = text;
    do {
        // Step from blank to blank while the text up to the blank still fits.
        std::string line;
        std::size_t fitted = 0;  // length up to and including the last blank that fitted
        std::size_t from = 0;
        for (;;) {
            const std::size_t blank = rest.find(' ', from);
            if (blank == std::string::npos) {
                // No further blank: the rest goes out whole, its last word unmeasured.
                line = rest;
                rest.clear();
                break;
            }
            if (printer.TextWidth(std::string_view(rest).substr(0, blank + 1)) > room) {
                line = rest.substr(0, fitted);
                const std::size_t next = rest.find_first_not_of(' ', fitted);
                rest = next == std::string::npos ? std::string() : rest.substr(next);
                break;
            }
            fitted = blank + 1;
            from = blank + 1;
        }
        printer.SetCurrentX(left);
        printer.Print(line);
        if (printer.CurrentY() >= bottom) return;
    } while (!rest.empty());
}
