#include "telephony/DialerLink.h"

#include "platform/Form.h"

using namespace platform;

namespace {

// Reached by name, so that any screen may dial without linking the dialler's own code.
constexpr const char* kDialerScreen = "frmDialer";

}  // namespace

bool ShowDialer(const std::string& name, const std::string& number) {
    if (!Forms::Known(kDialerScreen)) return false;
    Form& dialer = Forms::Get(kDialerScreen);
    if (Control* label = dialer.Find("lblName")) label->SetCaption(name);
    if (Control* label = dialer.Find("lblNumber")) label->SetCaption(number);
    dialer.Show(vbModal);
    return true;
}
