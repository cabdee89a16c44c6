#pragma once

#include "platform/qt/ControlView.h"

namespace platform::qt {

// The month calendar; a date set in code raises its change, a click its own pick.
class CalendarView : public ControlView {
  public:
    CalendarView(Control& control, FormWindow& window);

  protected:
    void SyncOwn() override;
};

}  // namespace platform::qt
