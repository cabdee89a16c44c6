#include "setup/BusinessRoutines.h"

#include <algorithm>
#include <cmath>

#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/Printer.h"
#include "platform/Records.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "printing/GenericForm.h"
#include "printing/PrinterRoutines.h"
#include "setup/frmSetup.h"
#include "store/BasicDiskRoutines.h"
#include "store/SharedState.h"

using namespace platform;

namespace {

constexpr const char* kBusinessFile = "\\MyBusinessData.txt";
constexpr const char* kPrintColorsFile = "/PrintColors.txt";
constexpr const char* kCompanyLogoFile = "/CompanyLogo.txt";
constexpr const char* kLogoSettingsFile = "/LogoSettings.txt";
constexpr const char* kPictureFilter =
    "Pictures |(*.bmp;*.BMP;*.ico;*.ICO; *.cur; *.CUR;*jpg;*JPG; *.EMF)|All|*.*";

constexpr int kZipBox = 5;
constexpr int kExtraBox = 8;

// Widths of the city and state boxes in the two address styles.
constexpr int kCityWidthUsa = 2880;
constexpr int kStateWidthUsa = 495;
constexpr int kAddressWidthInternational = 4815;

constexpr int kLogoDefault = 1440;
constexpr int kLogoLargest = 2880;  // a stored size from here on is taken back to the default
constexpr int kLogoStepMin = 360;
constexpr int kLogoStepMax = 1800;
constexpr int kLogoStep = 50;

// A stored logo size in twips. From 2880 on, however large, it is taken back to the
// default; a picture cannot be less than nothing wide.
int StoredLogoSize(double value) {
    const double rounded = std::nearbyint(value);
    if (rounded >= kLogoLargest) return kLogoDefault;
    if (rounded < 0) Raise(err::InvalidPropertyValue, kLogoSettingsFile);
    return static_cast<int>(rounded);
}

// Prints the logo where every document has it, on a page of its own.
void PrintLogoSample(frmSetup& form) {
    try {
        if (!ShowPrinterDialog(cdlPDAllPages | cdlPDNoPageNums | cdlPDHidePrintToFile)) return;
        InitPrinter("Portrait", form.ckColor.Value() == 1);
        PrintLogo(0);
        Printer().EndDoc();
    } catch (const RuntimeError&) {
        // A cancelled dialogue or a printer that fails leaves the screen as it was.
        Printer().KillDoc();
    }
}

}  // namespace

namespace {

bool ReadBusinessFile() {
    if (!FindFile(kBusinessFile)) return false;
    OpenForInput(kBusinessFile);
    const int file = MainFileNo;
    for (auto& value : BusinessData) value = InputString(file);
    CloseAll();
    return true;
}

void ShowBusinessBoxes(frmSetup& form) {
    for (int i = 0; i < kExtraBox; ++i)
        form.txtBusiness[i].SetText(BusinessData[static_cast<size_t>(i)]);
}

}  // namespace

void LoadBusinessData(frmSetup& form) {
    if (ReadBusinessFile()) ShowBusinessData(form);
}

void ReloadBusinessData(frmSetup& form) {
    if (ReadBusinessFile()) ShowBusinessBoxes(form);
}

void SaveBusinessData(frmSetup& form) {
    for (int i = 0; i < 9; ++i) BusinessData[static_cast<size_t>(i)] = form.txtBusiness[i].Text();
    OpenForOutput(kBusinessFile);
    std::vector<Field> line;
    for (const auto& value : BusinessData) line.push_back(Text(value));
    WriteFields(MainFileNo, line);
    CloseAll();
}

void ShowBusinessData(frmSetup& form) {
    ShowBusinessBoxes(form);
    const std::string& name = BusinessData[0];
    const std::string& zip = BusinessData[kZipBox];
    // The caption is set to the other style: the end of the load flips it back.
    if ((zip.empty() && name.empty()) || IsNumeric(zip))
        form.cmdAddress.SetCaption(kInternationalStyle);
    if (name.empty()) return;
    form.cmdAddress.SetCaption(zip.empty() ? kUsaStyle : kInternationalStyle);
}

