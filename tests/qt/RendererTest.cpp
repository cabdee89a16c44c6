// The generic renderer against a screen with every kind of control: what the system sets
// shows at once, and what the user does reaches the same handlers as the script driver.
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTableView>
#include <QTest>
#include <QToolButton>
#include <algorithm>
#include <filesystem>
#include <fstream>

#include <sys/wait.h>
#include <unistd.h>

#include "DemoForm.h"
#include "QtFixture.h"
#include "platform/Files.h"
#include "platform/InstanceLock.h"

using namespace qt_testing;
using platform::Dispatch;

namespace {

bool Logged(const frmDemo& form, const std::string& line) {
    return std::find(form.log.begin(), form.log.end(), line) != form.log.end();
}

}  // namespace

class RendererTest : public QtFixture {
  protected:
    frmDemo& ShowDemo() {
        frmDemo& form = platform::Screen<frmDemo>();
        Dispatch([&] {
            form.FillGrid();
            form.lstTeam.AddItem("Framing Crew");
            form.lstTeam.AddItem("Roofers");
            form.lstTeam.AddItem("Electricians");
            for (const char* day : {"Monday", "Tuesday", "Wednesday"}) form.lstDays.AddItem(day);
            for (const char* st : {"CA", "NV", "OR"}) form.cboState.AddItem(st);
            for (const char* city : {"Portland", "Salem", "Springfield", "Spokane"})
                form.cboCity.AddItem(city);
            form.Show();
        });
        backend.FlushAll();
        return form;
    }
};

TEST_F(RendererTest, PropertiesSetByTheSystemShowAtOnce) {
    frmDemo& form = ShowDemo();
    Dispatch([&] {
        form.lblName.SetCaption("Customer &Name:");
        form.txtName.SetText("Smith");
        form.optLarge.SetValue(true);
        form.ckActive.SetValue(1);
        form.lstTeam.SetListIndex(1);
        form.fgHours.SetTextMatrix(3, 1, "Pj12-1-Framing");
        form.fgHours.SetRow(3);
        form.fgHours.SetCol(1);
        form.fgHours.SetCellBackColor(platform::Rgb(255, 0, 0));
        form.cmdCancel.SetEnabled(false);
        form.ProgressBar1.SetValue(40);
        form.SetCaption("Demo Screen - Smith");
    });
    backend.FlushAll();

    EXPECT_EQ(Widget<QLabel>(form.lblName)->text(), "Customer Name:");
    EXPECT_EQ(Widget<QLineEdit>(form.txtName)->text(), "Smith");
    EXPECT_TRUE(Widget<QRadioButton>(form.optLarge)->isChecked());
    EXPECT_FALSE(Widget<QRadioButton>(form.optSmall)->isChecked());
    EXPECT_EQ(Widget<QCheckBox>(form.ckActive)->checkState(), Qt::Checked);
    EXPECT_EQ(Widget<QListWidget>(form.lstTeam)->currentRow(), 1);
    EXPECT_FALSE(Widget<QPushButton>(form.cmdCancel)->isEnabled());
    EXPECT_EQ(WindowOf(form).windowTitle(), "Demo Screen - Smith");

    auto* grid = Widget<QTableView>(form.fgHours);
    EXPECT_EQ(grid->model()->headerData(0, Qt::Horizontal).toString(), "Hour");
    EXPECT_EQ(grid->model()->headerData(1, Qt::Horizontal).toString(), "Event");
    EXPECT_EQ(
        grid->model()->headerData(0, Qt::Horizontal, Qt::TextAlignmentRole).value<Qt::Alignment>() &
            Qt::AlignHorizontal_Mask,
        Qt::AlignHCenter);
    // The fixed row is the heading; the fixed column stays a shaded cell.
    EXPECT_EQ(grid->model()->index(2, 0).data().toString(), "9:00");
    EXPECT_TRUE(grid->model()->index(2, 0).data(Qt::BackgroundRole).isValid());
    const QModelIndex cell = grid->model()->index(2, 1);
    EXPECT_EQ(cell.data().toString(), "Pj12-1-Framing");
    EXPECT_EQ(cell.data(Qt::BackgroundRole).value<QColor>(), QColor(255, 0, 0));
    EXPECT_EQ(grid->currentIndex(), cell);
}

