#pragma once

#include "platform/qt/ControlView.h"

namespace platform::qt {

// A progress bar, without the percentage the platform never showed.
class ProgressBarView : public ControlView {
  public:
    ProgressBarView(Control& control, FormWindow& window);

  protected:
    void SyncOwn() override;
};

}  // namespace platform::qt
