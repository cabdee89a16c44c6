#pragma once

#include "platform/controls/Control.h"

namespace platform {

class CheckBox : public Control {
  public:
    CheckBox(Form& form, std::string name, int index = -1)
        : Control(form, ControlType::CheckBox, std::move(name), index) {}
    int Value() const { return value_; }  // 0 unchecked, 1 checked, 2 grayed
    void SetValue(int value);             // raises Click when the value changes
    std::map<std::string, std::string> Properties() const override;

  private:
    int value_ = 0;
};

}  // namespace platform
