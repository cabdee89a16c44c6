#pragma once

#include "platform/controls/Control.h"

namespace platform {

class CommandButton : public Control {
  public:
    CommandButton(Form& form, std::string name, int index = -1)
        : Control(form, ControlType::CommandButton, std::move(name), index) {}
    void Click() { Raise("Click"); }  // Value = True
    bool IsDefault() const { return default_; }
    void SetDefault(bool value) { default_ = value; }
    bool IsCancel() const { return cancel_; }
    void SetCancel(bool value) { cancel_ = value; }

  private:
    bool default_ = false;
    bool cancel_ = false;
};

}  // namespace platform
