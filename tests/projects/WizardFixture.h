#pragma once

#include <gtest/gtest.h>

#include <string>

#include "frame/SubMain.h"
#include "frame/frmStartup.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/Ui.h"
#include "projects/frmMain.h"
#include "schedule/SchedulerRoutines.h"
#include "store/SharedState.h"
#include "support/TestFolder.h"

// The program started on a folder with two teams and three milestone templates: an
// administrative permit, framing, and drywall three days after the framing. The clock
// stands on Monday 15 June 2026 (day 166), 09:00.
class WizardTest : public ::testing::Test {
  protected:
    void SetUp() override {
        folder.Write("NorvaxConstructionSchedulerSettings.txt",
                     "8\r\n5\r\n\"\"\r\n\"\"\r\n#FALSE#\r\n");
        folder.Write("Prompts.txt", "#TRUE#,#TRUE#\r\n");
        folder.Write("MyBusinessData.txt", "\"Acme\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
        folder.Write("Assignto.txt", "\"Crew A\"\r\n\"Crew B\"\r\n");
        folder.Write("Characteristics.txt",
                     "\"Permit\",1,1,0,0\r\n\"Framing\",2,2,0,0\r\n\"Drywall\",2,2,2,3\r\n");
        folder.Write("CustomerData.txt", std::string(328, ' '));
    }

    void Start() {
        ResetProgramState();
        RegisterScreens();
        platform::Dispatch([] { SubMain(); });
    }

    // The customer screens' hand-off, then the screen shown for routine 1 or 3; on the team
    // schedule the user then picks the first team.
    frmMain& Open(int routine = 1) {
        Start();
        MenuRoutine = static_cast<std::int16_t>(routine);
        frmMain& form = platform::Screen<frmMain>();
        form.Load();
        const char* billing[] = {"",   "Mary Smith", "12 Oak St",   "", "Springfield",
                                 "IL", "62701",      "217-555-0100"};
        for (int i = 1; i <= 7; ++i) {
            form.lblCustomerInfo[i].SetCaption(billing[i]);
            form.txtCustomerInfo[i].SetText(billing[i]);
        }
        form.lblAccount.SetCaption("A1001");
        form.lblPropNo[0].SetVisible(false);
        form.lblPropNo[1].SetVisible(false);
        form.Show();
        if (routine == 3) form.lstTeam.SetListIndex(0);
        return form;
    }

    // The day file of a team and day of 2026, or "" when there is none.
    std::string Day(int team, int dayOfYear, int year = 2026) const {
        const std::string path = std::to_string(year) + "/Team#" + std::to_string(team) + "/" +
                                 std::to_string(dayOfYear) + ".txt";
        return folder.Exists(path) ? folder.Read(path) : std::string();
    }

    static std::string DayWith(std::initializer_list<std::pair<int, std::string>> slots) {
        std::string lines[12];
        for (auto& l : lines) l = "No Event Scheduled";
        for (const auto& [slot, text] : slots) lines[slot - 1] = text;
        return testing_support::DayFileBytes(lines);
    }

    void Answer(int answer) { folder.Ui().QueueAnswer(answer); }
    std::string LastBox() const {
        auto& boxes = const_cast<testing_support::TestFolder&>(folder).Ui().Boxes();
        return boxes.empty() ? std::string() : boxes.back().title + ": " + boxes.back().prompt;
    }

    testing_support::TestFolder folder{platform::DateTime::FromYmdHms(2026, 6, 15, 9, 0, 0)};
};
