#include "SetupFixture.h"

#include <functional>
#include <memory>

#include "platform/Records.h"
#include "platform/RuntimeError.h"
#include "setup/AssignmentRoutines.h"
#include "store/SharedState.h"

namespace {

class AssignmentsTest : public SetupTest {
  protected:
    frmSetup& OpenWithTeams(const std::vector<std::string>& names) {
        std::string file;
        for (const auto& n : names) file += "\"" + n + "\"\r\n";
        folder.Write("Assignto.txt", file);
        frmSetup& form = Open();
        // Start-up fills the lists when there are teams.
        if (TeamNames[0] != "empty") LoadTeamLists(form);
        form.tabSetup.SetTab(frmSetup::kAssignmentsTab);
        return form;
    }

    void Type(frmSetup& form, const std::string& name) {
        TypeInto(form.cboAssignments, name);
        form.cmdSave.Click();
    }

    static std::string Vendor(const std::string& name, const std::string& category) {
        platform::RecordWriter record;
        record.Text("ACC", 20);
        record.Text(name, 30);
        record.Text("1 Main St", 35);
        record.Text("", 25);
        record.Text("Springfield", 20);
        record.Text("IL", 2);
        record.Text("62701", 10);
        record.Text("217-555-0100", 13);
        record.Text("", 30);
        record.Text(category, 20);
        record.Text("", 30);
        return record.Bytes();
    }
};

TEST_F(AssignmentsTest, ANewAssignmentIsWrittenAndGetsItsFolder) {
    frmSetup& form = OpenWithTeams({});
    Type(form, "Crew A");
    EXPECT_EQ(Read("Assignto.txt"), "\"Crew A\"\r\n");
    EXPECT_TRUE(Exists("2026/Team#1"));
    ASSERT_EQ(TeamNames.size(), 2u);
    EXPECT_EQ(TeamNames[0], "populated");
    EXPECT_EQ(TeamNames[1], "Crew A");
    EXPECT_EQ(form.cboAssignments.Text(), "");
    EXPECT_TRUE(form.cmdAddNew.HasFocus());

    Type(form, "Truck Route 2");
    EXPECT_EQ(Read("Assignto.txt"), "\"Crew A\"\r\n\"Truck Route 2\"\r\n");
    EXPECT_TRUE(Exists("2026/Team#2"));

    // An exact duplicate is emptied without a word.
    Type(form, "Crew A");
    EXPECT_EQ(form.cboAssignments.ListCount(), 2);
    EXPECT_TRUE(form.cmdSave.HasFocus());
    EXPECT_TRUE(Boxes().empty());
}

TEST_F(AssignmentsTest, TheFortyFirstTypedNameIsRefusedWithABeepButADroppedOneGoesIn) {
    std::vector<std::string> names;
    for (int i = 1; i <= 40; ++i) names.push_back("Crew " + std::to_string(i));
    folder.Write("VendorData.txt", Vendor("Ace Electric", "Sub-Contractor"));
    frmSetup& form = OpenWithTeams(names);
    const std::string before = Read("Assignto.txt");

    Type(form, "Crew 41");
    EXPECT_EQ(folder.Ui().Beeps(), 1);
    EXPECT_TRUE(Boxes().empty());
    EXPECT_EQ(Read("Assignto.txt"), before);
    EXPECT_TRUE(form.cboAssignments.HasFocus());

    ASSERT_TRUE(form.fraContacts.Visible());
    form.lstContacts.SetListIndex(0);
    platform::EventArgs drop;
    drop.source = &form.lstContacts;
    form.cboAssignments.Raise("DragDrop", drop);
    EXPECT_EQ(Read("Assignto.txt"), before + "\"Ace Electric\"\r\n");
    EXPECT_EQ(TeamCount(), 41);
    EXPECT_TRUE(Exists("2026/Team#41"));
    EXPECT_FALSE(form.DroppedAssignment);
}

TEST_F(AssignmentsTest, SubContractorsComeFromTheVendorFile) {
    folder.Write("VendorData.txt", Vendor("Smith Supply", "Supplier") +
                                       Vendor("Ace Electric", "Sub-Contractor") +
                                       Vendor("Best Plumbing  ", "Sub-Contractor"));
    frmSetup& form = OpenWithTeams({"Crew A"});
    ASSERT_EQ(form.lstContacts.ListCount(), 2);
    EXPECT_EQ(form.lstContacts.List(0), "Ace Electric");
    EXPECT_EQ(form.lstContacts.List(1), "Best Plumbing");
    EXPECT_TRUE(form.lstContacts.DragEnabled());

    form.lstContacts.SetListIndex(1);
    platform::EventArgs drop;
    drop.source = &form.lstContacts;
    form.cboAssignments.Raise("DragDrop", drop);
    EXPECT_EQ(Read("Assignto.txt"), "\"Crew A\"\r\n\"Best Plumbing\"\r\n");
    // A second drop of the same name is ignored; so is a drop from anywhere else.
    form.cboAssignments.Raise("DragDrop", drop);
    platform::EventArgs stray;
    stray.source = &form.cmdSave;
    form.cboAssignments.Raise("DragDrop", stray);
    EXPECT_EQ(form.cboAssignments.ListCount(), 2);
}

TEST_F(AssignmentsTest, NoVendorFileNoSubContractors) {
    frmSetup& form = OpenWithTeams({"Crew A"});
    EXPECT_FALSE(form.fraContacts.Visible());
    EXPECT_FALSE(Exists("VendorData.txt"));
}

TEST_F(AssignmentsTest, ARenameKeepsTheTeamsCalendar) {
    frmSetup& form = OpenWithTeams({"Crew A", "Crew B"});
    folder.Write("2026/Team#2/170.txt", "schedule of crew B");
    EXPECT_FALSE(form.cmdChange[4].Enabled());
    form.cboAssignments.SetListIndex(1);
    EXPECT_TRUE(form.cmdChange[4].Enabled());
    EXPECT_TRUE(form.cmdDelete.Enabled());
    TypeInto(form.cboAssignments, "Framers");
    form.cmdChange[4].Click();
    EXPECT_EQ(Read("Assignto.txt"), "\"Crew A\"\r\n\"Framers\"\r\n");
    EXPECT_EQ(Read("2026/Team#2/170.txt"), "schedule of crew B");
    EXPECT_EQ(TeamNames[2], "Framers");
    EXPECT_EQ(form.cboAssignments.Text(), "");
    EXPECT_TRUE(form.cmdSave.Enabled());
    EXPECT_FALSE(form.cmdChange[4].Enabled());
    EXPECT_FALSE(form.cmdDelete.Enabled());
}

TEST_F(AssignmentsTest, TheSecondRenameButtonTakesAnEmptyName) {
    frmSetup& form = OpenWithTeams({"Crew A", "Crew B"});
    ASSERT_TRUE(form.cmdChange[0].Visible());
    ASSERT_TRUE(form.cmdChange[0].Enabled());
    form.cboAssignments.SetListIndex(0);
    form.cboAssignments.SetText("");
    form.cmdChange[4].Click();  // the first one wants a name
    EXPECT_EQ(Read("Assignto.txt"), "\"Crew A\"\r\n\"Crew B\"\r\n");
    form.cmdChange[0].Click();
    EXPECT_EQ(Read("Assignto.txt"), "\"\"\r\n\"Crew B\"\r\n");
    EXPECT_EQ(TeamNames[1], "");
    EXPECT_FALSE(form.cmdChange[4].Enabled());
    EXPECT_FALSE(form.cmdDelete.Enabled());
}

TEST_F(AssignmentsTest, DeletingTeamTwoOfFourLeavesTheLastFolderBehind) {
    frmSetup& form = OpenWithTeams({"One", "Two", "Three", "Four"});
    for (int n = 1; n <= 4; ++n)
        folder.Write("2026/Team#" + std::to_string(n) + "/200.txt", "team " + std::to_string(n));
    folder.Write("Backup/2026/Team#2/200.txt", "team 2");
    folder.Write("2027/Team#2/5.txt", "team 2 next year");

    form.cboAssignments.SetListIndex(1);
    form.cmdDelete.Click();

    EXPECT_TRUE(Boxes().empty());  // no question is asked
    EXPECT_EQ(Read("Assignto.txt"), "\"One\"\r\n\"Three\"\r\n\"Four\"\r\n");
    EXPECT_EQ(Read("2026/Team#1/200.txt"), "team 1");
    EXPECT_EQ(Read("2026/Team#2/200.txt"), "team 3");
    ASSERT_TRUE(Exists("2026/Team#3"));
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path() / "2026/Team#3"));
    EXPECT_EQ(Read("2026/Team#4/200.txt"), "team 4");
    // Other years and the Backup tree are left alone.
    EXPECT_EQ(Read("Backup/2026/Team#2/200.txt"), "team 2");
    EXPECT_EQ(Read("2027/Team#2/5.txt"), "team 2 next year");
    ASSERT_EQ(TeamCount(), 3);
    EXPECT_EQ(TeamNames[2], "Three");
}

