#include "platform/Ui.h"

#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/RuntimeError.h"
#include "platform/SerialPort.h"

namespace platform {
namespace {

Backend* current = nullptr;
bool ended = false;
int dispatchDepth = 0;

}  // namespace

Backend& Ui() {
    if (!current) throw std::logic_error("no user interface backend is set");
    return *current;
}

void SetBackend(Backend* backend) {
    current = backend;
}

int MsgBox(const std::string& prompt, int buttons, const std::string& title) {
    return Ui().MsgBox(prompt, buttons, title.empty() ? Ui().ProductName() : title);
}

void Beep() {
    Ui().Beep();
}
DateTime Now() {
    return Ui().Now();
}
DateTime Today() {
    return current ? Ui().Now().DateOnly() : DateTime::FromYmd(2000, 1, 1);
}

void DoEvents() {
    Ui().DoEvents();
    PumpSerialLines();
    if (ended) throw ProgramEnded{};
}

void End() {
    ended = true;
    throw ProgramEnded{};
}

bool ProgramHasEnded() {
    return ended;
}
void ClearProgramEnded() {
    ended = false;
}

bool Dispatch(const std::function<void()>& work) {
    if (ended) return false;
    struct Depth {
        Depth() { ++dispatchDepth; }
        ~Depth() { --dispatchDepth; }
    };
    try {
        Depth depth;
        work();
    } catch (const ProgramEnded&) {
        ended = true;
    } catch (const RuntimeError& e) {
        // The failure is shown, then the program stops: nothing pending reaches the disk.
        AbandonAll();
        ended = true;
        Ui().MsgBox(
            "Run-time error '" + std::to_string(e.Number()) + "':\r\n\r\n" + e.Description(),
            vbCritical, Ui().ProductName());
    }
    // Screens unloaded by this event are discarded once no handler of theirs can be running.
    if (dispatchDepth == 0) Forms::Collect();
    if (ended) {
        Ui().Quit();
        return false;
    }
    return true;
}

}  // namespace platform
