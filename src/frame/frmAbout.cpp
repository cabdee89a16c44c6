#include "frame/frmAbout.h"

#include "frame/Navigation.h"
#include "platform/Ui.h"

using namespace platform;

frmAbout::frmAbout() : Form(kName) {
    SetCaption("About " + Ui().ProductName());
    SetSize(5400, 3000);
    lblTitle.SetCaption(Ui().ProductName());
    lblTitle.SetFontSize(12);
    lblTitle.SetFontBold(true);
    lblTitle.SetAlignment(2);
    lblTitle.Move(240, 240, 4800, 420);
    lblVersion.SetCaption("Scheduling for construction contractors");
    lblVersion.SetAlignment(2);
    lblVersion.Move(240, 780, 4800, 300);
    cmdVisit.SetCaption("&Visit Now");
    cmdVisit.Move(720, 1560, 1680, 495);
    cmdOK.SetCaption("&Menu");
    cmdOK.SetDefault(true);
    cmdOK.SetCancel(true);
    cmdOK.Move(2880, 1560, 1680, 495);
    On("cmdVisit.Click", [this](EventArgs&) { cmdVisit_Click(); });
    On("cmdOK.Click", [this](EventArgs&) { cmdOK_Click(); });
}

void frmAbout::cmdVisit_Click() {
    OpenAddress(kMakerAddress);
}

void frmAbout::cmdOK_Click() {
    Unload();
}
