#pragma once

#include "platform/qt/ControlView.h"

namespace platform::qt {

class TabHost;

// The tab control: a tab strip over a panel; each page holds the controls placed on it,
// at positions measured from the tab control's own top left corner.
class TabView : public ControlView {
  public:
    TabView(Control& control, FormWindow& window);
    QWidget* PlaceFor(const Control& child) override;
    bool IsContainer() const override { return true; }
    // Ctrl+Tab and Ctrl+PgDn: the next enabled, visible tab; backwards with -1.
    void Step(int direction);
    QWidget* FocusTarget() const override;

  protected:
    void SyncOwn() override;

  private:
    Tab& Model() const { return static_cast<Tab&>(control_); }
    TabHost* host_ = nullptr;
};

}  // namespace platform::qt
