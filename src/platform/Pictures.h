#pragma once

// Pictures the program draws itself, named by what a click on them does. A screen sets one
// as an image's Picture, as it would set a file; the desktop shows its icon theme's picture
// for that role, or the program's own drawing where the theme has none.
namespace platform::pictures {

inline constexpr const char* kPrefix = "picture:";
inline constexpr const char* kNextPage = "picture:next-page";
inline constexpr const char* kPreviousPage = "picture:previous-page";
inline constexpr const char* kClear = "picture:clear";
inline constexpr const char* kReload = "picture:reload";
inline constexpr const char* kSetup = "picture:setup";
inline constexpr const char* kDial = "picture:dial";
inline constexpr const char* kHangUp = "picture:hang-up";
inline constexpr const char* kPrint = "picture:print";
inline constexpr const char* kFind = "picture:find";
inline constexpr const char* kProgram = "picture:program";  // the program's own icon

}  // namespace platform::pictures
