#include "telephony/frmDialer.h"

using namespace platform;

frmDialer::frmDialer() : Form(kName) {
    SetCaption("Call ...............");
    SetSize(6900, 5100);
    Text1.SetLocked(true);
    Text1.Move(240, 4080, 3855, 315);
    Label2[3].Move(4320, 4110, 2175, 255);
}
