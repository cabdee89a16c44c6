#pragma once

#include <QIcon>
#include <string>

// The pictures of src/platform/Pictures.h on the desktop.
namespace platform::qt {

// Uses the desktop's icon theme, or Breeze where the desktop names none (a bare X server).
void ChooseIconTheme();
// True for a picture named by its role rather than by a file.
bool IsRolePicture(const std::string& picture);
// The icon of a role: the theme's, else the program's own drawing; null for an unknown role.
QIcon RoleIcon(const std::string& picture);
// The program's own icon, for its windows and its desktop entry.
QIcon ProgramIcon();

}  // namespace platform::qt
