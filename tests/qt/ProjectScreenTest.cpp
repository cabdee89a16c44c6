// The project screen in real windows: a project created with the mouse and keyboard alone,
// each stage photographed and checked for the controls it offers, then the team schedule.
#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QDir>
#include <QListWidget>
#include <QTableView>
#include <QTest>
#include <QToolButton>
#include <filesystem>

#include "QtFixture.h"
#include "frame/SubMain.h"
#include "frame/frmStartup.h"
#include "platform/Form.h"
#include "projects/frmMain.h"
#include "store/SharedState.h"

using namespace qt_testing;
using platform::Control;
using platform::Dispatch;

namespace {

class ProjectScreenTest : public QtFixture {
  protected:
    ProjectScreenTest() {
        RegisterScreens();
        std::filesystem::create_directories(SCREENSHOT_DIR);
        folder.Write("NorvaxConstructionSchedulerSettings.txt",
                     "8\r\n5\r\n\"\"\r\n\"\"\r\n#FALSE#\r\n");
        folder.Write("Prompts.txt", "#TRUE#,#TRUE#\r\n");
        folder.Write("MyBusinessData.txt", "\"Acme\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
        folder.Write("Assignto.txt", "\"Crew A\"\r\n\"Crew B\"\r\n");
        folder.Write("Characteristics.txt",
                     "\"Permit\",1,1,0,0\r\n\"Framing\",2,2,0,0\r\n\"Drywall\",2,2,2,3\r\n");
        folder.Write("CustomerData.txt", std::string(328, ' '));
    }

    QWidget* OnScreen(Control& control) {
        QWidget* w = WindowOf(control.Parent()).WidgetOf(control);
        if (!w || !w->isVisible()) ADD_FAILURE() << control.Key() << " is not on screen";
        return w && w->isVisible() ? w : nullptr;
    }
    void Click(Control& control) {
        if (QWidget* w = OnScreen(control)) QTest::mouseClick(w, Qt::LeftButton);
        Settle();
    }
    void ClickArrow(Control& spinner, bool up) {
        if (QWidget* w = OnScreen(spinner)) {
            const auto arrows = w->findChildren<QToolButton*>();
            ASSERT_EQ(arrows.size(), 2);
            QTest::mouseClick(arrows[up ? 0 : 1], Qt::LeftButton);
        }
        Settle();
    }
    void ClickCell(Control& grid, int row, int col) {
        auto* view = qobject_cast<QTableView*>(OnScreen(grid));
        ASSERT_NE(view, nullptr);
        const auto& g = static_cast<platform::Grid&>(grid);
        const QRect cell =
            view->visualRect(view->model()->index(row - g.FixedRows(), col - g.FixedCols()));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, cell.center());
        Settle();
    }
    void ClickEntry(Control& list, int index) {
        auto* view = qobject_cast<QListWidget*>(OnScreen(list));
        ASSERT_NE(view, nullptr);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                          view->visualItemRect(view->item(index)).center());
        Settle();
    }
    // The calendar stepped by the keyboard.
    void PressOnCalendar(Control& calendar, Qt::Key key, int times) {
        auto* cal = qobject_cast<QCalendarWidget*>(OnScreen(calendar));
        ASSERT_NE(cal, nullptr);
        QWidget* days = cal->findChild<QAbstractItemView*>();
        ASSERT_NE(days, nullptr);
        days->setFocus();
        for (int i = 0; i < times; ++i) QTest::keyClick(days, key);
        Settle();
    }
    void Photograph(platform::Form& form, const std::string& name) {
        backend.FlushAll();
        Settle();
        auto& window = WindowOf(form);
        window.resize(window.NaturalSize());
        Settle();
        window.grab().save(
            QDir(QStringLiteral(SCREENSHOT_DIR)).filePath(QString::fromStdString(name) + ".png"));
    }
    bool Shown(Control& control) {
        QWidget* w = WindowOf(control.Parent()).WidgetOf(control);
        return w && w->isVisible();
    }
};

}  // namespace