TEST_F(RendererTest, ControlsSitInTheirFramesAndTabPages) {
    frmDemo& form = ShowDemo();
    auto* frame = Widget<QGroupBox>(form.fraKind);
    QWidget* option = WindowOf(form).WidgetOf(form.optKind1);
    EXPECT_EQ(option->parentWidget(), frame);
    EXPECT_EQ(option->geometry().topLeft(),
              QPoint(WindowOf(form).CurrentScale().X(120), WindowOf(form).CurrentScale().Y(620)));
    EXPECT_EQ(frame->title(), "Kind");

    // Only the page on show has its controls visible; a click on the strip turns the page.
    QWidget* first = WindowOf(form).WidgetOf(form.lblFirstPage);
    QWidget* second = WindowOf(form).WidgetOf(form.txtSecondPage);
    EXPECT_TRUE(first->isVisible());
    EXPECT_FALSE(second->isVisible());
    auto* bar = WindowOf(form).WidgetOf(form.SSTab1)->findChild<QTabBar*>();
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(bar->tabText(1), "&Second");
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
    EXPECT_EQ(form.SSTab1.CurrentTab(), 1);
    EXPECT_TRUE(Logged(form, "SSTab1.Click from 0"));
    EXPECT_TRUE(second->isVisible());
    EXPECT_FALSE(first->isVisible());
}

TEST_F(RendererTest, ClicksReachTheNamedHandlers) {
    frmDemo& form = ShowDemo();
    QTest::mouseClick(WindowOf(form).WidgetOf(form.cmdOK), Qt::LeftButton);
    EXPECT_TRUE(Logged(form, "cmdOK.Click"));

    QTest::mouseClick(Widget<QRadioButton>(form.optKind1), Qt::LeftButton);
    EXPECT_TRUE(form.optKind1.Value());
    EXPECT_TRUE(Logged(form, "optKind.Click 1"));
    QTest::mouseClick(Widget<QRadioButton>(form.optKind0), Qt::LeftButton);
    EXPECT_FALSE(form.optKind1.Value());
    EXPECT_FALSE(Widget<QRadioButton>(form.optKind1)->isChecked());

    // A click on a chosen option button leaves it chosen, as the platform does.
    QTest::mouseClick(Widget<QRadioButton>(form.optKind0), Qt::LeftButton);
    EXPECT_TRUE(Widget<QRadioButton>(form.optKind0)->isChecked());

    QTest::mouseClick(Widget<QCheckBox>(form.ckActive), Qt::LeftButton);
    EXPECT_EQ(form.ckActive.Value(), 1);
    EXPECT_TRUE(Logged(form, "ckActive.Click 1"));

    QTest::mouseDClick(Widget<QLabel>(form.lblName), Qt::LeftButton);
    EXPECT_TRUE(Logged(form, "lblName.DblClick"));

    auto* list = Widget<QListWidget>(form.lstTeam);
    const QPoint second = list->visualItemRect(list->item(1)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ(form.lstTeam.ListIndex(), 1);
    EXPECT_TRUE(Logged(form, "lstTeam.Click Roofers"));
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, second);
    EXPECT_TRUE(Logged(form, "lstTeam.DblClick"));

    auto* days = Widget<QListWidget>(form.lstDays);
    QTest::mouseClick(days->viewport(), Qt::LeftButton, {},
                      days->visualItemRect(days->item(0)).center());
    QTest::mouseClick(days->viewport(), Qt::LeftButton, {},
                      days->visualItemRect(days->item(2)).center());
    EXPECT_TRUE(form.lstDays.Selected(0));
    EXPECT_FALSE(form.lstDays.Selected(1));
    EXPECT_TRUE(form.lstDays.Selected(2));
    EXPECT_EQ(form.lstDays.SelCount(), 2);

    auto* combo = Widget<QComboBox>(form.cboState);
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(form.cboState.ListIndex(), 0);
    EXPECT_TRUE(Logged(form, "cboState.Click CA"));

    auto* up = WindowOf(form).WidgetOf(form.UpDn1)->findChildren<QToolButton*>().front();
    QTest::mouseClick(up, Qt::LeftButton);
    EXPECT_EQ(form.UpDn1.Value(), 1);
    EXPECT_EQ(Widget<QLineEdit>(form.txtDays)->text(), "1");

    QMenuBar* bar = WindowOf(form).Bar();
    ASSERT_TRUE(bar->isVisible());
    WindowOf(form).ActionOf(form.mnuExit)->trigger();
    EXPECT_TRUE(Logged(form, "mnuExit.Click"));
    EXPECT_FALSE(WindowOf(form).ActionOf(form.mnuPopup)->isVisible());
}

