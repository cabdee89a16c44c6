#include "printing/GenericForm.h"

#include <algorithm>

#include "platform/Controls.h"
#include "platform/Form.h"
#include "platform/Printer.h"
#include "printing/PrinterRoutines.h"
#include "store/SharedState.h"

namespace {

constexpr std::int32_t kGreen = 65280;
constexpr double kLogoTop = 144;
constexpr double kLogoMinimumHeight = 1800;

// One line of the frame, through the shared corners, in the border colour.
void FrameLine(int left, int top, int right, int bottom) {
    BoxLeft = static_cast<std::int16_t>(left);
    BoxTop = static_cast<std::int16_t>(top);
    BoxRight = static_cast<std::int16_t>(right);
    BoxBottom = static_cast<std::int16_t>(bottom);
    platform::Printer().Line(BoxLeft, BoxTop, BoxRight, BoxBottom, BorderColor);
}

// A line of a block: every line starts at the block's left edge.
void BlockLine(double left, const std::string& text) {
    platform::Printer().SetCurrentX(left);
    platform::Printer().Print(text);
}

platform::Image* LogoImage(const char* name) {
    if (!platform::Forms::Existing("frmSetup") && !platform::Forms::Known("frmSetup")) {
        return nullptr;
    }
    platform::Form& setup = platform::Forms::Get("frmSetup");
    if (!setup.IsLoaded()) setup.Load();
    return dynamic_cast<platform::Image*>(setup.Find(name));
}

}  // namespace

void StartGenericForm(bool frame, const std::string& heading, float top, float nameSize) {
    SetPrintColor(true);
    platform::Printer().SetWidth(12240);
    DrawTopBox();
    DrawFormFrame(frame);
    PrintFormTitle(heading, 0.5f, 5.5f);
    PrintBusinessBlock(1.0f, top, nameSize);
}

void DrawTopBox() {
    platform::PrinterObject& printer = platform::Printer();
    printer.SetDrawWidth(6);
    printer.SetForeColor(PrintSettingBorderColor());
    printer.Line(360, 504, 11880, 5040, -1, platform::LineShape::Box);
}

void DrawFormFrame(bool frame) {
    platform::PrinterObject& printer = platform::Printer();
    for (int y : {5760, 6120, 14400}) FrameLine(360, y, 11880, y);

    const bool color = PrintSettingColor();
    SetPrintPosition(1.3f, 10.1f);
    if (color) printer.SetForeColor(kGreen);
    printer.Print("from " + BusinessData[0]);
    if (color) printer.SetForeColor(0);

    if (frame) {
        for (int y : {12240, 13680}) FrameLine(360, y, 11880, y);
    } else {
        for (int y : {13392, 13824}) FrameLine(360, y, 11880, y);
    }
    for (int x : {360, 1800, 11880}) FrameLine(x, 5760, x, 14400);
    if (frame) {
        for (int x : {3240, 7920}) FrameLine(x, 5760, x, 12240);
        FrameLine(10080, 5760, 10080, 14400);
    } else {
        for (int x : {7920, 10080}) FrameLine(x, 5760, x, 14400);
        FrameLine(4680, 13392, 4680, 14400);
    }
}

void PrintFormTitle(const std::string& text, float y, float x) {
    SetPrintFont(28, true, false);
    SetPrintColor(true);
    SetPrintPosition(x, y);
    platform::Printer().Print(text);
    SetPrintColor(true);
    SetPrintFont(10, true, false);
}

void PrintBusinessBlock(float x, float y, float nameSize) {
    SetPrintColor(true);
    SetPrintPosition(x, y);
    const double left = platform::Printer().CurrentX();
    const std::string& name = BusinessData[0];
    const std::string& address1 = BusinessData[1];
    const std::string& address2 = BusinessData[2];
    const std::string& city = BusinessData[3];
    const std::string& state = BusinessData[4];
    const std::string& zip = BusinessData[5];
    const std::string& phone = BusinessData[6];

    SetPrintFont(nameSize, true, false);
    BlockLine(left, name);
    SetPrintFont(10, false, false);
    BlockLine(left, address1);
    if (!address2.empty()) BlockLine(left, address2);
    if (PrintSettingUsaAddress()) {
        if (!city.empty() || !state.empty() || !zip.empty()) {
            BlockLine(left, city + ", " + state + " " + zip);
        }
    } else {
        if (!city.empty()) BlockLine(left, city);
        if (!state.empty()) BlockLine(left, state);
    }
    if (!phone.empty()) BlockLine(left, "Telephone: " + phone);
    for (int further : {7, 8}) {
        if (!BusinessData[further].empty()) BlockLine(left, BusinessData[further]);
    }
}

void PrintAddressBlock(const std::string& name, const std::string& street,
                       const std::string& apartment, const std::string& city,
                       const std::string& state, const std::string& zip, float y) {
    // The block has no apartment line.
    (void)apartment;
    SetPrintPosition(1.0f, y);
    const double left = 1440;
    BlockLine(left, name);
    BlockLine(left, street);
    if (PrintSettingUsaAddress()) {
        BlockLine(left, city + ", " + state + " " + zip);
    } else {
        BlockLine(left, city);
        BlockLine(left, zip);
    }
    platform::Printer().SetForeColor(0);
}

void PrintLogo(std::int16_t left) {
    // The logo is centred across the page whatever the caller's left edge.
    (void)left;
    platform::PrinterObject& printer = platform::Printer();
    printer.SetCurrentY(kLogoTop);
    platform::Image* adjusted = LogoImage("Image3");
    platform::Image* original = LogoImage("Image2");
    if (!adjusted) return;
    // A low logo box is raised on the set-up screen itself, so the next store of the logo
    // settings keeps the raised height.
    if (adjusted->Height() < kLogoMinimumHeight) adjusted->SetHeight(kLogoMinimumHeight);
    const double width = adjusted->Width();
    const double height = adjusted->Height();
    std::string picture = adjusted->Picture();
    if (picture.empty() && original) picture = original->Picture();
    if (picture.empty()) return;
    printer.PaintPicture(picture, (printer.Width() - width) / 2, kLogoTop, width, height);
}
