// The program's own screens in real windows: each one, every tab and inner page of it, drawn
// legibly from its registry at the size of the screen it is shown on, and the first run walked
// through with the mouse and with the keyboard alone. CTest runs this suite again on screens
// of 1600x1000, 1280x720 and 1600x1000 at scale 2 (see CMakeLists.txt); each run keeps its
// pictures in a folder named after the screen.
#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QTabBar>
#include <QTest>
#include <filesystem>
#include <sstream>

#include "QtFixture.h"
#include "frame/SubMain.h"
#include "frame/frmWelcome.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/Pictures.h"
#include "platform/qt/ControlView.h"
#include "platform/qt/ImageView.h"
#include "setup/frmSetup.h"

using namespace qt_testing;
using platform::Control;
using platform::ControlType;
using platform::Dispatch;

namespace {

QString ShownText(const QString& caption) {
    QString out;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i] == u'&' && i + 1 < caption.size()) ++i;
        out.append(caption[i]);
    }
    return out;
}

bool HasWidget(ControlType type) {
    return type != ControlType::Menu && type != ControlType::Timer;
}

bool Shown(platform::qt::FormWindow& window, Control& c) {
    QWidget* w = window.WidgetOf(c);
    return HasWidget(c.Type()) && c.Visible() && w && w->isVisibleTo(&window);
}

// Everything wrong with how one screen is drawn, one line a fault: controls outside their
// container or on top of each other, captions other than the model's or cut off, pictures
// that draw nothing, and a window that does not fit its screen or scrolls.
std::vector<std::string> LayoutFaults(platform::Form& form, platform::qt::FormWindow& window) {
    std::vector<std::string> faults;
    std::vector<std::pair<Control*, QWidget*>> shown;
    bool hasMenu = false;
    for (Control* m : form.Controls())
        if (m->Type() == ControlType::Menu && m->Container().empty() && m->Visible())
            hasMenu = true;
    // The form's inner size as the original platform measures it from the outer one.
    const QRect client(0, 0, form.Width() - 120, form.Height() - 405 - (hasMenu ? 285 : 0));
    for (Control* c : form.Controls()) {
        if (!Shown(window, *c)) continue;
        QWidget* w = window.WidgetOf(*c);
        shown.emplace_back(c, w);
        const QRect twips(c->Left(), c->Top(), c->Width(), c->Height());
        if (c->Container().empty() ? !client.contains(twips)
                                   : !w->parentWidget()->rect().contains(w->geometry()))
            faults.push_back(c->Key() + " reaches outside " +
                             (c->Container().empty() ? std::string("the form") : c->Container()));
        const QString caption = platform::qt::FromAnsi(c->Caption());
        if (auto* button = qobject_cast<QAbstractButton*>(w);
            button && button->text().replace(u'\n', u' ') != caption)
            faults.push_back(c->Key() + " shows \"" + platform::qt::ToAnsi(button->text()) + "\"");
        if (auto* label = qobject_cast<QLabel*>(w);
            label && c->Type() == ControlType::Label && label->text() != ShownText(caption))
            faults.push_back(c->Key() + " shows \"" + platform::qt::ToAnsi(label->text()) + "\"");
        if (auto* frame = qobject_cast<QGroupBox*>(w);
            frame && frame->title() != ShownText(caption))
            faults.push_back(c->Key() + " shows \"" + platform::qt::ToAnsi(frame->title()) + "\"");
        if (auto* label = qobject_cast<QLabel*>(w); label && c->Type() == ControlType::Label) {
            const int need = label->wordWrap() ? label->heightForWidth(label->width())
                                               : label->sizeHint().height();
            const int wide =
                label->wordWrap() ? 0 : label->fontMetrics().horizontalAdvance(label->text());
            if (need > label->height() + 2 || wide > label->width() + 2)
                faults.push_back(c->Key() + " has its caption cut off");
        } else if (auto* button = qobject_cast<QAbstractButton*>(w)) {
            // Each line of the caption beside the box or tick mark the button draws.
            const bool pushButton = c->Type() == ControlType::CommandButton;
            const int mark =
                pushButton ? 6 : button->style()->pixelMetric(QStyle::PM_IndicatorWidth) + 4;
            const QStringList lines = ShownText(button->text()).split(u'\n');
            int wide = 0;
            for (const QString& line : lines)
                wide = std::max(wide, button->fontMetrics().horizontalAdvance(line));
            const int high = static_cast<int>(lines.size()) * button->fontMetrics().height();
            if (wide + mark > button->width() + 2 || high > button->height() + 2)
                faults.push_back(c->Key() + " has its caption cut off");
        }
        if (c->Type() == ControlType::Image) {
            const auto& picture = static_cast<platform::Image*>(c)->Picture();
            auto* view = dynamic_cast<platform::qt::ImageView*>(window.ViewOf(*c));
            if (!picture.empty() && (!view || !view->ShowsPicture()))
                faults.push_back(c->Key() + " draws no picture for " + picture);
        }
    }
    for (size_t i = 0; i < shown.size(); ++i)
        for (size_t j = i + 1; j < shown.size(); ++j) {
            auto [a, wa] = shown[i];
            auto [b, wb] = shown[j];
            if (wa->parentWidget() == wb->parentWidget() &&
                wa->geometry().intersects(wb->geometry()))
                faults.push_back(a->Key() + " overlaps " + b->Key());
        }
    // Screens from 1280x720 up must show every form whole; on smaller ones (the offscreen
    // default) a form may keep legible text and scroll instead.
    const QScreen* screen = QApplication::primaryScreen();
    const QSize pixels = screen->size() * screen->devicePixelRatio();
    if (pixels.width() < 1280 || pixels.height() < 720) return faults;
    const QRect room = screen->availableGeometry();
    if (window.width() > room.width() || window.height() > room.height())
        faults.push_back("the window is larger than the screen");
    if (auto* scroll = window.findChild<QScrollArea*>();
        scroll &&
        (scroll->horizontalScrollBar()->isVisible() || scroll->verticalScrollBar()->isVisible()))
        faults.push_back("the form scrolls");
    return faults;
}