TEST_F(RendererTest, AControlDroppedOnAnotherReachesItsDragDrop) {
    frmDemo& form = ShowDemo();
    form.lstTeam.SetDragEnabled(true);
    QWidget* target = WindowOf(form).WidgetOf(form.txtName);
    QMimeData data;
    data.setData("application/x-scheduler-control", "lstTeam");
    QDragEnterEvent enter(QPoint(5, 5), Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &drop);
    EXPECT_TRUE(Logged(form, "txtName.DragDrop from lstTeam"));
}

TEST_F(RendererTest, GridCellsAnswerLeftRightAndDoubleClicks) {
    frmDemo& form = ShowDemo();
    auto* grid = Widget<QTableView>(form.fgHours);
    const QPoint fourthHour = grid->visualRect(grid->model()->index(3, 1)).center();
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, fourthHour);
    EXPECT_EQ(form.fgHours.Row(), 4);
    EXPECT_EQ(form.fgHours.Col(), 1);
    EXPECT_TRUE(Logged(form, "fgHours.Click 4,1"));

    form.log.clear();
    const QPoint sixthHour = grid->visualRect(grid->model()->index(5, 1)).center();
    QTest::mouseClick(grid->viewport(), Qt::RightButton, {}, sixthHour);
    EXPECT_EQ(form.log, (std::vector<std::string>{"fgHours.MouseDown 2"}));
    EXPECT_EQ(form.fgHours.Row(), 6);

    form.log.clear();
    QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, fourthHour);
    EXPECT_TRUE(Logged(form, "fgHours.DblClick"));
    EXPECT_EQ(std::count(form.log.begin(), form.log.end(), "fgHours.DblClick"), 1);
}

TEST_F(RendererTest, KeyPressMayRefuseOrChangeATypedKey) {
    frmDemo& form = ShowDemo();
    auto* edit = Widget<QLineEdit>(form.txtName);
    edit->setFocus();
    QTest::keyClicks(edit, "Jo3n*s");
    EXPECT_EQ(form.txtName.Text(), "Jon-s");
    EXPECT_EQ(edit->text(), "Jon-s");
    QTest::keyClick(edit, Qt::Key_Backspace);
    EXPECT_EQ(form.txtName.Text(), "Jon-");
    EXPECT_TRUE(Logged(form, "txtName.Change Jon-"));

    // Typing in the middle goes where the caret is; the length limit holds.
    edit->setCursorPosition(0);
    QTest::keyClicks(edit, "Al ");
    EXPECT_EQ(form.txtName.Text(), "Al Jon-");
    QTest::keyClicks(edit, "abcdefghij");
    EXPECT_EQ(form.txtName.Text().size(), 12u);

    // Enter in a one-line box presses the default button, Escape the cancel button.
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_TRUE(Logged(form, "cmdOK.Click"));
    QTest::keyClick(edit, Qt::Key_Escape);
    EXPECT_TRUE(Logged(form, "cmdCancel.Click"));

    auto* notes = Widget<QPlainTextEdit>(form.txtNotes);
    notes->setFocus();
    QTest::keyClicks(notes, "one");
    QTest::keyClick(notes, Qt::Key_Return);
    QTest::keyClicks(notes, "two");
    EXPECT_EQ(form.txtNotes.Text(), "one\r\ntwo");
    EXPECT_EQ(notes->toPlainText(), "one\ntwo");
}

TEST_F(RendererTest, ComboTypeAheadCompletesFromTheList) {
    frmDemo& form = ShowDemo();
    auto* combo = Widget<QComboBox>(form.cboCity);
    combo->setFocus();
    QTest::keyClicks(combo->lineEdit(), "Sp");
    EXPECT_EQ(form.cboCity.Text(), "Springfield");
    EXPECT_EQ(combo->lineEdit()->text(), "Springfield");
    EXPECT_EQ(combo->lineEdit()->selectedText(), "ringfield");
    QTest::keyClicks(combo->lineEdit(), "o");
    EXPECT_EQ(form.cboCity.Text(), "Spokane");
    EXPECT_EQ(combo->lineEdit()->selectedText(), "kane");
    QTest::keyClicks(combo->lineEdit(), "x");  // no entry: the key is typed as it is
    EXPECT_EQ(form.cboCity.Text(), "Spox");
}