void FlipAddressStyle(frmSetup& form) {
    if (form.cmdAddress.Caption() == kUsaStyle) {
        form.lblPostal.SetVisible(false);
        form.cmdAddress.SetCaption(kInternationalStyle);
        form.lblAddress[3].SetCaption("Address 3");
        form.lblAddress[4].SetCaption("Address 4");
        form.lblAddress[kZipBox].SetVisible(false);
        form.txtBusiness[kZipBox].SetText("");
        form.txtBusiness[kZipBox].SetVisible(false);
        form.txtBusiness[4].SetMaxLength(55);
        form.txtBusiness[3].SetWidth(kAddressWidthInternational);
        form.txtBusiness[4].SetWidth(kAddressWidthInternational);
    } else {
        form.lblPostal.SetVisible(true);
        form.cmdAddress.SetCaption(kUsaStyle);
        form.lblAddress[3].SetCaption("City");
        form.lblAddress[4].SetCaption("State");
        form.lblAddress[kZipBox].SetVisible(true);
        form.txtBusiness[kZipBox].SetText(BusinessData[kZipBox]);
        form.txtBusiness[kZipBox].SetVisible(true);
        form.txtBusiness[4].SetMaxLength(2);
        form.txtBusiness[3].SetWidth(kCityWidthUsa);
        form.txtBusiness[4].SetWidth(kStateWidthUsa);
    }
}

void ClearBusinessData(frmSetup& form) {
    if (MsgBox("Do you want to reset (clear)all Business Data?",
               vbYesNo + vbQuestion + vbDefaultButton2, "Reset Business Data") != vbYes)
        return;
    for (int i = 0; i < 9; ++i) form.txtBusiness[i].SetText("");
    form.txtBusiness[0].SetFocus();
}

void LoadPrintColors(frmSetup& form) {
    std::int32_t borders = 0;
    std::int32_t data = 0;
    std::string font = "Arial";
    if (FindFile(kPrintColorsFile)) {
        OpenForInput(kPrintColorsFile);
        const int file = MainFileNo;
        borders = InputInt32(file);
        data = InputInt32(file);
        font = InputString(file);
        PrintInColor = InputBool(file);
        PrintCopies = InputByte(file);
        CloseAll();
    } else {
        PrintInColor = true;
        PrintCopies = 3;
    }
    const bool inColor = PrintInColor;
    const std::uint8_t copies = PrintCopies;
    form.txtBorders.SetBackColor(borders);
    form.txtData.SetBackColor(data);
    form.lblFont.SetCaption(font);
    form.ckColor.SetValue(inColor ? 1 : 0);
    PrintInColor = inColor;
    PrintCopies = copies;
    FillCopies(form);
    SharedDialog().Color = borders;
    SharedDialog().Copies = PrintCopies;
}

void FillCopies(frmSetup& form) {
    const std::uint8_t copies = PrintCopies;
    form.cboCopies.Clear();
    for (int n = 1; n <= 5; ++n) form.cboCopies.AddItem(std::to_string(n));
    if (copies >= 1 && copies <= 5) form.cboCopies.SetListIndex(copies - 1);
    PrintCopies = copies;
}

void SavePrintColors(frmSetup& form) {
    OpenForRewrite(kPrintColorsFile);
    const int file = MainFileNo;
    WriteFields(file, {double(form.txtBorders.BackColor())});
    WriteFields(file, {double(form.txtData.BackColor())});
    WriteFields(file, {Text(form.lblFont.Caption())});
    WriteFields(file, {PrintInColor});
    WriteFields(file, {double(PrintCopies)});
    CloseAll();
    DeleteFile(std::string("/Backup") + kPrintColorsFile);
}

void ChangePrintSetting(frmSetup& form, int index) {
    switch (index) {
        case 1:
        case 2: {
            TextBox& box = index == 1 ? form.txtBorders : form.txtData;
            std::int32_t color = box.BackColor();
            if (ChooseColor(color)) box.SetBackColor(color);
            break;
        }
        case 3: {
            std::string font = form.lblFont.Caption();
            if (ChoosePrinterFont(font)) form.lblFont.SetCaption(font);
            break;
        }
        default:
            break;
    }
}

