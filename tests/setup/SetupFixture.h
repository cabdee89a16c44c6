#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/Form.h"
#include "platform/Ui.h"
#include "schedule/Teams.h"
#include "setup/CharacteristicsRoutines.h"
#include "setup/SetupHooks.h"
#include "setup/frmSetup.h"
#include "support/ScreenTesting.h"
#include "support/TestFolder.h"

// A program folder and the set-up screen on it, loaded and shown as at a first visit.
class SetupTest : public ::testing::Test {
  protected:
    SetupTest() {
        ExitProgramHook = nullptr;
        ShowMainMenuHook = nullptr;
        ProbeModemHook = nullptr;
        testing_support::ResetPrintingAndDialogs();
        // A fresh process: no templates in memory, and the folders start-up always makes.
        CharName.assign(1, "");
        for (auto* array : {&CharType, &CharPhase, &CharDependency, &CharLead}) array->assign(1, 0);
        MilestoneCount = 0;
        folder.MakeDirs("Backup");
    }

    // Start-up reads the teams before the screen loads.
    frmSetup& Open() {
        LoadAssignments();
        frmSetup& form = platform::Screen<frmSetup>();
        form.Show();
        return form;
    }

    // The program started again on the same folder.
    frmSetup& Reopen() {
        platform::Forms::Reset();
        return Open();
    }

    std::string Read(const std::string& relative) const { return folder.Read(relative); }
    bool Exists(const std::string& relative) const { return folder.Exists(relative); }
    const std::vector<platform::HeadlessBackend::ShownBox>& Boxes() { return folder.Ui().Boxes(); }
    std::string LastBoxText() { return Boxes().empty() ? std::string() : Boxes().back().prompt; }

    testing_support::TestFolder folder;
};

using testing_support::TypeInto;
