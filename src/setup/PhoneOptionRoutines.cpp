#include "setup/PhoneOptionRoutines.h"

#include <cmath>

#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "setup/SetupHooks.h"
#include "setup/frmSetup.h"
#include "store/BasicDiskRoutines.h"
#include "store/SharedState.h"

using namespace platform;

namespace {

constexpr const char* kPhoneFile = "/Phone.txt";
constexpr const char* kCallerIDFile = "/CallID.txt";

}  // namespace

void StartPhoneOptions(frmSetup& form) {
    const bool probed = static_cast<bool>(ProbeModemHook);
    if (probed) ProbeModemHook();
    if (!FindFile(kPhoneFile)) {
        form.ckPhone.SetValue(0);
        PhoneConnected = false;
    } else {
        OpenForInput(kPhoneFile);
        const int file = MainFileNo;
        PhoneConnected = InputBool(file);
        ModemPort = InputInt16(file);
        CloseAll();
        // The page keeps a probed port; without a probe it shows the one stored.
        if (!probed) form.txtModemPort.SetText(std::to_string(ModemPort));
        if (PhoneConnected) form.ckPhone.SetValue(1);
    }
    LoadCallerIDOption(form);
}

bool ReadCallerIDOption(bool& inUse) {
    if (!FindFile(kCallerIDFile)) return false;
    OpenForInput(kCallerIDFile);
    inUse = InputBool(MainFileNo);
    CloseAll();
    return true;
}

void LoadCallerIDOption(frmSetup& form) {
    ReadCallerIDOption(CallerIDEnabled);
    // Whatever the stored value, the page shows caller ID in use.
    form.lblCallid.SetVisible(true);
    form.ckCallerID.SetValue(1);
}

void SavePhoneOptions(frmSetup& form) {
    PhoneConnected = form.ckPhone.Value() == 1;
    OpenForRewrite(kPhoneFile);
    const int file = MainFileNo;
    WriteFields(file, {PhoneConnected});
    WriteFields(file, {double(ModemPort)});
    CloseAll();
    SaveCallerIDOption();
}

void SaveCallerIDOption() {
    OpenForRewrite(kCallerIDFile);
    WriteFields(MainFileNo, {CallerIDEnabled});
    CloseAll();
}
