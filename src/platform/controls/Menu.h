#pragma once

#include "platform/controls/Control.h"

namespace platform {

// A menu entry; Container() names the menu it belongs to, empty for the menu bar.
class Menu : public Control {
  public:
    Menu(Form& form, std::string name, int index = -1)
        : Control(form, ControlType::Menu, std::move(name), index) {}
    bool Checked() const { return checked_; }
    void SetChecked(bool value);

  private:
    bool checked_ = false;
};

}  // namespace platform
