#pragma once

#include "platform/controls/Control.h"

namespace platform {

class UpDown : public Control {
  public:
    UpDown(Form& form, std::string name, int index = -1)
        : Control(form, ControlType::UpDown, std::move(name), index) {}
    int Value() const { return value_; }
    void SetValue(int value);
    int Min() const { return min_; }
    void SetMin(int v) { min_ = v; }
    int Max() const { return max_; }
    void SetMax(int v) { max_ = v; }
    int Increment() const { return increment_; }
    void SetIncrement(int v) { increment_ = v; }
    void UserUp();    // UpClick, then Change
    void UserDown();  // DownClick, then Change
    std::map<std::string, std::string> Properties() const override;

  private:
    int value_ = 0, min_ = 0, max_ = 10, increment_ = 1;
};

}  // namespace platform
