#include "frame/frmWelcome.h"

#include "frame/Navigation.h"
#include "platform/Ui.h"

using namespace platform;

frmWelcome::frmWelcome() : Form(kName) {
    SetCaption("Welcome to " + Ui().ProductName());
    SetSize(7200, 4200);
    lblWelcome.SetCaption("Welcome to " + Ui().ProductName());
    lblWelcome.SetFontSize(14);
    lblWelcome.SetFontBold(true);
    lblWelcome.SetAlignment(2);
    lblWelcome.Move(240, 240, 6600, 480);
    lblInstructions.SetCaption(
        "Before you can schedule, the program needs your business information, at least one "
        "work assignment (a team, an individual, a truck route...) and the milestones of your "
        "projects. Set-up asks for them and saves them when you return to the menu.");
    lblInstructions.Move(480, 960, 6120, 1320);
    cmdSetup.SetCaption("Continue to &Set-up");
    cmdSetup.SetDefault(true);
    cmdSetup.Move(2400, 2640, 2400, 555);
    On("cmdSetup.Click", [this](EventArgs&) { cmdSetup_Click(); });
    On("Form.QueryUnload", [this](EventArgs& e) { Form_QueryUnload(e); });
}

void frmWelcome::cmdSetup_Click() {
    Forms::Get("frmSetup").Show();
    Unload();
}

void frmWelcome::Form_QueryUnload(EventArgs& e) {
    if (e.unloadMode == 0) ExitProgram();
}
