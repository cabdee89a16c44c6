#pragma once

#include "platform/controls/Control.h"

namespace platform {

class Label : public Control {
  public:
    Label(Form& form, std::string name, int index = -1)
        : Control(form, ControlType::Label, std::move(name), index) {}
    bool WordWrap() const { return wordWrap_; }
    void SetWordWrap(bool value) { wordWrap_ = value; }
    bool BorderStyle() const { return border_; }
    void SetBorderStyle(bool value) { border_ = value; }

  private:
    bool wordWrap_ = true;
    bool border_ = false;
};

}  // namespace platform
