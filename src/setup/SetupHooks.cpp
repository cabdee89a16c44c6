#include "setup/SetupHooks.h"

#include "platform/Form.h"
#include "platform/Ui.h"

std::function<void()> ExitProgramHook;
std::function<void()> ShowMainMenuHook;
std::function<void()> ProbeModemHook;
std::function<void()> OpenManualHook;

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

void OpenManualFromSetup() {
    if (OpenManualHook) {
        OpenManualHook();
        return;
    }
    platform::Ui().OpenUrl("https://www.norvax.com/construction/manual.html");
}
