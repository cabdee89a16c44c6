#pragma once

#include <QStringList>

#include "platform/qt/ControlView.h"

namespace platform::qt {

// A list box, single or multiple selection; the entries are refilled only when they change.
class ListBoxView : public ControlView {
  public:
    ListBoxView(Control& control, FormWindow& window);

  protected:
    void SyncOwn() override;

  private:
    QStringList shown_;
    int topIndex_ = -1;
};

}  // namespace platform::qt