TEST_F(RendererTest, AccentedNamesSurviveARoundTripThroughATextBox) {
    frmDemo& form = ShowDemo();
    const std::string ansi = "Caf\xE9 M\xFCller \x80\x96";  // é ü € en dash
    Dispatch([&] { form.txtName.SetText(ansi); });
    backend.FlushAll();
    auto* edit = Widget<QLineEdit>(form.txtName);
    EXPECT_EQ(edit->text(), QString::fromUtf8("Café Müller €–"));

    Dispatch([&] { form.txtName.SetText(""); });
    backend.FlushAll();
    edit->setFocus();
    for (QChar ch : QString::fromUtf8("Zoë Ñ")) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(ch));
        QApplication::sendEvent(edit, &press);
    }
    EXPECT_EQ(form.txtName.Text(), "Zo\xEB \xD1");
    EXPECT_EQ(platform::qt::ToAnsi(QString::fromUtf8("日")), "?");
    for (int b = 0x20; b < 0x100; ++b) {
        const std::string one(1, static_cast<char>(b));
        EXPECT_EQ(platform::qt::ToAnsi(platform::qt::FromAnsi(one)), one) << b;
    }
}

TEST_F(RendererTest, DatesPickedOnTheCalendarReachTheModel) {
    frmDemo& form = ShowDemo();
    auto* calendar = Widget<QCalendarWidget>(form.MonthView1);
    const platform::DateTime shown = form.MonthView1.Value();
    EXPECT_EQ(calendar->selectedDate(), QDate(shown.Year(), shown.Month(), shown.Day()));
    calendar->setSelectedDate(QDate(2026, 6, 18));
    EXPECT_EQ(form.MonthView1.Value(), platform::DateTime::FromYmd(2026, 6, 18));
    EXPECT_TRUE(Logged(form, "MonthView1.SelChange 6/18/2026"));

    Dispatch([&] { form.DTStart.SetValue(platform::DateTime::FromYmd(2026, 7, 4)); });
    backend.FlushAll();
    EXPECT_EQ(Widget<QDateEdit>(form.DTStart)->date(), QDate(2026, 7, 4));
    EXPECT_EQ(Widget<QDateEdit>(form.DTStart)->text(), "7/4/2026");
}

TEST_F(RendererTest, ModalFormHoldsTheCallerUntilHidden) {
    frmDemo& form = ShowDemo();
    std::vector<std::string> order;
    QTimer::singleShot(50, [&] {
        frmAsk& ask = platform::Screen<frmAsk>();
        order.push_back(WindowOf(ask).isVisible() ? "modal shown" : "modal missing");
        QTest::mouseClick(WindowOf(ask).WidgetOf(ask.cmdDone), Qt::LeftButton);
    });
    Dispatch([&] {
        order.push_back("before");
        platform::Screen<frmAsk>().Show(platform::vbModal);
        order.push_back("after");
    });
    EXPECT_EQ(order, (std::vector<std::string>{"before", "modal shown", "after"}));
    EXPECT_FALSE(WindowOf(platform::Screen<frmAsk>()).isVisible());
    EXPECT_TRUE(WindowOf(form).isVisible());
}

TEST_F(RendererTest, TitleBarCloseLeavesTheDecisionToTheForm) {
    frmDemo& form = ShowDemo();
    form.refuseUnload = true;
    WindowOf(form).close();
    EXPECT_TRUE(Logged(form, "Form.QueryUnload 0"));
    EXPECT_TRUE(form.IsLoaded());
    EXPECT_TRUE(WindowOf(form).isVisible());

    form.refuseUnload = false;
    WindowOf(form).close();
    EXPECT_EQ(platform::Forms::Existing("frmDemo"), nullptr);
    EXPECT_EQ(backend.WindowOf(form), nullptr);
}

