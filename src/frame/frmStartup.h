#pragma once

#include "platform/ControlArray.h"
#include "platform/Form.h"

// The main menu: ten routines, each opening one screen that returns here.
class frmStartup : public platform::Form {
  public:
    static constexpr const char* kName = "frmStartup";
    frmStartup();

    platform::Frame fraRoutines{*this, "fraRoutines"};
    platform::ControlArray<platform::OptionButton, 10> optProgramRoutine{*this,
                                                                         "optProgramRoutine"};
    platform::CommandButton cmdStart{*this, "cmdStart"};
    platform::ControlArray<platform::Label, 2> Label1{*this, "Label1"};
    platform::Image Image1{*this, "Image1"};
    platform::Image Image2{*this, "Image2"};

    platform::Menu mnuFile{*this, "mnuFile"};
    platform::Menu mnuCreate{*this, "mnuCreate"};
    platform::Menu mnuExit{*this, "mnuExit"};
    platform::Menu mnuOrder{*this, "mnuOrder"};
    platform::Menu mnuAddress{*this, "mnuAddress"};
    platform::Menu mnuPPaper{*this, "mnuPPaper"};
    platform::Menu mnuPPPaper{*this, "mnuPPPaper"};
    platform::Menu mnuLabels{*this, "mnuLabels"};
    platform::Menu mnuDeluxe{*this, "mnuDeluxe"};
    platform::Menu mnuGraytex{*this, "mnuGraytex"};
    platform::Menu mnuDepositSlips{*this, "mnuDepositSlips"};
    platform::Menu mnuHelp{*this, "mnuHelp"};
    platform::Menu mnuHelpContentsFile{*this, "mnuHelpContentsFile"};
    platform::Menu mnuAbout{*this, "mnuAbout"};

    void Form_Activate();
    void Form_QueryUnload(platform::EventArgs& e);
    void optProgramRoutine_Click(int index);
    void optProgramRoutine_DblClick(int index);
    void cmdStart_Click();
    void mnuCreate_Click();
    void Image1_Click();
    void mnuAbout_Click();
    void mnuExit_Click();
    void Label1_DblClick(int index);
    void mnuHelpContentsFile_Click();

  private:
    void OrderForms(const std::string& title, const std::string& question, const std::string& url);
};

// The screen each routine opens, by MenuRoutine (1 to 10).
const char* RoutineScreen(int menuRoutine);
