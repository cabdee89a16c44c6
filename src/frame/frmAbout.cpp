#include "frame/frmAbout.h"

#include "frame/Navigation.h"
#include "platform/Pictures.h"
#include "platform/Ui.h"

using namespace platform;

frmAbout::frmAbout() : Form(kName) {
    SetCaption("About " + Ui().ProductName());
    SetSize(5400, 3360);
    imgIcon.SetPicture(pictures::kProgram);
    imgIcon.Move(240, 240, 720, 720);
    lblTitle.SetCaption(Ui().ProductName());
    lblTitle.SetFontSize(12);
    lblTitle.SetFontBold(true);
    lblTitle.Move(1080, 240, 4080, 420);
    lblVersion.SetCaption(std::string("Version ") + SCHEDULER_VERSION);
    lblVersion.Move(1080, 720, 4080, 300);
    lblDescription.SetCaption("Scheduling for construction contractors");
    lblDescription.Move(1080, 1080, 4080, 300);
    cmdVisit.SetCaption("&Visit Now");
    cmdVisit.Move(720, 1920, 1680, 495);
    cmdOK.SetCaption("&Menu");
    cmdOK.SetDefault(true);
    cmdOK.SetCancel(true);
    cmdOK.Move(2880, 1920, 1680, 495);
    On("Form.QueryUnload", [this](EventArgs& e) { Form_QueryUnload(e); });
    On("cmdVisit.Click", [this](EventArgs&) { cmdVisit_Click(); });
    On("cmdOK.Click", [this](EventArgs&) { cmdOK_Click(); });
}

// Closed by the system menu, the About screen ends the program as every screen does.
void frmAbout::Form_QueryUnload(EventArgs& e) {
    if (e.unloadMode == 0) ExitProgram();
}

void frmAbout::cmdVisit_Click() {
    OpenAddress(kMakerAddress);
}

void frmAbout::cmdOK_Click() {
    Unload();
}
