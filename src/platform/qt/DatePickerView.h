#pragma once

#include "platform/qt/ControlView.h"

namespace platform::qt {

// The date picker: a date box in the program's fixed M/d/yyyy form, with a calendar popup.
class DatePickerView : public ControlView {
  public:
    DatePickerView(Control& control, FormWindow& window);

  protected:
    void SyncOwn() override;
};

}  // namespace platform::qt