std::string Joined(const std::vector<std::string>& lines) {
    std::ostringstream out;
    for (const auto& line : lines) out << "\n  " << line;
    return out.str();
}

// One folder a screen: "1280x720", or "1600x1000@2x" with its pixels doubled.
QString ShotFolder() {
    const QScreen* screen = QApplication::primaryScreen();
    const double ratio = screen->devicePixelRatio();
    const QSize pixels = screen->size() * ratio;
    QString name = QStringLiteral("%1x%2").arg(pixels.width()).arg(pixels.height());
    if (ratio != 1.0) name += QStringLiteral("@%1x").arg(ratio);
    const QString folder = QDir(QStringLiteral(SCREENSHOT_DIR)).filePath(name);
    QDir().mkpath(folder);
    return folder;
}

// The tab control a tab control stands on, with the page; null for one on the form.
platform::Tab* OuterTab(platform::Form& form, Control& tab, int& page) {
    Control* outer = tab.Container().empty() ? nullptr : form.Find(tab.Container());
    page = tab.TabPage();
    return outer && outer->Type() == ControlType::Tab ? static_cast<platform::Tab*>(outer)
                                                      : nullptr;
}

QTabBar* StripOf(QWidget* tabControl) {
    return tabControl->findChild<QTabBar*>(QString(), Qt::FindDirectChildrenOnly);
}

}  // namespace

class ScreensTest : public QtFixture {
  protected:
    ScreensTest() {
        RegisterScreens();
        // A screen that holds the caller modally is photographed and sent away again.
        modalWatch_.setInterval(20);
        QObject::connect(&modalWatch_, &QTimer::timeout, [this] {
            for (platform::qt::FormWindow* w : backend.Windows()) {
                if (!w->isVisible() || !w->Model().IsModal()) continue;
                Photograph(w->Model(), w->Model().Name());
                platform::Form* form = &w->Model();
                Dispatch([form] { form->Hide(); });
            }
        });
    }

    // The window as the user sees it on this screen, checked for every fault.
    void Photograph(platform::Form& form, const std::string& name) {
        platform::qt::FormWindow* window = backend.WindowOf(form);
        if (!window) return;
        backend.FlushAll();
        QApplication::processEvents();
        window->grab().save(
            QDir(ShotFolder()).filePath(QString::fromStdString(name) + QStringLiteral(".png")));
        const auto faults = LayoutFaults(form, *window);
        EXPECT_TRUE(faults.empty()) << name << ":" << Joined(faults);
    }