TEST_F(ProjectScreenTest, AProjectIsCreatedWithTheMouseAndKeyboardAloneStageByStage) {
    Dispatch([] { SubMain(); });
    // The customer screens hand the account on.
    Dispatch([] {
        MenuRoutine = 1;
        auto& main = platform::Screen<frmMain>();
        main.Load();
        const char* billing[] = {"",   "Mary Smith", "12 Oak St",   "", "Springfield",
                                 "IL", "62701",      "217-555-0100"};
        for (int i = 1; i <= 7; ++i) main.lblCustomerInfo[i].SetCaption(billing[i]);
        main.lblAccount.SetCaption("A1001");
        main.lblPropNo[0].SetVisible(false);
        main.lblPropNo[1].SetVisible(false);
        main.Show();
    });
    auto& form = platform::Screen<frmMain>();
    ASSERT_TRUE(WaitFor([&] { return WindowOf(form).isVisible(); }));

    Photograph(form, "frmMain-stage1-project-data");
    for (Control* c : std::initializer_list<Control*>{
             &form.lblProjectNo, &form.cboProjectTitle, &form.txtCustomerInfo[1],
             &form.lblCustomerInfo[1], &form.lstMilestoneSelection, &form.cmdSetJobSite,
             &form.fraTime, &form.cmdContinue})
        EXPECT_TRUE(Shown(*c)) << c->Key();
    EXPECT_FALSE(Shown(form.fgHours));

    Click(form.cmdContinue);
    Photograph(form, "frmMain-stage2-administrative");
    EXPECT_TRUE(Shown(form.MonthView1));
    EXPECT_TRUE(Shown(form.lblConstructionInstructions[1]));
    EXPECT_FALSE(Shown(form.fraTeam));
    PressOnCalendar(form.MonthView1, Qt::Key_Right, 1);
    Click(form.cmdContinue);

    Photograph(form, "frmMain-stage2-technical");
    EXPECT_TRUE(Shown(form.lstTeam));
    EXPECT_TRUE(Shown(form.optSite));
    EXPECT_TRUE(Shown(form.txtTime));
    ClickArrow(form.UpDnTime, true);
    ClickArrow(form.UpDnTime, true);
    EXPECT_EQ(form.txtTime.Text(), "3");
    Click(form.cmdContinue);
    Photograph(form, "frmMain-stage2-hours");
    EXPECT_TRUE(Shown(form.fgHours));
    ClickCell(form.fgHours, 3, 1);
    EXPECT_EQ(form.fgHours.TextMatrix(5, 1), "Pj166-1-Framing");
    Click(form.cmdContinue);

    Photograph(form, "frmMain-stage2-dependent");
    EXPECT_TRUE(Shown(form.txtDependentEvent));
    Click(form.tgTime);
    ClickEntry(form.lstTeam, 1);
    boxes.Queue(platform::vbOK);
    Click(form.cmdContinue);
    ASSERT_TRUE(WaitFor([&] { return form.CreationMode == 5; }));

    Photograph(form, "frmMain-stage3-summary");
    EXPECT_TRUE(Shown(form.fgSummary));
    EXPECT_TRUE(Shown(form.cmdSave));
    EXPECT_EQ(form.fgSummary.TextMatrix(3, 3), "Crew B");
    Click(form.cmdSave);
    EXPECT_TRUE(folder.Exists("ConstructionProjects/Pj166-1.txt"));
    platform::Form* menu = platform::Forms::Existing("frmStartup");
    ASSERT_TRUE(menu && menu->Visible());

    // The team schedule, routine 3 of the menu.
    auto& startup = static_cast<frmStartup&>(*menu);
    ASSERT_TRUE(WaitFor([&] { return WindowOf(startup).isVisible(); }));
    Click(startup.optProgramRoutine[2]);
    Click(startup.cmdStart);
    ASSERT_TRUE(WaitFor([&] { return form.Visible() && WindowOf(form).isVisible(); }));
    PressOnCalendar(form.MonthView1, Qt::Key_Right, 0);
    Photograph(form, "frmMain-team-schedule");
    EXPECT_TRUE(Shown(form.lstTeam));
    EXPECT_TRUE(Shown(form.fra8or12HourSchedule));
    EXPECT_TRUE(Shown(form.lblPrintSched));
    Dispatch([&] { form.MonthView1.UserPick(platform::DateTime::FromYmd(2026, 6, 16)); });
    Settle();
    EXPECT_TRUE(Shown(form.fgHours));
    Click(form.cmdView);
    Photograph(form, "frmMain-day-view");
    EXPECT_TRUE(Shown(form.txtHourSlot[2]));
    Click(form.cmdHideSchedule);
    Dispatch([&] { form.mnuTeamCal.Raise("Click"); });
    Photograph(form, "frmMain-month-view");
    EXPECT_TRUE(Shown(form.Text1[16]));
}
