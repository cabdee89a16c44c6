#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/Dialogs.h"
#include "platform/Form.h"
#include "platform/Printer.h"
#include "platform/Ui.h"
#include "platform/headless/HeadlessDialogs.h"
#include "platform/headless/HeadlessPrinter.h"
#include "schedule/Teams.h"
#include "setup/CharacteristicsRoutines.h"
#include "setup/SetupHooks.h"
#include "setup/frmSetup.h"
#include "support/TestFolder.h"

// A program folder and the set-up screen on it, loaded and shown as at a first visit.
class SetupTest : public ::testing::Test {
  protected:
    SetupTest() {
        ExitProgramHook = nullptr;
        ShowMainMenuHook = nullptr;
        ProbeModemHook = nullptr;
        platform::QueuedDialogs().ClearQueue();
        platform::QueuedDialogs().ClearShown();
        platform::RecordingPrinter().Clear();
        platform::Printer().Reset();
        platform::SharedDialog() = platform::CommonDialog{};
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

// Typing into a combo box and pressing a button, as the user does it.
inline void TypeInto(platform::ComboBox& box, const std::string& text) {
    box.SetSelStart(0);
    box.SetSelLength(static_cast<int>(box.Text().size()));
    box.TypeText(text);
}

inline void TypeInto(platform::TextBox& box, const std::string& text) {
    box.SetSelStart(0);
    box.SetSelLength(static_cast<int>(box.Text().size()));
    box.TypeText(text);
}