    // Every page of every tab control, an inner one with its outer tab turned to it first.
    void PhotographPages(platform::Form& form) {
        const std::string name = form.Name();
        for (Control* c : form.Controls()) {
            if (c->Type() != ControlType::Tab || !c->Visible()) continue;
            auto* tab = static_cast<platform::Tab*>(c);
            for (int page = 0; page < tab->Tabs(); ++page) {
                if (!tab->TabVisible(page) || !tab->TabEnabled(page)) continue;
                Dispatch([&form, tab, page] {
                    int outerPage = 0;
                    if (platform::Tab* outer = OuterTab(form, *tab, outerPage))
                        outer->SetTab(outerPage);
                    tab->SetTab(page);
                });
                if (platform::Forms::Existing(name) != &form || !form.Visible()) return;
                Photograph(form, name + "-" + tab->Key() + "-" + std::to_string(page));
            }
        }
    }

    void ShowAndPhotograph(const std::string& name, const std::string& shot) {
        Dispatch([&] { platform::Forms::Get(name).Show(); });
        ASSERT_FALSE(platform::ProgramHasEnded()) << "showing " << name << " ended the program";
        platform::Form* form = platform::Forms::Existing(name);
        if (form && form->Visible()) Photograph(*form, shot);
    }

    QTimer modalWatch_;
};

TEST_F(ScreensTest, EveryScreenAndEveryPageIsDrawnWholeOnThisScreen) {
    Dispatch([] { SubMain(); });
    ASSERT_FALSE(platform::ProgramHasEnded());
    modalWatch_.start();
    const auto names = platform::Forms::Names();
    ASSERT_FALSE(names.empty());
    for (const std::string& name : names) {
        SCOPED_TRACE(name);
        Dispatch([&] { platform::Forms::Get(name).Show(); });
        ASSERT_FALSE(platform::ProgramHasEnded()) << "showing " << name << " ended the program";
        platform::Form* form = platform::Forms::Existing(name);
        if (!form || !form->Visible()) continue;  // its own logic sent it away at once
        Photograph(*form, name);
        PhotographPages(*form);
        if (platform::Forms::Existing(name) == form && form->Visible())
            Dispatch([form] { form->Hide(); });
    }
}

TEST_F(ScreensTest, MainMenuInEachOfItsThreeStates) {
    // No customer yet: only the customer routine is open, after the message that says so.
    ShowAndPhotograph("frmStartup", "frmStartup-no-customer");
    EXPECT_NE(std::find(boxes.Seen().begin(), boxes.Seen().end(),
                        "[Norvax Construction Scheduler] Create your 1st Customer Record Now"),
              boxes.Seen().end());
    Dispatch([] { platform::Forms::Get("frmStartup").Unload(); });

    // Customers but no project: the project routines are closed.
    folder.Write("CustomerData.txt", std::string(328, ' '));
    ShowAndPhotograph("frmStartup", "frmStartup-no-project");
    auto* menu = platform::Forms::Existing("frmStartup");
    ASSERT_NE(menu, nullptr);
    EXPECT_FALSE(menu->Find("optProgramRoutine(9)")->Enabled());
    Dispatch([] { platform::Forms::Get("frmStartup").Unload(); });

    // A project on file: every routine is open.
    folder.MakeDirs("ConstructionProjects");
    folder.Write("ConstructionProjects/Pj166-1.txt", "\r\n");
    ShowAndPhotograph("frmStartup", "frmStartup-with-projects");
    menu = platform::Forms::Existing("frmStartup");
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(menu->Find("optProgramRoutine(9)")->Enabled());
}

TEST_F(ScreensTest, MessageBoxesOfEachKindShowTheirWholeTitleAndText) {
    struct Kind {
        std::string name, text, title;
        int buttons;
        QMessageBox::StandardButton preferred;
    };
    const std::vector<Kind> kinds = {
        {"box-information", "The Milestone Characteristics have been Created", "",
         platform::vbInformation, QMessageBox::Ok},
        {"box-exclamation", "You Have Not Created All Required Files", "", platform::vbExclamation,
         QMessageBox::Ok},
        {"box-critical", "Path/File access error", "", platform::vbCritical, QMessageBox::Ok},
        {"box-ok-cancel", "This will Clear All Milestones", "Clear Milestones",
         platform::vbOKCancel + platform::vbQuestion + platform::vbDefaultButton2,
         QMessageBox::Cancel},
        {"box-yes-no", "Do you want to reset (clear)all Business Data?", "Reset Business Data",
         platform::vbYesNo + platform::vbQuestion + platform::vbDefaultButton2, QMessageBox::No},
        {"box-yes-no-cancel", "Review your Selections\r\nIf correct, press YES",
         "Verify Attributes", platform::vbYesNoCancel + platform::vbQuestion, QMessageBox::Yes},
    };
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(kind.name);
        std::vector<std::string> faults;
        boxes.OnEachBox([&](QMessageBox& box) {
            box.grab().save(
                QDir(ShotFolder())
                    .filePath(QString::fromStdString(kind.name) + QStringLiteral(".png")));
            QFont titleFont = QApplication::font();
            titleFont.setBold(true);
            titleFont.setPixelSize(std::max(titleFont.pixelSize(), 16));
            if (box.width() < QFontMetrics(titleFont).horizontalAdvance(box.windowTitle()))
                faults.push_back("the title is cut short");
            if (box.defaultButton() != box.button(kind.preferred))
                faults.push_back("Enter answers another button");
            for (QLabel* label : box.findChildren<QLabel*>())
                if (label->isVisible() && label->sizeHint().width() > label->width() + 2)
                    faults.push_back("text cut off: " + platform::qt::ToAnsi(label->text()));
            if (box.width() > QApplication::primaryScreen()->availableGeometry().width())
                faults.push_back("wider than the screen");
        });
        Dispatch([&] { platform::MsgBox(kind.text, kind.buttons, kind.title); });
        boxes.OnEachBox(nullptr);
        EXPECT_TRUE(faults.empty()) << Joined(faults);
    }
}

