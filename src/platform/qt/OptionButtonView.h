#pragma once

#include "platform/qt/ControlView.h"

namespace platform::qt {

// An option button, clicked anywhere in its box; the model turns its siblings off.
class OptionButtonView : public ControlView {
  public:
    OptionButtonView(Control& control, FormWindow& window);

  protected:
    void SyncOwn() override;
};

}  // namespace platform::qt
