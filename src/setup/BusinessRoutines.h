#pragma once

#include <string>

class frmSetup;

// The contractor's own data, the address style, the print settings and the logo.

constexpr const char* kUsaStyle = "USA Style Address";
constexpr const char* kInternationalStyle = "International Style Address";

// Reads MyBusinessData.txt, when there is one, into BusinessData and shows it.
void LoadBusinessData(frmSetup& form);
// Reads the file back after a save: boxes 0 to 7 refilled, the style left as the user set it.
void ReloadBusinessData(frmSetup& form);
// Takes the nine boxes into BusinessData and writes the file.
void SaveBusinessData(frmSetup& form);
// Boxes 0 to 7 from BusinessData (box 8 is left empty), and the style caption chosen
// from the zip, set to the opposite of the style meant: the end of the load flips it.
void ShowBusinessData(frmSetup& form);
// Flips the address style; the caption of cmdAddress is the style that other screens read.
void FlipAddressStyle(frmSetup& form);
void ClearBusinessData(frmSetup& form);

// PrintColors.txt: border colour, text colour, font, colour printing, copies.
void LoadPrintColors(frmSetup& form);
void SavePrintColors(frmSetup& form);
// cboCopies offers 1 to 5 and shows PrintCopies.
void FillCopies(frmSetup& form);
// cmdChange 1 and 2 choose the print colours, 3 the printer font.
void ChangePrintSetting(frmSetup& form, int index);

// The logo: CompanyLogo.txt holds the picture's path, LogoSettings.txt its printed size.
void LoadLogo(frmSetup& form);
void LoadLogoSettings(frmSetup& form);
void StoreLogo(frmSetup& form);
void SaveLogoSettings(frmSetup& form);
// The seven buttons of the Logo tab.
void LogoAction(frmSetup& form, int index);
// One step of the logo size spinners, in twips: 50 at a time within 360 to 1800, and
// round from one end to the other.
int StepLogoSize(int size, bool up);
void StepLogoWidth(frmSetup& form, bool up);
void StepLogoHeight(frmSetup& form, bool up);
