#pragma once

#include "platform/controls/Control.h"

namespace platform {

class Timer : public Control {
  public:
    Timer(Form& form, std::string name, int index = -1)
        : Control(form, ControlType::Timer, std::move(name), index) {}
    int Interval() const { return interval_; }
    void SetInterval(int ms);
    // One tick; a tick that comes while the last one still runs is dropped.
    void Tick();
    std::map<std::string, std::string> Properties() const override;

  private:
    int interval_ = 0;
    bool ticking_ = false;
};

}  // namespace platform
