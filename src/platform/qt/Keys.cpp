#include "platform/qt/Keys.h"

#include "platform/qt/Ansi.h"

namespace platform::qt {

int VbKeyCode(const QKeyEvent* e) {
    const int k = e->key();
    if (k >= Qt::Key_A && k <= Qt::Key_Z) return k;
    if (k >= Qt::Key_0 && k <= Qt::Key_9) return k;
    if (k >= Qt::Key_F1 && k <= Qt::Key_F12) return 112 + (k - Qt::Key_F1);
    switch (k) {
        case Qt::Key_Left:
            return 37;
        case Qt::Key_Up:
            return 38;
        case Qt::Key_Right:
            return 39;
        case Qt::Key_Down:
            return 40;
        case Qt::Key_Delete:
            return 46;
        case Qt::Key_Insert:
            return 45;
        case Qt::Key_Home:
            return 36;
        case Qt::Key_End:
            return 35;
        case Qt::Key_PageUp:
            return 33;
        case Qt::Key_PageDown:
            return 34;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return 13;
        case Qt::Key_Escape:
            return 27;
        case Qt::Key_Tab:
            return 9;
        case Qt::Key_Backspace:
            return 8;
        case Qt::Key_Space:
            return 32;
        default:
            return 0;
    }
}

int ShiftOf(Qt::KeyboardModifiers m) {
    return (m & Qt::ShiftModifier ? 1 : 0) | (m & Qt::ControlModifier ? 2 : 0) |
           (m & Qt::AltModifier ? 4 : 0);
}

int AsciiOf(const QKeyEvent* e) {
    if (e->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return 0;
    switch (e->key()) {
        case Qt::Key_Backspace:
            return 8;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return 13;
        case Qt::Key_Escape:
            return 27;
        default:
            break;
    }
    const QString text = e->text();
    if (text.size() != 1 || text[0].unicode() < 0x20 || text[0].unicode() == 0x7F) return 0;
    return AnsiOf(text[0]);
}

int ButtonOf(Qt::MouseButton b) {
    return b == Qt::LeftButton ? 1 : b == Qt::RightButton ? 2 : b == Qt::MiddleButton ? 4 : 0;
}

}  // namespace platform::qt
