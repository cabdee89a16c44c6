#pragma once

#include "platform/qt/ControlView.h"

namespace platform::qt {

// A check box, clicked anywhere in its box.
class CheckBoxView : public ControlView {
  public:
    CheckBoxView(Control& control, FormWindow& window);

  protected:
    void SyncOwn() override;
};

}  // namespace platform::qt
