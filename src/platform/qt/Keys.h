#pragma once

#include <QKeyEvent>
#include <QMouseEvent>

// Keys and mouse buttons as the platform numbers them for the screens' handlers.
namespace platform::qt {

// The key code KeyDown sees; 0 for keys the screens never ask about.
int VbKeyCode(const QKeyEvent* e);
// Shift 1, Ctrl 2, Alt 4.
int ShiftOf(Qt::KeyboardModifiers m);
// The character a key press types, as KeyPress sees it; 0 for keys that type nothing.
int AsciiOf(const QKeyEvent* e);
// Left 1, right 2, middle 4.
int ButtonOf(Qt::MouseButton b);

}  // namespace platform::qt
