#pragma once

#include "platform/qt/ControlView.h"

class QMenu;
class QMenuBar;

namespace platform::qt {

// A menu entry: an action, or a menu of its own when other entries name it as their
// container. Entries with no container stand on the window's menu bar.
class MenuView : public ControlView {
  public:
    MenuView(Control& control, FormWindow& window);
    QAction* Action() const override { return action_; }
    QMenu* Menu() const { return menu_; }
    // Puts the entry on the menu bar or into its parent's menu; after all are made.
    void Attach(QMenuBar* bar);

  protected:
    void SyncOwn() override;

  private:
    QAction* action_ = nullptr;
    QMenu* menu_ = nullptr;
};

}  // namespace platform::qt
