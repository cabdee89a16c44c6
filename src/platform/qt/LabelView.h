#pragma once

#include "platform/qt/ControlView.h"

namespace platform::qt {

// A label: plain text, with its alignment, wrapping and border.
class LabelView : public ControlView {
  public:
    LabelView(Control& control, FormWindow& window);

  protected:
    void SyncOwn() override;
};

}  // namespace platform::qt
