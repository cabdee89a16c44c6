#pragma once

#include "platform/controls/Control.h"

namespace platform {

class Frame : public Control {
  public:
    Frame(Form& form, std::string name, int index = -1)
        : Control(form, ControlType::Frame, std::move(name), index) {}
};

}  // namespace platform