TEST_F(ScreensTest, FirstRunGoesFromTheWelcomePageThroughSetUpToTheMainMenu) {
    Dispatch([] { SubMain(); });
    platform::Form* welcome = platform::Forms::Existing("frmWelcome");
    ASSERT_TRUE(welcome && welcome->Visible());
    Photograph(*welcome, "frmWelcome");
    auto& setup = static_cast<frmSetup&>(platform::Forms::Get("frmSetup"));
    auto click = [&](platform::Form& form, Control& control) {
        QWidget* w = WindowOf(form).WidgetOf(control);
        ASSERT_TRUE(w && w->isVisible()) << control.Key() << " is not on screen";
        QTest::mouseClick(w, Qt::LeftButton);
    };
    auto type = [&](platform::Form& form, Control& control, const QString& text) {
        QWidget* w = WindowOf(form).WidgetOf(control);
        ASSERT_TRUE(w && w->isVisible()) << control.Key() << " is not on screen";
        QTest::mouseClick(w, Qt::LeftButton);
        QWidget* target = w;
        if (auto* combo = qobject_cast<QComboBox*>(w); combo && combo->lineEdit())
            target = combo->lineEdit();
        QTest::keyClicks(target, text);
    };
    auto turnTo = [&](int page) {
        QTabBar* strip = StripOf(WindowOf(setup).WidgetOf(setup.tabSetup));
        ASSERT_NE(strip, nullptr);
        QTest::mouseClick(strip, Qt::LeftButton, {}, strip->tabRect(page).center());
        ASSERT_EQ(setup.tabSetup.CurrentTab(), page);
    };

    click(*welcome, static_cast<frmWelcome*>(welcome)->cmdSetup);
    ASSERT_TRUE(setup.Visible());
    EXPECT_EQ(platform::Forms::Existing("frmWelcome"), nullptr);

    type(setup, setup.txtBusiness[0], "Hammer & Sons Construction");
    type(setup, setup.txtBusiness[1], "12 Elm Street");
    type(setup, setup.txtBusiness[6], "503-555-0142");

    turnTo(frmSetup::kAssignmentsTab);
    type(setup, setup.cboAssignments, "Framing Crew");
    click(setup, setup.cmdSave);

    turnTo(frmSetup::kMilestonesTab);
    type(setup, setup.cboMilestones, "Excavation");
    click(setup, setup.cmdAddMilestone);

    click(setup, setup.cmdQuit);
    EXPECT_FALSE(setup.Visible());
    platform::Form* menu = platform::Forms::Existing("frmStartup");
    ASSERT_TRUE(menu && menu->Visible());
    EXPECT_TRUE(WindowOf(*menu).isVisible());
    EXPECT_FALSE(platform::ProgramHasEnded());

    EXPECT_NE(
        folder.Read("MyBusinessData.txt").find("\"Hammer & Sons Construction\",\"12 Elm Street\""),
        std::string::npos);
    EXPECT_NE(folder.Read("MyBusinessData.txt").find("\"503-555-0142\""), std::string::npos);
    EXPECT_EQ(folder.Read("Assignto.txt"), "\"Framing Crew\"\r\n");
    EXPECT_EQ(folder.Read("Characteristics.txt").rfind("\"Excavation\",", 0), 0u);
    Photograph(*menu, "first-run-menu");
}

class KeyboardTest : public QtFixture {
  protected:
    KeyboardTest() { RegisterScreens(); }

