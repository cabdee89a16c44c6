#pragma once

#include <gtest/gtest.h>

#include <string>

#include "blocked/frmBlock.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/headless/HeadlessDialogs.h"
#include "schedule/SchedulerRoutines.h"
#include "schedule/Teams.h"
#include "setup/SetupHooks.h"
#include "store/SharedState.h"
#include "support/ScreenTesting.h"
#include "support/TestFolder.h"

// Three teams on a Monday-to-Friday week, Monday 15 June 2026 at 09:00, and the blocked-days
// screen shown as the menu opens it.
class BlockTest : public ::testing::Test {
  protected:
    BlockTest() {
        ExitProgramHook = nullptr;
        ShowMainMenuHook = nullptr;
        ResetSharedState();
        ResetDayState();
        WorkWeek = 5;
        StartHour = 8;
        SoundAlarms = true;
        CurrentYearText = "2026";
        testing_support::ResetPrintingAndDialogs();
        folder.Write("Assignto.txt", "\"Crew A\"\r\n\"Crew B\"\r\n\"Crew C\"\r\n");
        LoadAssignments();
        MakeYearTree("2026");
    }

    frmBlock& Open() {
        frmBlock& form = platform::Screen<frmBlock>();
        form.Show();
        return form;
    }

    // Picks the first day, the team (list position) and the number of days, then accepts.
    void Request(frmBlock& form, platform::DateTime start, int team, int days,
                 const std::string& reason = "Vacation") {
        form.lstAssignto.SetListIndex(team);
        if (form.optAction[0].Value()) form.lstReason.SetListIndex(ReasonIndex(reason));
        form.txtTimeReq.SetText(std::to_string(days));
        form.Calender.UserPick(start);
        folder.Ui().QueueAnswer(platform::vbYes);
        form.cmdAccept.Click();
    }

    static int ReasonIndex(const std::string& reason) {
        for (int i = 0; i < 4; ++i)
            if (reason == kBlockReasons[i]) return i;
        return 0;
    }

    // Twelve bare lines, as a blocked day is written.
    static std::string BlockedBytes(const std::string& reason) {
        std::string bytes;
        for (int i = 0; i < 12; ++i) bytes += reason + "\r\n";
        return bytes;
    }

    // A day as the scheduling screens write it, with `text` in the given slots.
    static std::string DayWith(const std::string& text, int firstSlot, int lastSlot) {
        std::string bytes;
        for (int i = 1; i <= 12; ++i)
            bytes +=
                "\"" + std::string(i >= firstSlot && i <= lastSlot ? text : kFreeSlot) + "\"\r\n";
        return bytes;
    }

    std::vector<std::string> Messages() {
        std::vector<std::string> titles;
        for (const auto& box : folder.Ui().Boxes()) titles.push_back(box.title);
        return titles;
    }

    testing_support::TestFolder folder{platform::DateTime::FromYmdHms(2026, 6, 15, 9, 0, 0)};
};