TEST_F(RendererTest, RunTimeFailureIsShownAndEndsTheProgram) {
    frmDemo& form = ShowDemo();
    QWidget* fail = WindowOf(form).WidgetOf(form.cmdFail);
    QWidget* ok = WindowOf(form).WidgetOf(form.cmdOK);
    QTest::mouseClick(fail, Qt::LeftButton);
    ASSERT_EQ(boxes.Seen().size(), 1u);
    EXPECT_EQ(boxes.Seen()[0],
              "[Norvax Construction Scheduler] Run-time error '53':\n\nFile not found");
    EXPECT_TRUE(platform::ProgramHasEnded());
    // Nothing more runs once the program has ended.
    form.log.clear();
    QTest::mouseClick(ok, Qt::LeftButton);
    EXPECT_TRUE(form.log.empty());
}

TEST_F(RendererTest, TimerTicksDoNotOverlap) {
    frmDemo& form = ShowDemo();
    Dispatch([&] {
        form.tmrPoll.SetInterval(5);
        form.tmrPoll.SetEnabled(true);
    });
    EXPECT_TRUE(WaitFor(
        [&] { return std::count(form.log.begin(), form.log.end(), "tmrPoll.Timer") >= 3; }));
    EXPECT_EQ(form.maxTicksRunning, 1);
    Dispatch([&] { form.tmrPoll.SetEnabled(false); });
    backend.FlushAll();
    const auto ticks = std::count(form.log.begin(), form.log.end(), "tmrPoll.Timer");
    QTest::qWait(30);
    EXPECT_EQ(std::count(form.log.begin(), form.log.end(), "tmrPoll.Timer"), ticks);
}

TEST_F(RendererTest, MessageBoxesCarryTheSystemsButtonsAndAnswers) {
    boxes.Queue(platform::vbNo);
    int answer = 0;
    Dispatch([&] {
        answer = platform::MsgBox("Delete this Project?", platform::vbYesNo + platform::vbQuestion,
                                  "Delete");
    });
    EXPECT_EQ(answer, platform::vbNo);
    boxes.Queue(platform::vbCancel);
    Dispatch([&] { answer = platform::MsgBox("Print it?", platform::vbOKCancel, "Print"); });
    EXPECT_EQ(answer, platform::vbCancel);
    Dispatch([&] { answer = platform::MsgBox("Saved", platform::vbOKOnly); });
    EXPECT_EQ(answer, platform::vbOK);
    EXPECT_EQ(boxes.Seen().back(), "[Norvax Construction Scheduler] Saved");
}

TEST_F(RendererTest, OnlyTheFirstInstanceOfAFolderHoldsTheClaim) {
    EXPECT_FALSE(backend.PrevInstance());
    EXPECT_FALSE(backend.PrevInstance());  // the claim stays with the first caller
    // The claim is the process's: a second program on the folder is another process.
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) ::_exit(platform::ClaimProgramFolder(platform::AppFolder()) ? 0 : 1);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 1) << "a second process took the folder";
}

// The desktop's URL handler opens addresses; where it finds no browser the user is told the
// address instead of seeing nothing.
TEST_F(RendererTest, AnAddressNoBrowserTakesIsShownToTheUser) {
    const std::filesystem::path bin = folder.Path() / "bin";
    std::filesystem::create_directories(bin);
    const std::string opened = (folder.Path() / "opened.txt").string();
    auto handler = [&](const std::string& body) {
        std::ofstream((bin / "xdg-open").string()) << "#!/bin/sh\n" << body << "\n";
        std::filesystem::permissions(bin / "xdg-open", std::filesystem::perms::owner_all);
    };
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QByteArray::fromStdString(bin.string()) + ":" + path);

    handler("echo \"$1\" > " + opened);
    Dispatch([&] { backend.OpenUrl("https://www.norvax.com/"); });
    EXPECT_TRUE(WaitFor([&] { return std::filesystem::exists(opened); }));
    QTest::qWait(50);
    EXPECT_TRUE(boxes.Seen().empty());
    EXPECT_EQ(folder.Read("opened.txt"), "https://www.norvax.com/\n");

    handler("exit 3");  // xdg-open: no browser found
    Dispatch([&] { backend.OpenUrl("https://www.norvax.com/construction/manual.html"); });
    EXPECT_TRUE(WaitFor([&] { return !boxes.Seen().empty(); }));
    qputenv("PATH", path);
    ASSERT_FALSE(boxes.Seen().empty());
    EXPECT_EQ(boxes.Seen().back(),
              "[Norvax Construction Scheduler] No web browser could be started. The address "
              "is:\nhttps://www.norvax.com/construction/manual.html");
}
