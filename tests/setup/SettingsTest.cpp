#include "SetupFixture.h"

#include "platform/Files.h"
#include "setup/SettingsRoutines.h"
#include "store/SharedState.h"

namespace {

const char* kSettings = "NorvaxConstructionSchedulerSettings.txt";

TEST_F(SetupTest, FirstRunTakesTheDefaultsAndWritesThemOnLeaving) {
    frmSetup& form = Open();
    EXPECT_EQ(StartHour, 8);
    EXPECT_EQ(WorkWeek, 5);
    EXPECT_TRUE(DaysDefault);
    EXPECT_TRUE(ShowPrompts);
    EXPECT_TRUE(SoundAlarms);
    EXPECT_TRUE(form.ck8.Value());
    EXPECT_TRUE(form.optMF.Value());
    EXPECT_EQ(form.ckDays.Value(), 1);
    EXPECT_EQ(form.ckPrompts.Value(), 1);
    EXPECT_EQ(form.ckAlarms.Value(), 1);
    EXPECT_FALSE(CheckRequiredFiles());

    form.cmdQuit.Click();

    EXPECT_EQ(Read(kSettings), "8\r\n5\r\n\"\"\r\n\"\"\r\n#TRUE#\r\n");
    EXPECT_EQ(Read("Prompts.txt"), "#TRUE#,#TRUE#\r\n");
    EXPECT_EQ(Read("MyBusinessData.txt"), "\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
    EXPECT_TRUE(Exists("Assignto.txt"));
    EXPECT_EQ(Read("Assignto.txt"), "");
    EXPECT_EQ(Read("Phone.txt"), "#FALSE#\r\n0\r\n");
    EXPECT_EQ(Read("CallID.txt"), "#FALSE#\r\n");
    EXPECT_EQ(Read("PrintColors.txt"), "0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n");
    // No milestone: the template file is never made, and the empty list beeps.
    EXPECT_FALSE(Exists("Characteristics.txt"));
    EXPECT_GE(folder.Ui().Beeps(), 1);
    // The Backup tree of this year and the next two is there for the teams.
    EXPECT_TRUE(Exists("Backup/2026"));
    EXPECT_TRUE(Exists("Backup/2028"));
}

TEST_F(SetupTest, LeavingWithoutMilestonesStaysOnBusinessInfoEveryTime) {
    frmSetup& form = Open();
    bool menuShown = false;
    ShowMainMenuHook = [&] { menuShown = true; };
    for (int press = 1; press <= 3; ++press) {
        form.tabSetup.SetTab(frmSetup::kOperationsTab);
        form.cmdQuit.Click();
        ASSERT_EQ(Boxes().size(), static_cast<size_t>(press));
        EXPECT_EQ(LastBoxText(), "You Have Not Created All Required Files");
        EXPECT_EQ(form.tabSetup.CurrentTab(), frmSetup::kBusinessTab);
        EXPECT_TRUE(form.Visible());
    }
    EXPECT_FALSE(menuShown);

    // One milestone completes the set-up: the screen hides and the menu comes up.
    form.tabSetup.SetTab(frmSetup::kMilestonesTab);
    TypeInto(form.cboMilestones, "Excavation");
    form.cmdAddMilestone.Click();
    form.cmdQuit.Click();
    EXPECT_EQ(Boxes().size(), 3u);
    EXPECT_TRUE(menuShown);
    EXPECT_FALSE(form.Visible());
    EXPECT_TRUE(CheckRequiredFiles());
}

TEST_F(SetupTest, ChoicesTakeEffectAtOnceAndReachTheFilesOnLeaving) {
    frmSetup& form = Open();
    form.tabSetup.SetTab(frmSetup::kOperationsTab);
    form.ck7.SetValue(true);
    form.optMS.SetValue(true);
    EXPECT_EQ(StartHour, 7);
    EXPECT_EQ(WorkWeek, 61);
    form.optSF.SetValue(true);
    EXPECT_EQ(WorkWeek, 62);
    form.optSS.SetValue(true);
    EXPECT_EQ(WorkWeek, 7);
    form.ckDays.SetValue(0);
    EXPECT_FALSE(DaysDefault);
    form.ckAlarms.SetValue(0);
    EXPECT_FALSE(SoundAlarms);
    form.ckPrompts.SetValue(0);
    EXPECT_FALSE(ShowPrompts);
    // Nothing is written before the user leaves.
    EXPECT_FALSE(Exists(kSettings));

    form.cmdQuit.Click();
    EXPECT_EQ(Read(kSettings), "7\r\n7\r\n\"\"\r\n\"\"\r\n#FALSE#\r\n");
    EXPECT_EQ(Read("Prompts.txt"), "#FALSE#,#FALSE#\r\n");
    // Alarms off: the empty milestone list does not beep.
    EXPECT_EQ(folder.Ui().Beeps(), 0);

    frmSetup& again = Reopen();
    EXPECT_EQ(StartHour, 7);
    EXPECT_EQ(WorkWeek, 7);
    EXPECT_TRUE(again.ck7.Value());
    EXPECT_TRUE(again.optSS.Value());
    EXPECT_EQ(again.ckDays.Value(), 0);
    EXPECT_EQ(again.ckPrompts.Value(), 0);
    EXPECT_EQ(again.ckAlarms.Value(), 0);
}

TEST_F(SetupTest, UnknownWeekCodeIsRepairedAndReservedLinesAreWrittenEmpty) {
    folder.Write(kSettings, "7\r\n6\r\n\"old\"\r\n\"values\"\r\n#FALSE#\r\n");
    frmSetup& form = Open();
    EXPECT_EQ(StartHour, 7);
    EXPECT_EQ(WorkWeek, 5);
    EXPECT_TRUE(form.optMF.Value());
    EXPECT_FALSE(DaysDefault);
    form.cmdQuit.Click();
    EXPECT_EQ(Read(kSettings), "7\r\n5\r\n\"\"\r\n\"\"\r\n#FALSE#\r\n");
}

TEST_F(SetupTest, DefaultUnitOfTheWizardFollowsTheSetting) {
    // The wizard's two unit buttons, on a stand-in for its screen.
    struct WizardScreen : platform::Form {
        WizardScreen() : Form("frmMain") {
            hours.SetContainer("fraUnit");
            days.SetContainer("fraUnit");
        }
        platform::OptionButton hours{*this, "optSelect", 0};
        platform::OptionButton days{*this, "optSelect", 1};
        platform::ListBox lstTeam{*this, "lstTeam"};
        platform::ListBox lstMilestoneSelection{*this, "lstMilestoneSelection"};
    };
    platform::Forms::RegisterFactory("frmMain", [] { return std::make_unique<WizardScreen>(); });
    folder.Write(kSettings, "8\r\n5\r\n\"\"\r\n\"\"\r\n#FALSE#\r\n");
    Open();
    auto& wizard = static_cast<WizardScreen&>(platform::Forms::Get("frmMain"));
    EXPECT_TRUE(wizard.hours.Value());
    EXPECT_FALSE(wizard.days.Value());

    folder.Write(kSettings, "8\r\n5\r\n\"\"\r\n\"\"\r\n#TRUE#\r\n");
    Reopen();
    auto& next = static_cast<WizardScreen&>(platform::Forms::Get("frmMain"));
    EXPECT_TRUE(next.days.Value());
}

TEST_F(SetupTest, SaveDeletesTheFirstEditionsSettingsFileByItsFixedName) {
    folder.Write(kSettings, "8\r\n5\r\n\"\"\r\n\"\"\r\n#TRUE#\r\n");
    folder.Write("ConstructionSchedulerSettings.txt", "7\r\n7\r\n\"\"\r\n\"\"\r\n#TRUE#\r\n");
    folder.Write("Backup/ConstructionSchedulerSettings.txt",
                 "7\r\n7\r\n\"\"\r\n\"\"\r\n#TRUE#\r\n");
    frmSetup& form = Open();
    form.cmdQuit.Click();
    EXPECT_FALSE(Exists("ConstructionSchedulerSettings.txt"));
    EXPECT_FALSE(Exists("Backup/ConstructionSchedulerSettings.txt"));
    EXPECT_TRUE(Exists(kSettings));
}

TEST_F(SetupTest, AProgramOfAnotherNameHasItsOwnSettingsFile) {
    folder.Write(kSettings, "7\r\n61\r\n\"\"\r\n\"\"\r\n#FALSE#\r\n");
    folder.Write("MyBusinessData.txt", "\"A\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
    folder.Write("Assignto.txt", "\"Crew A\"\r\n");
    folder.Write("Characteristics.txt", "\"Excavation\",2,1,0,0\r\n");
    EXPECT_TRUE(CheckRequiredFiles());

    platform::SetProgramFileName("Scheduler2");
    frmSetup& form = Open();
    EXPECT_FALSE(CheckRequiredFiles());
    EXPECT_EQ(StartHour, 8);
    EXPECT_EQ(WorkWeek, 5);
    form.cmdQuit.Click();
    EXPECT_EQ(Read("Scheduler2Settings.txt"), "8\r\n5\r\n\"\"\r\n\"\"\r\n#TRUE#\r\n");
    EXPECT_EQ(Read(kSettings), "7\r\n61\r\n\"\"\r\n\"\"\r\n#FALSE#\r\n");
    EXPECT_TRUE(CheckRequiredFiles());
}

TEST_F(SetupTest, RequiredFilesAreRestoredFromBackup) {
    folder.Write(std::string("Backup/") + kSettings, "8\r\n5\r\n\"\"\r\n\"\"\r\n#TRUE#\r\n");
    folder.Write("Backup/MyBusinessData.txt", "\"A\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
    folder.Write("Backup/Assignto.txt", "");
    folder.Write("Backup/Characteristics.txt", "");
    EXPECT_TRUE(CheckRequiredFiles());
    EXPECT_TRUE(Exists(kSettings));
    EXPECT_TRUE(Exists("Characteristics.txt"));
}

TEST_F(SetupTest, ClosingTheWindowEndsTheProgramWithoutSaving) {
    frmSetup& form = Open();
    form.tabSetup.SetTab(frmSetup::kOperationsTab);
    form.ck7.SetValue(true);
    EXPECT_FALSE(platform::Dispatch([&] { form.UserClose(); }));
    EXPECT_TRUE(platform::ProgramHasEnded());
    EXPECT_FALSE(Exists(kSettings));
}

TEST_F(SetupTest, ClosingTheWindowRunsTheProgramsExit) {
    frmSetup& form = Open();
    int exits = 0;
    ExitProgramHook = [&] { ++exits; };
    form.UserClose();
    EXPECT_EQ(exits, 1);
}

TEST_F(SetupTest, EachVisitStartsOnBusinessInfoAndTheArrowsSkipAttributes) {
    frmSetup& form = Open();
    form.tabSetup.SetTab(frmSetup::kHelpTab);
    form.Hide();
    form.Show();
    EXPECT_EQ(form.tabSetup.CurrentTab(), frmSetup::kBusinessTab);
    EXPECT_TRUE(form.txtBusiness[0].HasFocus());

    std::vector<int> visited;
    for (int i = 0; i < 7; ++i) {
        form.Image1[form.tabSetup.CurrentTab()].Raise("Click");
        visited.push_back(form.tabSetup.CurrentTab());
    }
    EXPECT_EQ(visited, (std::vector<int>{1, 2, 3, 4, 0, 1, 2}));
    form.tabSetup.SetTab(frmSetup::kHelpTab);
    form.Image1[6].Raise("Click");
    EXPECT_EQ(form.tabSetup.CurrentTab(), frmSetup::kBusinessTab);
}

TEST_F(SetupTest, PhoneSettingsAreReadAndWritten) {
    folder.Write("Phone.txt", "#TRUE#\r\n3\r\n");
    folder.Write("CallID.txt", "#TRUE#\r\n");
    frmSetup& form = Open();
    EXPECT_TRUE(PhoneConnected);
    EXPECT_EQ(ModemPort, 3);
    EXPECT_TRUE(CallerIDEnabled);
    EXPECT_EQ(form.ckPhone.Value(), 1);
    EXPECT_EQ(form.ckCallerID.Value(), 1);
    EXPECT_TRUE(form.lblCallid.Visible());
    EXPECT_EQ(form.txtModemPort.Text(), "3");

    form.ckPhone.SetValue(0);
    form.cmdQuit.Click();
    EXPECT_FALSE(PhoneConnected);
    EXPECT_EQ(Read("Phone.txt"), "#FALSE#\r\n3\r\n");
    EXPECT_EQ(Read("CallID.txt"), "#TRUE#\r\n");
}

TEST_F(SetupTest, EveryControlHasAPlaceOnTheScreen) {
    frmSetup& form = Open();
    for (platform::Control* c : form.Controls()) {
        if (c->Type() == platform::ControlType::Menu) continue;
        EXPECT_GT(c->Width(), 0) << c->Key();
        EXPECT_GT(c->Height(), 0) << c->Key();
        if (c->Key() == "tabSetup" || c->Key() == "cmdQuit") continue;
        EXPECT_FALSE(c->Container().empty()) << c->Key();
    }
}

}  // namespace
