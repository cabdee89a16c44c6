#pragma once

#include "platform/qt/ControlView.h"

namespace platform::qt {

// A frame: a titled box that holds the controls placed in it.
class FrameView : public ControlView {
  public:
    FrameView(Control& control, FormWindow& window);
    bool IsContainer() const override { return true; }

  protected:
    void SyncOwn() override;
};

}  // namespace platform::qt
