#pragma once

#include "platform/qt/ControlView.h"

namespace platform::qt {

// A command button; its caption wraps when it does not fit on one line.
class CommandButtonView : public ControlView {
  public:
    CommandButtonView(Control& control, FormWindow& window);

  protected:
    void SyncOwn() override;
};

}  // namespace platform::qt
