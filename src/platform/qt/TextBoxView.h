#pragma once

#include "platform/qt/ControlView.h"

namespace platform::qt {

// A text box: one edit line, or a text area when multi-line. Typed keys go through the
// model's own key rule (KeyPress, the length limit, the caret) rather than the widget's.
class TextBoxView : public ControlView {
  public:
    TextBoxView(Control& control, FormWindow& window);
    void SelectionToModel() override;
    bool TypeKey(int ascii) override;
    QLineEdit* EditLine() const override;

  protected:
    void SyncOwn() override;

  private:
    TextBox& Box() const { return static_cast<TextBox&>(control_); }
    int selStart_ = -1;
    int selLength_ = -1;
};

}  // namespace platform::qt
