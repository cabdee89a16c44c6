#pragma once

#include <QPointer>
#include <map>
#include <memory>
#include <vector>

#include "platform/Ui.h"

class QEventLoop;

namespace platform::qt {

class FormWindow;

// The desktop backend: real windows, message boxes and a nested event loop per modal form.
class QtBackend : public Backend {
  public:
    QtBackend();
    ~QtBackend() override;

    int MsgBox(const std::string& prompt, int buttons, const std::string& title) override;
    void Beep() override;
    DateTime Now() override;
    void RunModal(Form& form) override;
    void DoEvents() override;
    void FormLoaded(Form& form) override;
    void FormShown(Form& form) override;
    void FormHidden(Form& form) override;
    void FormUnloaded(Form& form) override;
    void FocusRequested(Control& control) override;
    void PopupMenu(Form& form, Control& menu) override;
    bool PrevInstance() override;
    void OpenUrl(const std::string& url) override;
    void Quit() override;

    // Runs the program's main event loop until the program ends.
    int Exec();
    // The window of a loaded form, or null.
    FormWindow* WindowOf(const Form& form) const;
    std::vector<FormWindow*> Windows() const;
    // Shows every pending property change of every window.
    void FlushAll();
    // Tests: closes every window before the screens are forgotten.
    void DropAllWindows();

  private:
    FormWindow& WindowFor(Form& form);

    std::map<const Form*, QPointer<FormWindow>> windows_;
    struct ModalLoop {
        const Form* form;
        QEventLoop* loop;
    };
    std::vector<ModalLoop> modalLoops_;
    bool mainLoopRunning_ = false;
};

}  // namespace platform::qt
