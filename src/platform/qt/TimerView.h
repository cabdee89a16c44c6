#pragma once

#include "platform/qt/ControlView.h"

class QTimer;

namespace platform::qt {

// A timer: ticks while enabled with an interval; a tick that comes while the last one
// still runs is dropped by the model.
class TimerView : public ControlView {
  public:
    TimerView(Control& control, FormWindow& window);
    void Stop() override;

  protected:
    void SyncOwn() override;

  private:
    QTimer* timer_ = nullptr;
};

}  // namespace platform::qt
