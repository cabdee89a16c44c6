#pragma once

#include <QWidget>
#include <memory>

#include "platform/Controls.h"

class QAction;
class QKeyEvent;
class QLineEdit;
class QMouseEvent;

namespace platform::qt {

class FormWindow;

// How one control is drawn and how the user's actions reach it. Each kind of control has
// one view (CommandButtonView, GridView, TabView, ...); the window places them, keeps their
// common properties (place, size, font, colours, tip, enabled, visible) and hands the rest
// of each change to the view.
class ControlView {
  public:
    ControlView(Control& control, FormWindow& window) : control_(control), window_(window) {}
    virtual ~ControlView() = default;
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;

    Control& Model() const { return control_; }
    // What is placed and shown; null for controls with no widget (timers, menus).
    QWidget* Widget() const { return widget_; }

    // Shows the control's current properties.
    void Sync();
    // Frames and tab controls hold other controls: the widget a child is placed in.
    virtual QWidget* PlaceFor(const Control& child) { return widget_; }
    virtual bool IsContainer() const { return false; }
    // The widget's caret and selection into the model, before typed keys reach it.
    virtual void SelectionToModel() {}
    // A typed character; false leaves it to the widget's own editing.
    virtual bool TypeKey(int ascii);
    // A mouse event the view answers itself (grid cells); false for the window's handling.
    virtual bool Mouse(QObject* watched, QMouseEvent* event) { return false; }
    // The edit line of a text-like control, for selection and focus.
    virtual QLineEdit* EditLine() const { return nullptr; }
    // The control is forgotten: stop listening to it.
    virtual void Detach() {}
    virtual void Stop() {}
    virtual QAction* Action() const { return nullptr; }
    // The widget Tab stops on for this control, or null when it takes no focus.
    virtual QWidget* FocusTarget() const;

  protected:
    // The control's own properties, beyond the common ones.
    virtual void SyncOwn() {}
    // Registers the widget: named after the control, and watched for keys and mouse.
    void SetWidget(QWidget* widget);
    QWidget* Canvas() const;
    bool Syncing() const;

    Control& control_;
    FormWindow& window_;
    QWidget* widget_ = nullptr;

  private:
    void SyncCommon();
};

// The view that draws the control, by its kind.
std::unique_ptr<ControlView> MakeControlView(Control& control, FormWindow& window);

// The platform's option buttons and check boxes answer a click anywhere in their box.
template <typename Button>
class WholeBoxButton : public Button {
  public:
    using Button::Button;

  protected:
    bool hitButton(const QPoint& pos) const override { return this->rect().contains(pos); }
};

}  // namespace platform::qt
