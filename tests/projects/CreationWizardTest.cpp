#include "WizardFixture.h"

#include "projects/MilestonePlacement.h"
#include "projects/ProjectNumbers.h"

using namespace platform;

namespace {

const std::string kHeader =
    "\"Pj166-1\",\"New Installation\",\"A1001\",\"Proposal Number\",\"Mary Smith\",\"12 Oak "
    "St\",\"\",\"Springfield\",\"IL\",\"62701\",\"217-555-0100\",\"Mary Smith\",\"12 Oak "
    "St\",\"\",\"Springfield\",\"IL\",\"62701\",\"217-555-0100\",3\r\n";

}  // namespace

TEST_F(WizardTest, AProjectOfOneAdministrativeAndTwoTechnicalMilestonesIsSavedWhole) {
    frmMain& form = Open();
    EXPECT_EQ(form.lblProjectNo.Caption(), "Pj166-1");
    EXPECT_EQ(folder.Read("PjCounter.txt"), "\"166\",1\r\n");
    EXPECT_TRUE(form.fraProjectInfo.Visible());
    EXPECT_EQ(form.txtCustomerInfo[1].Text(), "Mary Smith");
    EXPECT_EQ(form.lstMilestoneSelection.SelCount(), 3);
    EXPECT_EQ(form.cboProjectTitle.Text(), "New Installation");

    form.cmdContinue.Click();
    EXPECT_FALSE(form.fraProjectInfo.Visible());
    EXPECT_EQ(form.txtConEvents.Text(), "Permit");
    EXPECT_FALSE(form.fraTeam.Visible());
    EXPECT_EQ(folder.Read("ProjectTempFile.txt"), kHeader);

    // The permit: a date alone.
    form.MonthView1.UserPick(DateTime::FromYmd(2026, 6, 16));
    form.cmdContinue.Click();
    EXPECT_EQ(form.txtConEvents.Text(), "Framing");
    EXPECT_TRUE(form.fraTeam.Visible());
    EXPECT_TRUE(form.optSite.Value());
    EXPECT_EQ(form.lblMode.Caption(), "Hours");

    // Framing: three hours from 08:00am on Crew A.
    form.UpDnTime.UserUp();
    form.UpDnTime.UserUp();
    EXPECT_EQ(form.txtTime.Text(), "3");
    form.cmdContinue.Click();
    EXPECT_TRUE(form.fraHours.Visible());
    EXPECT_FALSE(form.fraCalendar.Visible());
    EXPECT_EQ(form.lblDateTime.Caption(), "Click a Starting Hour");
    form.fgHours.UserClick(3, 1);
    EXPECT_EQ(form.fgHours.TextMatrix(5, 1), "Pj166-1-Framing");
    EXPECT_EQ(form.lblDateTime.Caption(), "Click Continue");
    form.cmdContinue.Click();
    EXPECT_EQ(Day(1, 167),
              DayWith({{3, "Pj166-1-Framing"}, {4, "Pj166-1-Framing"}, {5, "Pj166-1-Framing"}}));

    // Drywall waits three days after the framing: Thursday the 18th is proposed.
    EXPECT_EQ(form.txtConEvents.Text(), "Drywall");
    EXPECT_TRUE(form.fraDependent.Visible());
    EXPECT_EQ(form.txtDependentEvent.Text(), "Framing ( 6/16/2026)");
    EXPECT_EQ(form.txtConEventsDays.Text(), "3");
    EXPECT_EQ(form.MonthView1.Value(), DateTime::FromYmd(2026, 6, 18));
    form.tgTime.Click();
    EXPECT_EQ(form.lblMode.Caption(), "Days");
    form.lstTeam.SetListIndex(1);
    form.UpDnTime.UserUp();
    folder.Ui().ClearLog();
    form.cmdContinue.Click();
    EXPECT_EQ(LastBox(),
              "Norvax Construction Scheduler: 6/18/2026 is the 1st day scheduled\r\n2 days will "
              "be scheduled");
    const std::string drywall = "Pj166-1-Drywall";
    const std::string wholeDay = DayWith({{3, drywall},
                                          {4, drywall},
                                          {5, drywall},
                                          {6, drywall},
                                          {7, drywall},
                                          {8, drywall},
                                          {9, drywall},
                                          {10, drywall}});
    EXPECT_EQ(Day(2, 169), wholeDay);
    EXPECT_EQ(Day(2, 170), wholeDay);
    EXPECT_EQ(Day(2, 171), "");

    // The summary.
    EXPECT_EQ(form.CreationMode, 5);
    EXPECT_TRUE(form.fraSummary.Visible());
    EXPECT_EQ(form.fgSummary.Rows(), 4);
    EXPECT_EQ(form.fgSummary.TextMatrix(1, 3), "Administrative");
    EXPECT_EQ(form.fgSummary.TextMatrix(2, 3), "Crew A");
    EXPECT_EQ(form.fgSummary.TextMatrix(3, 1), "Construction");
    EXPECT_EQ(form.fgSummary.TextMatrix(3, 3), "Crew B");
    EXPECT_EQ(form.txtDaysTotal.Text(), "2");
    EXPECT_EQ(form.txtPreDays.Text(), "0");
    EXPECT_EQ(form.txtConDays.Text(), "1");

    form.cmdSave.Click();
    const std::string file =
        kHeader +
        "\"Permit\",1,#2026-06-16#,1,0,0,\"\",\"Office\",\"\",\"\",\"\",\"Scheduled\",\"Not "
        "Completed \"\r\n"
        "\"Framing\",2,#2026-06-16#,2,0,0,\"1\",\"On Site\",\"3\",\"3\",\"Hours\",\"Scheduled\","
        "\"Not Completed \"\r\n"
        "\"Drywall\",2,#2026-06-18#,2,2,3,\"2\",\"On Site\",\"3\",\"2\",\"Days\",\"Scheduled\","
        "\"Not Completed \"\r\n";
    EXPECT_EQ(folder.Read("ConstructionProjects/Pj166-1.txt"), file);
    EXPECT_FALSE(folder.Exists("ProjectTempFile.txt"));
    EXPECT_FALSE(folder.Exists("Backup/ProjectTempFile.txt"));
    EXPECT_EQ(folder.Read("PjCounter.txt"), "\"166\",2\r\n");
    const std::string records = folder.Read("ProjectRecords.txt");
    ASSERT_EQ(records.size(), 2u * 297u);
    EXPECT_EQ(records.substr(10, 30), "Pj166-1   1 Hours 3 6/16/2026 ");
    EXPECT_EQ(records.substr(132, 10), "$2.00     ");
    EXPECT_EQ(records.substr(297 + 10, 32), "Pj166-1   2 Days  2 6/18/2026 3 ");
    EXPECT_FALSE(form.Visible());
    EXPECT_TRUE(Screen<frmMain>().Visible() == false);
    EXPECT_FALSE(ProjectsLoaded);
}
