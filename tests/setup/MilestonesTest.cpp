#include "SetupFixture.h"

#include "setup/CharacteristicsRoutines.h"
#include "store/SharedState.h"

namespace {

using platform::vbCancel;
using platform::vbNo;
using platform::vbOK;
using platform::vbYes;

class MilestonesTest : public SetupTest {
  protected:
    frmSetup& OpenWith(const std::string& characteristics) {
        folder.Write("Characteristics.txt", characteristics);
        return Open();
    }

    void Add(frmSetup& form, const std::string& name) {
        TypeInto(form.cboMilestones, name);
        form.cmdAddMilestone.Click();
    }

    // One press of "Accept Settings and Display Next Milestone", answered Yes.
    void Accept(frmSetup& form) {
        folder.Ui().QueueAnswer(vbYes);
        form.cmdCharContinue.Click();
    }
};

TEST_F(MilestonesTest, MissingOrEmptyFileGivesAnEmptyList) {
    frmSetup& form = Open();
    EXPECT_EQ(MilestoneCount, 0);
    EXPECT_FALSE(form.tabSetup.TabEnabled(frmSetup::kAttributesTab));
    EXPECT_FALSE(form.mnuToggle.Enabled());
    EXPECT_FALSE(form.CharacteristicsExist);
    EXPECT_TRUE(Boxes().empty());

    folder.Write("Characteristics.txt", "");
    frmSetup& empty = Reopen();
    EXPECT_EQ(MilestoneCount, 0);
    EXPECT_FALSE(empty.tabSetup.TabEnabled(frmSetup::kAttributesTab));
    EXPECT_TRUE(empty.CharacteristicsExist);
}

TEST_F(MilestonesTest, EachAddedMilestoneReachesTheFileAtOnce) {
    frmSetup& form = Open();
    form.tabSetup.SetTab(frmSetup::kMilestonesTab);
    form.cmdAddMilestone.Click();
    EXPECT_EQ(LastBoxText(), "Enter a New Milestone in the Box to the Left");
    EXPECT_FALSE(Exists("Characteristics.txt"));

    Add(form, "Excavation");
    EXPECT_EQ(Read("Characteristics.txt"), "\"Excavation\",0,0,0,0\r\n");
    EXPECT_TRUE(form.tabSetup.TabEnabled(frmSetup::kAttributesTab));
    EXPECT_TRUE(form.mnuToggle.Enabled());
    EXPECT_EQ(form.cboMilestones.Text(), "");

    Add(form, "Frame Inspection, rough");
    EXPECT_EQ(Read("Characteristics.txt"),
              "\"Excavation\",0,0,0,0\r\n\"Frame Inspection, rough\",0,0,0,0\r\n");
    EXPECT_EQ(MilestoneCount, 2);
    EXPECT_EQ(CharName[2], "Frame Inspection, rough");

    // An exact duplicate only empties the box; another case is another milestone.
    const size_t boxes = Boxes().size();
    Add(form, "Excavation");
    EXPECT_EQ(form.cboMilestones.Text(), "");
    EXPECT_EQ(Boxes().size(), boxes);
    EXPECT_EQ(MilestoneCount, 2);
    Add(form, "excavation");
    EXPECT_EQ(MilestoneCount, 3);
    EXPECT_EQ(form.cboMilestones.List(2), "excavation");
}

TEST_F(MilestonesTest, DeletingAMilestoneResetsEveryAttribute) {
    frmSetup& form = OpenWith("\"A\",2,1,0,0\r\n\"B\",1,2,1,4\r\n\"C\",2,3,2,7\r\n");
    form.tabSetup.SetTab(frmSetup::kMilestonesTab);

    // Cancel changes nothing.
    form.cboMilestones.SetListIndex(1);
    folder.Ui().QueueAnswer(vbCancel);
    form.cmdDeleteMilestone.Click();
    EXPECT_EQ(Boxes().back().title, "Delete Warning");
    EXPECT_EQ(Boxes().back().prompt,
              "If you Delete a Milestone, ALL Attributes are Deleted\r\n"
              "You must proceed to ATTRIBUTES and Rebuild Them\r\n"
              "Milestones can be ignored in any Project Schedule\r\n"
              "Press OK to continue to Delete");
    EXPECT_EQ(form.cboMilestones.ListCount(), 3);

    folder.Ui().QueueAnswer(vbOK);
    form.cmdDeleteMilestone.Click();
    EXPECT_EQ(Read("Characteristics.txt"), "\"A\",0,0,0,0\r\n\"C\",0,0,0,0\r\n");
    EXPECT_EQ(MilestoneCount, 2);
}

TEST_F(MilestonesTest, DeletingWithNothingChosenIsRefused) {
    frmSetup& form = OpenWith("\"A\",2,1,0,0\r\n");
    form.tabSetup.SetTab(frmSetup::kMilestonesTab);
    form.cmdDeleteMilestone.Click();
    EXPECT_EQ(LastBoxText(), "Select a Milestone from the List to the Left");
    EXPECT_EQ(folder.Ui().Beeps(), 1);
    // A name typed that is not in the list is refused the same way.
    TypeInto(form.cboMilestones, "Nothing like it");
    form.cmdDeleteMilestone.Click();
    EXPECT_EQ(LastBoxText(), "Select a Milestone from the List to the Left");
    EXPECT_EQ(Read("Characteristics.txt"), "\"A\",2,1,0,0\r\n");
}

TEST_F(MilestonesTest, DeletingTheOnlyMilestoneLeavesTheFileAsItWas) {
    frmSetup& form = OpenWith("\"Excavation\",2,1,0,3\r\n");
    form.tabSetup.SetTab(frmSetup::kMilestonesTab);
    form.cboMilestones.SetListIndex(0);
    folder.Ui().QueueAnswer(vbOK);
    form.cmdDeleteMilestone.Click();
    EXPECT_EQ(form.cboMilestones.ListCount(), 0);
    EXPECT_EQ(folder.Ui().Beeps(), 1);
    EXPECT_EQ(Read("Characteristics.txt"), "\"Excavation\",2,1,0,3\r\n");

    // The Attributes tab stays open; with no milestones the walk ends at once.
    ASSERT_TRUE(form.tabSetup.TabEnabled(frmSetup::kAttributesTab));
    const size_t before = Boxes().size();
    form.tabSetup.SetTab(frmSetup::kAttributesTab);
    ASSERT_EQ(Boxes().size(), before + 2);
    EXPECT_EQ(Boxes()[before].prompt,
              "You need to Create Milestones\r\nBefore Assigning Attributes");
    EXPECT_EQ(Boxes()[before + 1].prompt, "The Milestone Characteristics have been Created");
    EXPECT_EQ(form.tabSetup.CurrentTab(), frmSetup::kHelpTab);

    // The deleted milestone is back at the next start.
    Reopen();
    EXPECT_EQ(MilestoneCount, 1);
}

TEST_F(MilestonesTest, AClearedListIsNeverWritten) {
    frmSetup& form = OpenWith("\"A\",2,1,0,0\r\n\"B\",1,2,1,4\r\n");
    form.tabSetup.SetTab(frmSetup::kMilestonesTab);
    folder.Ui().QueueAnswer(vbOK);
    form.cmdClear.Click();
    EXPECT_EQ(Boxes().back().title, "Clear Milestones");
    EXPECT_EQ(Boxes().back().prompt, "This will Clear All Milestones");
    EXPECT_EQ(form.cboMilestones.ListCount(), 0);
    EXPECT_EQ(MilestoneCount, 0);
    EXPECT_FALSE(form.tabSetup.TabEnabled(frmSetup::kAttributesTab));

    form.cmdQuit.Click();
    EXPECT_EQ(Read("Characteristics.txt"), "\"A\",2,1,0,0\r\n\"B\",1,2,1,4\r\n");

    // A milestone added after the clear replaces the whole list.
    frmSetup& again = Reopen();
    folder.Ui().QueueAnswer(vbOK);
    again.cmdClear.Click();
    Add(again, "Survey");
    EXPECT_EQ(Read("Characteristics.txt"), "\"Survey\",0,0,0,0\r\n");
}

TEST_F(MilestonesTest, AMoveTakesOnlyTheNameAndSavePositionsCommitsIt) {
    frmSetup& form = OpenWith("\"A\",2,2,0,0\r\n\"B\",1,1,1,5\r\n\"C\",2,3,2,1\r\n");
    form.tabSetup.SetTab(frmSetup::kMilestonesTab);
    form.cboMilestones.SetListIndex(0);
    form.updnMilestone.UserDown();
    EXPECT_EQ(form.cboMilestones.List(0), "B");
    EXPECT_EQ(form.cboMilestones.List(1), "A");
    EXPECT_EQ(form.cboMilestones.ListIndex(), 1);
    // The last entry does not go further down, the first not further up.
    form.cboMilestones.SetListIndex(2);
    form.updnMilestone.UserDown();
    EXPECT_EQ(form.cboMilestones.List(2), "C");
    form.cboMilestones.SetListIndex(0);
    form.updnMilestone.UserUp();
    EXPECT_EQ(form.cboMilestones.List(0), "B");
    // Nothing written before "Save Positions".
    EXPECT_EQ(Read("Characteristics.txt"), "\"A\",2,2,0,0\r\n\"B\",1,1,1,5\r\n\"C\",2,3,2,1\r\n");

    form.cmdSaveMilestones.Click();
    EXPECT_EQ(Read("Characteristics.txt"), "\"B\",2,2,0,0\r\n\"A\",1,1,1,5\r\n\"C\",2,3,2,1\r\n");
    EXPECT_EQ(form.cboMilestones.ListIndex(), 0);
}

TEST_F(MilestonesTest, GridShowsTheAttributes) {
    frmSetup& form = OpenWith("\"A\",0,0,0,0\r\n\"B\",1,2,0,5\r\n\"C\",2,3,2,1\r\n");
    const platform::Grid& grid = form.fgMilestones;
    ASSERT_EQ(grid.Rows(), 4);
    EXPECT_EQ(grid.TextMatrix(0, 0).rfind("Milestone", 0), 0u);
    EXPECT_EQ(grid.TextMatrix(0, 3), "Days");
    EXPECT_EQ(grid.TextMatrix(1, 1), "Technical");  // never set
    EXPECT_EQ(grid.TextMatrix(1, 2), "None");
    EXPECT_EQ(grid.TextMatrix(2, 1), "Administrative");
    EXPECT_EQ(grid.TextMatrix(2, 2), "None");
    EXPECT_EQ(grid.TextMatrix(2, 3), "5");
    EXPECT_EQ(grid.TextMatrix(3, 2), "B");
    EXPECT_EQ(grid.TextMatrix(3, 3), "1");

    form.tabSetup.SetTab(frmSetup::kMilestonesTab);
    form.Command1.Click();
    EXPECT_FALSE(grid.Visible());
    form.mnuToggle.Raise("Click");
    EXPECT_TRUE(grid.Visible());
    // Elsewhere the toggle does nothing.
    form.tabSetup.SetTab(frmSetup::kHelpTab);
    form.mnuToggle.Raise("Click");
    EXPECT_TRUE(grid.Visible());
}

TEST_F(MilestonesTest, TheWalkSetsEachMilestoneInTurn) {
    frmSetup& form = Open();
    form.tabSetup.SetTab(frmSetup::kMilestonesTab);
    for (const char* name : {"Permit", "Footings", "Framing"}) Add(form, name);
    form.cmdBuildAttributes.Click();
    ASSERT_EQ(form.tabSetup.CurrentTab(), frmSetup::kAttributesTab);

    // The first milestone: no dependency can be offered; a never-set milestone shows
    // Administrative before construction.
    EXPECT_EQ(form.txtMilestone.Text(), "Permit");
    EXPECT_FALSE(form.fraDependencies.Visible());
    EXPECT_FALSE(form.lblDependency.Visible());
    EXPECT_EQ(form.lstDependencies.ListCount(), 0);
    EXPECT_TRUE(form.optAdmin.Value());
    EXPECT_TRUE(form.optbCon.Value());

    // "No" keeps the same milestone on screen.
    form.optTech.SetValue(true);
    folder.Ui().QueueAnswer(vbNo);
    form.cmdCharContinue.Click();
    EXPECT_EQ(Boxes().back().title, "Verify Attributes");
    EXPECT_EQ(Boxes().back().prompt, "Review your Selections\r\nIf correct, press YES");
    EXPECT_EQ(form.txtMilestone.Text(), "Permit");

    Accept(form);
    EXPECT_EQ(form.txtMilestone.Text(), "Footings");
    EXPECT_TRUE(form.fraDependencies.Visible());
    EXPECT_TRUE(form.lblDependency.Visible());
    ASSERT_EQ(form.lstDependencies.ListCount(), 1);
    form.optTech.SetValue(true);
    form.optdCon.SetValue(true);
    form.lstDependencies.SetListIndex(0);
    EXPECT_TRUE(form.fraLeadTime.Visible());
    for (int i = 0; i < 3; ++i) form.UpDnDays.UserUp();
    EXPECT_EQ(form.txtDays.Text(), "3");

    Accept(form);
    EXPECT_EQ(form.txtMilestone.Text(), "Framing");
    ASSERT_EQ(form.lstDependencies.ListCount(), 2);
    form.optaCon.SetValue(true);
    form.lstDependencies.SetListIndex(1);
    form.UpDnDays.UserUp();
    // A reset of the counter shows 0 but keeps the interval stored.
    form.lblReset.Raise("Click");
    EXPECT_EQ(form.txtDays.Text(), "0");
    EXPECT_EQ(CharLead[3], 1);
    // A reset of the dependency keeps the interval too.
    form.cmdResetDepend.Click();
    EXPECT_EQ(CharDependency[3], 0);
    EXPECT_FALSE(form.fraLeadTime.Visible());
    EXPECT_EQ(form.lstDependencies.ListIndex(), -1);

    Accept(form);
    EXPECT_EQ(LastBoxText(), "The Milestone Characteristics have been Created");
    EXPECT_EQ(form.tabSetup.CurrentTab(), frmSetup::kHelpTab);
    // Only in memory until saved.
    EXPECT_EQ(Read("Characteristics.txt"),
              "\"Permit\",0,0,0,0\r\n\"Footings\",0,0,0,0\r\n\"Framing\",0,0,0,0\r\n");
    EXPECT_EQ(form.fgMilestones.TextMatrix(2, 2), "Permit");

    form.tabSetup.SetTab(frmSetup::kMilestonesTab);
    form.cmdSaveMilestones.Click();
    EXPECT_EQ(Read("Characteristics.txt"),
              "\"Permit\",2,1,0,0\r\n\"Footings\",2,2,1,3\r\n\"Framing\",1,3,0,1\r\n");
}

TEST_F(MilestonesTest, ASecondWalkOffersTheEntryAfterThePreviousMilestonesDependency) {
    // B and C wait for A, D waits for B.
    frmSetup& form =
        OpenWith("\"A\",2,1,0,0\r\n\"B\",2,2,1,2\r\n\"C\",2,2,1,0\r\n\"D\",2,3,2,0\r\n");
    form.tabSetup.SetTab(frmSetup::kAttributesTab);
    EXPECT_EQ(form.txtMilestone.Text(), "A");
    EXPECT_TRUE(form.optTech.Value());
    Accept(form);
    // B: the entry after A's dependency (none) is A itself.
    EXPECT_EQ(form.lstDependencies.ListIndex(), 0);
    EXPECT_TRUE(form.fraLeadTime.Visible());
    EXPECT_EQ(form.txtDays.Text(), "2");
    Accept(form);
    // C: B's dependency is A (1), so the entry shown is B.
    EXPECT_EQ(form.lstDependencies.ListIndex(), 1);
    EXPECT_EQ(CharDependency[3], 2);
    Accept(form);
    // D: C's dependency is now B (2), so the entry shown is C.
    EXPECT_EQ(form.lstDependencies.ListIndex(), 2);
    Accept(form);
    EXPECT_EQ(LastBoxText(), "The Milestone Characteristics have been Created");

    form.cmdQuit.Click();
    EXPECT_EQ(Read("Characteristics.txt"),
              "\"A\",2,1,0,0\r\n\"B\",2,2,1,2\r\n\"C\",2,2,2,0\r\n\"D\",2,3,3,0\r\n");
}

TEST_F(MilestonesTest, LeavingTheAttributesTabAbandonsTheWalk) {
    frmSetup& form = OpenWith("\"A\",0,0,0,0\r\n\"B\",0,0,0,0\r\n");
    form.tabSetup.SetTab(frmSetup::kAttributesTab);
    form.optTech.SetValue(true);
    Accept(form);
    EXPECT_EQ(form.txtMilestone.Text(), "B");
    EXPECT_EQ(CharType[1], 2);
    form.tabSetup.SetTab(frmSetup::kHelpTab);
    form.tabSetup.SetTab(frmSetup::kAttributesTab);
    // Back at the first milestone, with what was stored still in memory.
    EXPECT_EQ(form.txtMilestone.Text(), "A");
    EXPECT_TRUE(form.optTech.Value());
}

TEST_F(MilestonesTest, LeavingTheScreenSavesTheList) {
    frmSetup& form = OpenWith("\"A\",0,0,0,0\r\n");
    form.tabSetup.SetTab(frmSetup::kAttributesTab);
    form.optTech.SetValue(true);
    form.optaCon.SetValue(true);
    Accept(form);
    form.cmdQuit.Click();
    EXPECT_EQ(Read("Characteristics.txt"), "\"A\",2,3,0,0\r\n");
}

}  // namespace