    static QWidget* Focus() { return QApplication::focusWidget(); }

    // Tab until the control has the keyboard; every stop on the way is a visible control.
    bool TabTo(platform::Form& form, Control& control, int most = 40) {
        QWidget* target = WindowOf(form).ViewOf(control)->FocusTarget();
        for (int i = 0; i < most && Focus() != target; ++i) {
            QTest::keyClick(Focus(), Qt::Key_Tab);
            Settle();
            EXPECT_TRUE(Focus() && Focus()->isVisible()) << "Tab stopped on nothing visible";
            EXPECT_FALSE(qobject_cast<QScrollArea*>(Focus())) << "Tab stopped on the scroll area";
        }
        return Focus() == target;
    }

    void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(Focus(), static_cast<Qt::Key>(key), modifiers);
        Settle();
    }
};

TEST_F(KeyboardTest, SetUpIsWalkedThroughWithTheKeyboardAlone) {
    Dispatch([] { SubMain(); });
    platform::Form* welcome = platform::Forms::Existing("frmWelcome");
    ASSERT_TRUE(welcome && welcome->Visible());
    auto& setup = static_cast<frmSetup&>(platform::Forms::Get("frmSetup"));
    // Enter answers the welcome page's default button.
    WindowOf(*welcome).activateWindow();
    QTest::keyClick(&WindowOf(*welcome), Qt::Key_Return);
    Settle();
    ASSERT_TRUE(setup.Visible());
    ASSERT_TRUE(WaitFor([&] { return Focus() == WindowOf(setup).WidgetOf(setup.txtBusiness[0]); }));

    QTest::keyClicks(Focus(), "Hammer & Sons Construction");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Focus(), WindowOf(setup).WidgetOf(setup.txtBusiness[1]));
    QTest::keyClicks(Focus(), "12 Elm Street");

    // Ctrl+Tab turns the pages; the Assignments page puts the keyboard in its box.
    for (int page = 0; page < frmSetup::kAssignmentsTab; ++page)
        Key(Qt::Key_Tab, Qt::ControlModifier);
    ASSERT_EQ(setup.tabSetup.CurrentTab(), frmSetup::kAssignmentsTab);
    ASSERT_TRUE(WaitFor(
        [&] { return Focus() == WindowOf(setup).ViewOf(setup.cboAssignments)->FocusTarget(); }));
    QTest::keyClicks(Focus(), "Framing Crew");
    ASSERT_TRUE(TabTo(setup, setup.cmdSave));
    Key(Qt::Key_Return);
    EXPECT_EQ(folder.Read("Assignto.txt"), "\"Framing Crew\"\r\n");

    // Ctrl+PgDn to the milestones; Enter on Add with an empty box brings a message, after
    // which the keyboard is back on the button.
    Key(Qt::Key_PageDown, Qt::ControlModifier);
    ASSERT_EQ(setup.tabSetup.CurrentTab(), frmSetup::kMilestonesTab);
    ASSERT_TRUE(TabTo(setup, setup.cmdAddMilestone));
    Key(Qt::Key_Return);
    EXPECT_EQ(boxes.Seen().back(),
              "[Norvax Construction Scheduler] Enter a New Milestone in the Box to the Left");
    EXPECT_EQ(Focus(), WindowOf(setup).WidgetOf(setup.cmdAddMilestone));
    ASSERT_TRUE(TabTo(setup, setup.cboMilestones));
    QTest::keyClicks(Focus(), "Excavation");
    ASSERT_TRUE(TabTo(setup, setup.cmdAddMilestone));
    Key(Qt::Key_Return);

    // Back a page with Ctrl+Shift+Tab, and Ctrl+PgUp, then save and return to the menu.
    Key(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(setup.tabSetup.CurrentTab(), frmSetup::kAssignmentsTab);
    Key(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(setup.tabSetup.CurrentTab(), frmSetup::kOperationsTab);
    ASSERT_TRUE(TabTo(setup, setup.cmdQuit));
    Key(Qt::Key_Return);
    EXPECT_FALSE(setup.Visible());
    platform::Form* menu = platform::Forms::Existing("frmStartup");
    ASSERT_TRUE(menu && menu->Visible());
    EXPECT_NE(
        folder.Read("MyBusinessData.txt").find("\"Hammer & Sons Construction\",\"12 Elm Street\""),
        std::string::npos);
    EXPECT_EQ(folder.Read("Characteristics.txt").rfind("\"Excavation\",", 0), 0u);
}