TEST_F(AssignmentsTest, DeletingTheLastTeamRenamesNothing) {
    frmSetup& form = OpenWithTeams({"One", "Two", "Three"});
    for (int n = 1; n <= 3; ++n)
        folder.Write("2026/Team#" + std::to_string(n) + "/9.txt", "team " + std::to_string(n));
    TypeInto(form.cboAssignments, "Three");
    form.cmdDelete.Click();
    EXPECT_EQ(Read("Assignto.txt"), "\"One\"\r\n\"Two\"\r\n");
    EXPECT_FALSE(Exists("2026/Team#3"));
    EXPECT_EQ(Read("2026/Team#2/9.txt"), "team 2");
}

TEST_F(AssignmentsTest, DeletingTheOnlyTeamLeavesAnEmptyFile) {
    frmSetup& form = OpenWithTeams({"Solo"});
    folder.Write("2026/Team#1/1.txt", "x");
    form.cboAssignments.SetListIndex(0);
    form.cmdDelete.Click();
    EXPECT_TRUE(Exists("Assignto.txt"));
    EXPECT_EQ(Read("Assignto.txt"), "");
    EXPECT_FALSE(Exists("2026/Team#1"));
    EXPECT_EQ(TeamNames[0], "populated");
    EXPECT_EQ(TeamCount(), 0);
}

