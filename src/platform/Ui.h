#pragma once

#include <functional>
#include <string>

#include "platform/DateTime.h"

namespace platform {

class Form;
class Control;

// Message box buttons, icons and answers, as the platform numbers them.
constexpr int vbOKOnly = 0;
constexpr int vbOKCancel = 1;
constexpr int vbYesNoCancel = 3;
constexpr int vbYesNo = 4;
constexpr int vbCritical = 16;
constexpr int vbQuestion = 32;
constexpr int vbExclamation = 48;
constexpr int vbInformation = 64;
// Which button Enter answers; a question that destroys something defaults to its second.
constexpr int vbDefaultButton1 = 0;
constexpr int vbDefaultButton2 = 256;
constexpr int vbDefaultButton3 = 512;
constexpr int vbOK = 1;
constexpr int vbCancel = 2;
constexpr int vbYes = 6;
constexpr int vbNo = 7;

// What a backend (desktop or headless) does for the screens.
class Backend {
  public:
    virtual ~Backend() = default;
    virtual int MsgBox(const std::string& prompt, int buttons, const std::string& title) = 0;
    virtual void Beep() = 0;
    virtual DateTime Now() = 0;
    // Waits until the form is hidden or unloaded.
    virtual void RunModal(Form& form) = 0;
    virtual void DoEvents() = 0;
    // Before Form_Load runs: the desktop builds the window, hidden, so timers of loaded forms run.
    virtual void FormLoaded(Form& form) {}
    virtual void FormShown(Form& form) {}
    virtual void FormHidden(Form& form) {}
    virtual void FormUnloaded(Form& form) {}
    virtual void FocusRequested(Control& control) {}
    virtual void PopupMenu(Form& form, Control& menu) {}
    // True when another instance of the program runs already; the first caller holds the claim.
    virtual bool PrevInstance() = 0;
    virtual void OpenUrl(const std::string& url) = 0;
    // The program ends: leave the event loop.
    virtual void Quit() = 0;
    virtual std::string ProductName() { return "Norvax Construction Scheduler"; }
};

Backend& Ui();
void SetBackend(Backend* backend);

int MsgBox(const std::string& prompt, int buttons = vbOKOnly, const std::string& title = {});
void Beep();
DateTime Now();
DateTime Today();
void DoEvents();

// Ends the program at once: every handler on the stack unwinds.
[[noreturn]] void End();
bool ProgramHasEnded();
void ClearProgramEnded();

// The top of the event loop: runs one event's work, shows a run-time failure in a
// message box and ends the program without writing further, and discards unloaded screens.
// Returns false once the program has ended.
bool Dispatch(const std::function<void()>& work);

}  // namespace platform
