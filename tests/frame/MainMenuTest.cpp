#include <gtest/gtest.h>

#include "frame/SubMain.h"
#include "frame/frmStartup.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/Ui.h"
#include "store/SharedState.h"
#include "support/TestFolder.h"

using namespace platform;
using testing_support::TestFolder;

namespace {

class MainMenu : public ::testing::Test {
  protected:
    void SetUp() override {
        folder.Write("NorvaxConstructionSchedulerSettings.txt",
                     "8\r\n5\r\n\"\"\r\n\"\"\r\n#TRUE#\r\n");
        folder.Write("MyBusinessData.txt", "\"Acme\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
        folder.Write("Assignto.txt", "\"Crew A\"\r\n");
        folder.Write("Characteristics.txt", "\"Framing\",2,2,0,0\r\n");
    }
    frmStartup& Start() {
        ResetProgramState();
        RegisterScreens();
        Dispatch([] { SubMain(); });
        return Screen<frmStartup>();
    }
    TestFolder folder;
};

}  // namespace

TEST_F(MainMenu, WithoutCustomersOnlyTheCustomerRoutineCanBeUsed) {
    auto& menu = Start();
    ASSERT_TRUE(menu.Visible());
    EXPECT_EQ(folder.Ui().Boxes().back().prompt, "Create your 1st Customer Record Now");
    for (int i = 0; i < 10; ++i) EXPECT_EQ(menu.optProgramRoutine[i].Enabled(), i == 8) << i;
    EXPECT_TRUE(menu.optProgramRoutine[8].Value());
    EXPECT_EQ(MenuRoutine, 9);
}

TEST_F(MainMenu, WithCustomersButNoProjectsTheProjectRoutinesAreOff) {
    folder.Write("CustomerData.txt", std::string(328, ' '));
    CallerIDEnabled = false;
    auto& menu = Start();
    ASSERT_TRUE(menu.Visible());
    EXPECT_FALSE(menu.optProgramRoutine[9].Enabled());
    EXPECT_FALSE(menu.optProgramRoutine[3].Enabled());
    EXPECT_TRUE(menu.optProgramRoutine[2].Enabled());
    EXPECT_FALSE(menu.optProgramRoutine[4].Visible());  // the call monitor
    EXPECT_TRUE(menu.optProgramRoutine[5].Visible());
    EXPECT_TRUE(menu.optProgramRoutine[0].Value());
    EXPECT_EQ(MenuRoutine, 1);
    folder.Write("ConstructionProjects/Pj12-1.txt", "");
    menu.Hide();
    Forms::Reset();
    auto& again = Start();
    EXPECT_TRUE(again.optProgramRoutine[9].Enabled());
}

TEST_F(MainMenu, ARoutineWithoutItsScreenSaysSoAndStays) {
    folder.Write("CustomerData.txt", std::string(328, ' '));
    auto& menu = Start();
    ASSERT_TRUE(menu.Visible());
    // A routine whose screen this program does not hold yet.
    int missing = -1;
    for (int routine = 1; routine <= 10 && missing < 0; ++routine)
        if (!Forms::Known(RoutineScreen(routine))) missing = routine - 1;
    if (missing < 0) GTEST_SKIP() << "every routine has its screen";
    folder.Ui().ClearLog();
    Dispatch([&] { menu.optProgramRoutine[missing].Raise("DblClick"); });
    EXPECT_EQ(MenuRoutine, missing + 1);
    ASSERT_EQ(folder.Ui().Boxes().size(), 1u);
    EXPECT_EQ(folder.Ui().Boxes()[0].title, "Routine Not Available");
    EXPECT_TRUE(menu.Visible());
}

TEST_F(MainMenu, TheVendorRoutineOpensTheVendorScreen) {
    folder.Write("CustomerData.txt", std::string(328, ' '));
    auto& menu = Start();
    folder.Ui().ClearLog();
    Dispatch([&] { menu.optProgramRoutine[6].Raise("DblClick"); });
    EXPECT_EQ(MenuRoutine, 7);
    EXPECT_TRUE(Forms::Get("frmContacts").Visible());
    EXPECT_EQ(Forms::Get("frmContacts").Caption(), "Payto Selection");
}

TEST_F(MainMenu, ExitBacksUpTheDataFilesAndEnds) {
    folder.Write("CustomerData.txt", std::string(328, 'c'));
    auto& menu = Start();
    Dispatch([&] { menu.mnuExit.Raise("Click"); });
    EXPECT_TRUE(ProgramHasEnded());
    EXPECT_EQ(folder.Read("Backup/CustomerData.txt"), std::string(328, 'c'));
    EXPECT_EQ(folder.Read("Backup/MyBusinessData.txt"), folder.Read("MyBusinessData.txt"));
    EXPECT_TRUE(Forms::Loaded().empty());
}

TEST_F(MainMenu, ClosingTheMenuWindowEndsTheProgramWithTheBackup) {
    folder.Write("CustomerData.txt", std::string(328, 'c'));
    auto& menu = Start();
    Dispatch([&] { menu.UserClose(); });
    EXPECT_TRUE(ProgramHasEnded());
    EXPECT_TRUE(folder.Exists("Backup/CustomerData.txt"));
}

TEST_F(MainMenu, OpeningAnAddressWritesTheShortcutFile) {
    auto& menu = Start();
    folder.Ui().QueueAnswer(vbYes);
    Dispatch([&] { menu.mnuGraytex.Raise("Click"); });
    EXPECT_EQ(folder.Ui().Boxes().back().title, "Order Graytex Forms");
    ASSERT_EQ(folder.Ui().OpenedUrls().size(), 1u);
    EXPECT_EQ(folder.Read("Temp.url"),
              "[InternetShortcut]\r\nURL = " + folder.Ui().OpenedUrls()[0] + "\r\n");
    folder.Ui().QueueAnswer(vbNo);
    Dispatch([&] { menu.mnuDeluxe.Raise("Click"); });
    EXPECT_EQ(folder.Ui().OpenedUrls().size(), 1u);
}

TEST_F(MainMenu, TheCallMonitorIsOfferedOnceCallerIDIsOn) {
    folder.Write("CustomerData.txt", std::string(328, ' '));
    folder.Write("CallID.txt", "#TRUE#\r\n");
    auto& menu = Start();
    EXPECT_TRUE(menu.optProgramRoutine[4].Visible());
    EXPECT_TRUE(menu.optProgramRoutine[5].Visible());
}

TEST_F(MainMenu, ClosingTheAboutScreenByItsTitleBarEndsTheProgram) {
    folder.Write("CustomerData.txt", std::string(328, 'c'));
    auto& menu = Start();
    Dispatch([&] { menu.mnuAbout.Raise("Click"); });
    ASSERT_TRUE(Forms::Get("frmAbout").Visible());
    Dispatch([] { Forms::Get("frmAbout").UserClose(); });
    EXPECT_TRUE(ProgramHasEnded());
    EXPECT_EQ(folder.Read("Backup/CustomerData.txt"), std::string(328, 'c'));
    EXPECT_TRUE(Forms::Loaded().empty());
}
