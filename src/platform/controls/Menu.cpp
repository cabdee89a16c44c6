#include "platform/controls/Menu.h"

namespace platform {

void Menu::SetChecked(bool value) {
    checked_ = value;
    Notify();
}

}  // namespace platform
