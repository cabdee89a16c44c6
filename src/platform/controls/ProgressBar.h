#pragma once

#include "platform/controls/Control.h"

namespace platform {

class ProgressBar : public Control {
  public:
    ProgressBar(Form& form, std::string name, int index = -1)
        : Control(form, ControlType::ProgressBar, std::move(name), index) {}
    int Value() const { return value_; }
    void SetValue(int v);
    int Min() const { return min_; }
    void SetMin(int v) { min_ = v; }
    int Max() const { return max_; }
    void SetMax(int v) { max_ = v; }

  private:
    int value_ = 0, min_ = 0, max_ = 100;
};

}  // namespace platform
