#pragma once

#include "platform/qt/ControlView.h"

namespace platform::qt {

// The spinner: two arrow buttons, stacked, or side by side when the control is wide.
class UpDownView : public ControlView {
  public:
    UpDownView(Control& control, FormWindow& window);

  protected:
    void SyncOwn() override;
};

}  // namespace platform::qt
