#pragma once

#include <QPointer>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "platform/Form.h"

class QAction;
class QMenu;
class QMenuBar;
class QScrollArea;
class QTimer;

namespace platform::qt {

class QtBackend;
class GridModel;

// Twips to pixels: 15 twips a pixel on the original screens, enlarged for today's.
constexpr double kScale = 1.25;
int ToPixels(int twips);

// The window of one screen, built from its control registry alone: every control type
// has one generic widget, placed by its twips inside its frame or tab page. The model is
// the truth: property changes are queued by the observers and shown by Flush, and the
// user's actions go to the controls' own methods through Dispatch.
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
    QWidget* Canvas() const { return canvas_; }
    // The whole form, menu bar included, however small the screen.
    QSize NaturalSize() const;
    // Sizes the window to hold its whole canvas, as far as the screen allows.
    void FitContents();
    QMenuBar* Bar() const { return menuBar_; }
    void FocusControl(Control& control);
    void ShowPopup(Control& menu);

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Binding {
        Control* control = nullptr;
        QWidget* widget = nullptr;    // what is placed and shown
        std::vector<QWidget*> pages;  // tab pages
        QStringList items;            // list entries last shown
        int selStart = -1, selLength = -1;
        int topRow = -1;
        GridModel* grid = nullptr;
        QTimer* timer = nullptr;
        QAction* action = nullptr;
        QMenu* menu = nullptr;
    };

    void Build();
    void BuildMenus();
    void Place();
    QWidget* ParentFor(const Control& control) const;
    void Sync(Binding& b);
    void SyncCommon(Binding& b);
    void SyncMenu(Binding& b);
    void SyncTimer(Binding& b);
    void UpdateWindowGeometry();
    void MarkDirty(Control& control);
    void Watch(QObject* object, Control& control);
    // Runs one user action through the top of the event loop, then shows its effects.
    void Act(Control* control, const std::function<void()>& work,
             const std::function<void()>& beforeShowing = {});
    bool HandleKey(Control& control, QKeyEvent* event);
    bool HandleMouse(Control& control, QObject* watched, QMouseEvent* event);
    bool HandleDrag(Control& control, QObject* watched, QEvent* event);
    void SelectionToModel(Control& control);
    Control* DefaultButton(bool cancel) const;

    Form* form_;
    QtBackend& backend_;
    bool detached_ = false;
    int syncing_ = 0;  // widget updates from the model raise no events
    bool flushPosted_ = false;
    QMenuBar* menuBar_ = nullptr;
    QScrollArea* scroll_ = nullptr;
    QWidget* canvas_ = nullptr;
    std::vector<Binding> bindings_;
    std::unordered_map<const Control*, size_t> byControl_;
    std::unordered_map<const QObject*, Control*> watched_;
    std::unordered_set<Control*> dirty_;
    bool formDirty_ = true;
    bool canvasSized_ = false;
    std::string dragSource_;
    QPoint dragStart_;
};

}  // namespace platform::qt
