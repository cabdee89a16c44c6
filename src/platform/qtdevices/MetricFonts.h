#pragma once

#include <QString>
#include <string>

// The system measures its text in Arial and its kin, as on Windows. Here their metric twins
// stand in for them (Liberation, from Debian's fonts-liberation2; Croscore's Arimo, Tinos and
// Cousine): text takes the widths it was measured with, on the page and in the PDF.
namespace platform {

// Makes the Windows names find their twins; safe to call more than once.
void MapWindowsFonts();
// The installed family that shows a name the system keeps: "Arial" gives "Liberation Sans".
QString InstalledFamily(const std::string& name);
// The name the system keeps for a family the user chose: "Liberation Sans" gives "Arial", so
// the settings stay those of the program on any machine; other families keep their own name.
std::string KeptFontName(const QString& family);

}  // namespace platform
