#include "setup/SetupHooks.h"

#include "platform/Form.h"
#include "platform/Ui.h"

std::function<void()> ExitProgramHook;
std::function<void()> ShowMainMenuHook;
std::function<void()> ProbeModemHook;

void ExitProgramFromSetup() {
    if (ExitProgramHook) {
        ExitProgramHook();
        return;
    }
    platform::End();
}

void ShowMainMenuFromSetup() {
    if (ShowMainMenuHook) {
        ShowMainMenuHook();
        return;
    }
    if (platform::Forms::Known("frmStartup")) platform::Forms::Get("frmStartup").Show();
}
