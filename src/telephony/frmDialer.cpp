#include "telephony/frmDialer.h"

using namespace platform;

frmDialer::frmDialer() : Form(kName) {
    SetCaption("Call ...............");
    SetSize(6900, 5100);
    Text1.SetLocked(true);
    Text1.Move(240, 4080, 3855, 315);
    // Headings of the dialler's fields; the probe writes only the last.
    for (int i = 0; i < 3; ++i) Label2[i].Move(240, 240 + i * 480, 1215, 255);
    Label2[3].Move(4320, 4110, 2175, 255);
}
