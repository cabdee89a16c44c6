#pragma once

#include <QStringList>

#include "platform/qt/ControlView.h"

namespace platform::qt {

// A combo box in its three styles: a drop-down with an edit line, a drop-down list, and the
// simple combo whose list is always open under its edit line.
class ComboBoxView : public ControlView {
  public:
    ComboBoxView(Control& control, FormWindow& window);
    void SelectionToModel() override;
    bool TypeKey(int ascii) override;
    QLineEdit* EditLine() const override { return edit_; }

  protected:
    void SyncOwn() override;

  private:
    ComboBox& Combo() const { return static_cast<ComboBox&>(control_); }
    QLineEdit* edit_ = nullptr;
    QStringList shown_;
    int selStart_ = -1;
    int selLength_ = -1;
};

}  // namespace platform::qt
