#pragma once

#include <cstdint>
#include <string>

// The drawing layer under every printed document: setting up the job, the print position
// in inches, fonts, colours and wrapped text, over the platform printer (twips on the page).

// Colour of all box lines of the present document.
extern std::int32_t BorderColor;
// Scratch corners of the next box line, in twips.
extern std::int16_t BoxLeft;
extern std::int16_t BoxRight;
extern std::int16_t BoxTop;
extern std::int16_t BoxBottom;

// The pure blue of data text in colour printing.
constexpr std::int32_t kDataBlue = 16711680;

// A new job on Letter paper in twips: "Portrait" or anything else for landscape; the font of
// the set-up screen, black, bold and underline off. The font size is left as it was.
void InitPrinter(const std::string& orientation, bool color);
// Moves the print position to inches; an axis given as 0 (or less) keeps its position.
void SetPrintPosition(float x, float y);
// A size of 0 keeps the size; bold and underline are always set.
void SetPrintFont(float size, bool bold, bool underline);
// Text and border colour from the set-up screen: data colours when dataColor is true,
// border colours otherwise; all black when colour printing is off.
void SetPrintColor(bool dataColor);
// Prints the text in lines that fit the width, from top down; what does not fit above
// top + height is dropped.
void PrintWrappedText(std::int16_t left, std::int16_t top, std::int16_t width, std::int16_t height,
                      const std::string& text);

// Settings of the set-up screen that printing reads.
bool PrintSettingColor();                // ckColor ticked
std::int32_t PrintSettingBorderColor();  // background of txtBorders
std::int32_t PrintSettingDataColor();    // background of txtData
std::string PrintSettingFontName();      // caption of lblFont
bool PrintSettingUsaAddress();           // cmdAddress reads "USA Style Address"
