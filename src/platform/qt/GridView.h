#pragma once

#include "platform/qt/ControlView.h"

namespace platform::qt {

class GridModel;

// The grid: a table view over the control's cells. The first fixed row is the view's
// heading, so it stays in place while the body scrolls; a click on a cell goes to the
// model's own click rule with its row and column.
class GridView : public ControlView {
  public:
    GridView(Control& control, FormWindow& window);
    bool Mouse(QObject* watched, QMouseEvent* event) override;
    void Detach() override;

  protected:
    void SyncOwn() override;

  private:
    Grid& Model() const { return static_cast<Grid&>(control_); }
    GridModel* cells_ = nullptr;
    int topRow_ = -1;
};

}  // namespace platform::qt
