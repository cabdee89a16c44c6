#pragma once

#include "platform/controls/Control.h"

namespace platform {

class OptionButton : public Control {
  public:
    OptionButton(Form& form, std::string name, int index = -1)
        : Control(form, ControlType::OptionButton, std::move(name), index) {}
    bool Value() const { return value_; }
    // True clears the other buttons of the same container and raises Click.
    void SetValue(bool value);
    std::map<std::string, std::string> Properties() const override;

  private:
    bool value_ = false;
};

}  // namespace platform