TEST_F(AssignmentsTest, ANameNotInTheListDeletesNothing) {
    frmSetup& form = OpenWithTeams({"One"});
    TypeInto(form.cboAssignments, "one");
    form.cmdDelete.Click();
    EXPECT_EQ(Read("Assignto.txt"), "\"One\"\r\n");
    EXPECT_TRUE(form.cboAssignments.HasFocus());
}

TEST_F(AssignmentsTest, TheTeamListsOfOtherScreensAreFilled) {
    struct TeamScreen : platform::Form {
        explicit TeamScreen(const char* name, const char* list) : Form(name), teams(*this, list) {}
        platform::ListBox teams;
    };
    platform::Forms::RegisterFactory(
        "frmBlock", [] { return std::make_unique<TeamScreen>("frmBlock", "lstAssignto"); });
    frmSetup& form = OpenWithTeams({"Crew A", "Crew B"});
    auto& blocked = static_cast<TeamScreen&>(platform::Forms::Get("frmBlock"));
    ASSERT_EQ(blocked.teams.ListCount(), 3);
    EXPECT_EQ(blocked.teams.List(0), "Crew A");
    EXPECT_EQ(blocked.teams.List(2), "All Assignments");

    Type(form, "Crew C");
    ASSERT_EQ(blocked.teams.ListCount(), 4);
    EXPECT_EQ(blocked.teams.List(2), "Crew C");
    EXPECT_EQ(blocked.teams.List(3), "All Assignments");
}

TEST_F(AssignmentsTest, AScreenWithoutTheTeamListStopsWithTheRunTimeFailure) {
    // A misspelt list, then a list of the wrong kind, on a screen the program knows.
    struct TeamScreen : platform::Form {
        TeamScreen() : Form("frmBlock") {}
        platform::ListBox misspelt{*this, "lstAsignto"};
    };
    struct TextScreen : platform::Form {
        TextScreen() : Form("frmBlock") {}
        platform::TextBox notAList{*this, "lstAssignto"};
    };
    const struct {
        std::function<std::unique_ptr<platform::Form>()> make;
        int error;
    } cases[] = {
        {[] { return std::make_unique<TeamScreen>(); }, 438},
        {[] { return std::make_unique<TextScreen>(); }, platform::err::TypeMismatch},
    };
    for (const auto& c : cases) {
        platform::Forms::Reset();
        platform::Forms::RegisterFactory("frmBlock", c.make);
        try {
            OpenWithTeams({"Crew A"});
            ADD_FAILURE() << "no run-time failure";
        } catch (const platform::RuntimeError& e) {
            EXPECT_EQ(e.Number(), c.error);
            EXPECT_NE(e.Where().find("frmBlock.lstAssignto"), std::string::npos) << e.Where();
        }
    }
    // Screens stay registered for the tests that follow: leave a sound stand-in.
    struct SoundScreen : platform::Form {
        SoundScreen() : Form("frmBlock") {}
        platform::ListBox teams{*this, "lstAssignto"};
    };
    platform::Forms::RegisterFactory("frmBlock", [] { return std::make_unique<SoundScreen>(); });
}

TEST_F(AssignmentsTest, WithNoFileTheListsStayEmpty) {
    frmSetup& form = Open();
    EXPECT_EQ(TeamNames[0], "empty");
    EXPECT_EQ(form.cboAssignments.ListCount(), 0);
    EXPECT_FALSE(Exists("2026/Team#1"));
}

}  // namespace