void LoadLogo(frmSetup& form) {
    // The file must be in the program folder itself, not only in its backup.
    if (Dir(AppFolder() + kCompanyLogoFile).empty()) return;
    OpenForInput(kCompanyLogoFile);
    const std::string picture = InputString(MainFileNo);
    CloseAll();
    // A picture that is gone is no logo, and no error.
    if (picture.empty() || !FileExists(picture)) return;
    form.Image2.SetPicture(picture);
    form.Image3.SetPicture(picture);
}

void LoadLogoSettings(frmSetup& form) {
    if (FindFile(kLogoSettingsFile)) {
        OpenForInput(kLogoSettingsFile);
        const int file = MainFileNo;
        const int width = StoredLogoSize(Val(InputString(file)));
        const int height = StoredLogoSize(Val(InputString(file)));
        CloseAll();
        form.Image3.SetWidth(width);
        form.Image3.SetHeight(height);
    } else {
        form.Image3.SetWidth(kLogoDefault);
        form.Image3.SetHeight(kLogoDefault);
        SaveLogoSettings(form);
    }
    form.UpDown2.SetValue(form.Image3.Width());
    form.UpDown3.SetValue(form.Image3.Height());
}

void StoreLogo(frmSetup& form) {
    const std::string picture = SharedDialog().FileName;
    if (picture.empty()) return;
    OpenForRewrite(kCompanyLogoFile);
    WriteFields(MainFileNo, {Text(picture)});
    CloseAll();
    DeleteFile(std::string("/Backup") + kCompanyLogoFile);
    SaveLogoSettings(form);
}

void SaveLogoSettings(frmSetup& form) {
    if (form.Image3.Picture().empty()) return;
    OpenForOutput(kLogoSettingsFile);
    WriteFields(MainFileNo, {double(form.Image3.Width()), double(form.Image3.Height())});
    CloseAll();
}

void LogoAction(frmSetup& form, int index) {
    switch (index) {
        case 0: {  // Find
            const std::string picture = ChooseOpenFile(kPictureFilter);
            if (picture.empty()) return;
            form.Image2.SetPicture(picture);
            form.Image3.SetPicture(picture);
            form.cmdLogo[1].SetEnabled(true);
            break;
        }
        case 1:  // Store
            if (SharedDialog().FileName.empty()) return;
            StoreLogo(form);
            SaveLogoSettings(form);
            MsgBox("Your Logo has been Stored", vbInformation);
            form.cmdLogo[1].SetEnabled(false);
            break;
        case 2:  // Clear
            if (MsgBox("This will Delete your Company Logo",
                       vbYesNo + vbQuestion + vbDefaultButton2, "Delete Logo") != vbYes)
                return;
            form.Image2.SetPicture("");
            form.Image3.SetPicture("");
            DeleteEverywhere(kCompanyLogoFile);
            form.Image2.SetWidth(kLogoDefault);
            form.Image2.SetHeight(kLogoDefault);
            break;
        case 3:  // Make Square (Height)
            form.Image3.SetWidth(form.Image3.Height());
            break;
        case 4:  // Make Square (Width)
            form.Image3.SetHeight(form.Image3.Width());
            break;
        case 5:  // Print Sample
            PrintLogoSample(form);
            break;
        case 6:  // Restore
            form.Image3.SetWidth(kLogoDefault);
            form.Image3.SetHeight(kLogoDefault);
            break;
        default:
            break;
    }
    form.UpDown2.SetValue(form.Image3.Width());
    form.UpDown3.SetValue(form.Image3.Height());
}

int StepLogoSize(int size, bool up) {
    if (up) {
        if (size >= kLogoStepMax) return kLogoStepMin;
        return std::min(size + kLogoStep, kLogoStepMax);
    }
    if (size <= kLogoStepMin) return kLogoStepMax;
    return std::max(size - kLogoStep, kLogoStepMin);
}

void StepLogoWidth(frmSetup& form, bool up) {
    form.Image3.SetWidth(StepLogoSize(form.Image3.Width(), up));
    form.UpDown2.SetValue(form.Image3.Width());
    form.Image3.SetPicture(form.Image2.Picture());
}

void StepLogoHeight(frmSetup& form, bool up) {
    form.Image3.SetHeight(StepLogoSize(form.Image3.Height(), up));
    form.UpDown3.SetValue(form.Image3.Height());
    form.Image3.SetPicture(form.Image2.Picture());
}
