#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "platform/Form.h"
#include "platform/qt/Scale.h"

class QAction;
class QMenuBar;
class QScrollArea;

namespace platform::qt {

class QtBackend;
class ControlView;

// The window of one screen, built from its control registry alone: every control has a
// view of its kind (ControlView.h), placed by its twips inside its frame or tab page. The
// model is the truth: property changes are queued by the observers and shown by Flush, and
// the user's actions go to the controls' own methods through Act.
class FormWindow : public QWidget {
  public:
    FormWindow(Form& form, QtBackend& backend);
    ~FormWindow() override;

    Form& Model() const { return *form_; }
    // The form is unloaded: stop listening, never touch its controls again.
    void Detach();
    bool Detached() const { return detached_; }
    // Shows every property changed since the last flush.
    void Flush();
    void FlushAll();  // every control, as when the window is first shown
    void StopTimers();

    // The widget that shows a control (null for timers and menus); tests click on it.
    QWidget* WidgetOf(const Control& control) const;
    QAction* ActionOf(const Control& menu) const;
    ControlView* ViewOf(const Control& control) const;
    QWidget* Canvas() const { return canvas_; }
    // The whole form at its usual scale, menu bar included, however small the screen.
    QSize NaturalSize() const;
    QSize NaturalCanvas() const;
    // Sizes the window to its form, shrunk as a whole where the screen is too small.
    void FitContents();
    QMenuBar* Bar() const { return menuBar_; }
    void FocusControl(Control& control);
    void ShowPopup(Control& menu);

    // For the views.
    // Runs one user action through the top of the event loop, then shows its effects.
    void Act(Control* control, const std::function<void()>& work,
             const std::function<void()>& beforeShowing = {});
    // Key, mouse, focus and drop events of the object go to the control.
    void Watch(QObject* object, Control& control);
    // True while the model is being shown: widget signals then raise no events.
    bool Syncing() const { return syncing_ > 0; }
    const Scale& CurrentScale() const { return scale_; }
    // The widget a control is placed in: the canvas, a frame or a tab page.
    QWidget* ParentFor(const Control& control) const;
    // The form's size or its menu bar changed.
    void MarkFormDirty() { formDirty_ = true; }
    // A control moved into another container: Tab's order is laid anew.
    void MarkFocusOrderDirty() { focusOrderDirty_ = true; }

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Build();
    void UpdateWindowGeometry();
    // Tab goes through the controls in the form's order, each container's controls where the
    // container stands, so a page's fields come before the buttons under the tab control.
    void OrderFocus();
    // The scale at which the form fills the room the window gives it.
    void ScaleToWindow();
    void MarkDirty(Control& control);
    bool HandleKey(Control& control, QKeyEvent* event);
    // Ctrl+Tab and Ctrl+PgDn turn a tab control to its next page, with Shift or PgUp back.
    bool TurnPage(QKeyEvent* event);
    bool HandleMouse(Control& control, QObject* watched, QMouseEvent* event);
    bool HandleDrag(Control& control, QObject* watched, QEvent* event);
    Control* DefaultButton(bool cancel) const;

    Form* form_;
    QtBackend& backend_;
    Scale scale_;
    bool detached_ = false;
    int syncing_ = 0;
    bool flushPosted_ = false;
    QMenuBar* menuBar_ = nullptr;
    QScrollArea* scroll_ = nullptr;
    QWidget* canvas_ = nullptr;
    std::vector<std::unique_ptr<ControlView>> views_;
    std::unordered_map<const Control*, size_t> byControl_;  // index into views_
    std::unordered_map<const QObject*, Control*> watched_;
    std::unordered_set<Control*> dirty_;
    bool formDirty_ = true;
    bool focusOrderDirty_ = true;
    QSize formTwips_;  // the drawing surface in twips
    std::string dragSource_;
    QPoint dragStart_;
};

}  // namespace platform::qt
