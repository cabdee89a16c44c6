#include "platform/headless/HeadlessBackend.h"

#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/InstanceLock.h"

namespace platform {

bool HeadlessBackend::PrevInstance() {
    return otherInstanceRunning_ || !ClaimProgramFolder(AppFolder());
}

int HeadlessBackend::MsgBox(const std::string& prompt, int buttons, const std::string& title) {
    const int kind = buttons & 7;
    int answer = kind == vbYesNo || kind == vbYesNoCancel ? vbYes : vbOK;
    if (!answers_.empty()) {
        answer = answers_.front();
        answers_.pop_front();
    }
    boxes_.push_back({title, prompt, buttons, answer});
    std::string answerText = answer == vbYes      ? "Yes"
                             : answer == vbNo     ? "No"
                             : answer == vbCancel ? "Cancel"
                                                  : "OK";
    transcript_.push_back("message [" + title + "] " + prompt + " -> " + answerText);
    return answer;
}

void HeadlessBackend::Beep() {
    ++beeps_;
    transcript_.push_back("beep");
}

void HeadlessBackend::RunModal(Form& form) {
    if (modalDriver_) modalDriver_(form);
}

void HeadlessBackend::DoEvents() {
    if (doEventsHook_) doEventsHook_();
}

void HeadlessBackend::FormShown(Form& form) {
    transcript_.push_back("show " + form.Name());
}

void HeadlessBackend::FormHidden(Form& form) {
    transcript_.push_back("hide " + form.Name());
}

void HeadlessBackend::PopupMenu(Form& form, Control& menu) {
    transcript_.push_back("popup " + form.Name() + "." + menu.Key());
}

void HeadlessBackend::OpenUrl(const std::string& url) {
    urls_.push_back(url);
    transcript_.push_back("browse " + url);
}

void HeadlessBackend::Quit() {
    quit_ = true;
    transcript_.push_back("end");
}

void HeadlessBackend::ClearLog() {
    boxes_.clear();
    transcript_.clear();
    beeps_ = 0;
}

}  // namespace platform
