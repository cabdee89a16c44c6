// The program's own screens in real windows: each one drawn legibly from its registry, and
// the first run walked through with the mouse and keyboard alone.
#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTest>
#include <filesystem>
#include <sstream>

#include "QtFixture.h"
#include "frame/SubMain.h"
#include "frame/frmWelcome.h"
#include "platform/Files.h"
#include "platform/Form.h"
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

// Everything wrong with how one screen is drawn, one line a fault.
std::vector<std::string> LayoutFaults(platform::Form& form, platform::qt::FormWindow& window) {
    std::vector<std::string> faults;
    std::vector<std::pair<Control*, QWidget*>> shown;
    for (Control* c : form.Controls()) {
        if (!HasWidget(c->Type())) continue;
        QWidget* w = window.WidgetOf(*c);
        if (!w || !w->isVisibleTo(&window) || !c->Visible()) continue;
        shown.emplace_back(c, w);
        const bool onForm = c->Container().empty();
        bool hasMenu = false;
        for (Control* m : form.Controls())
            if (m->Type() == ControlType::Menu && m->Container().empty() && m->Visible())
                hasMenu = true;
        // The form's inner size as the original platform measures it from the outer one.
        const QRect client(0, 0, form.Width() - 120, form.Height() - 405 - (hasMenu ? 285 : 0));
        const QRect twips(c->Left(), c->Top(), c->Width(), c->Height());
        if (onForm ? !client.contains(twips) : !w->parentWidget()->rect().contains(w->geometry()))
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
    }
    for (size_t i = 0; i < shown.size(); ++i)
        for (size_t j = i + 1; j < shown.size(); ++j) {
            auto [a, wa] = shown[i];
            auto [b, wb] = shown[j];
            if (wa->parentWidget() == wb->parentWidget() &&
                wa->geometry().intersects(wb->geometry()))
                faults.push_back(a->Key() + " overlaps " + b->Key());
        }
    return faults;
}

// Captions too long for their box: the text would be cut off on screen.
std::vector<std::string> ClippedCaptions(platform::Form& form, platform::qt::FormWindow& window) {
    std::vector<std::string> clipped;
    for (Control* c : form.Controls()) {
        if (!HasWidget(c->Type()) || !c->Visible()) continue;
        QWidget* w = window.WidgetOf(*c);
        if (!w || !w->isVisibleTo(&window)) continue;
        if (auto* label = qobject_cast<QLabel*>(w); label && c->Type() == ControlType::Label) {
            const int need = label->wordWrap() ? label->heightForWidth(label->width())
                                               : label->sizeHint().height();
            const int wide =
                label->wordWrap() ? 0 : label->fontMetrics().horizontalAdvance(label->text());
            if (need > label->height() + 2 || wide > label->width() + 2)
                clipped.push_back(c->Key());
        } else if (auto* button = qobject_cast<QAbstractButton*>(w)) {
            if (button->sizeHint().width() > button->width() + 4) clipped.push_back(c->Key());
        }
    }
    return clipped;
}

// The whole window, even where the screen is smaller than the form.
QPixmap FullShot(platform::qt::FormWindow& window) {
    window.resize(window.NaturalSize());
    QApplication::processEvents();
    return window.grab();
}

std::string Joined(const std::vector<std::string>& lines) {
    std::ostringstream out;
    for (const auto& line : lines) out << "\n  " << line;
    return out.str();
}

}  // namespace

class ScreensTest : public QtFixture {
  protected:
    ScreensTest() {
        RegisterScreens();
        std::filesystem::create_directories(SCREENSHOT_DIR);
        // A screen that holds the caller modally is photographed and sent away again.
        modalWatch_.setInterval(20);
        QObject::connect(&modalWatch_, &QTimer::timeout, [this] {
            for (platform::qt::FormWindow* w : backend.Windows()) {
                if (!w->isVisible() || !w->Model().IsModal()) continue;
                Photograph(w->Model());
                platform::Form* form = &w->Model();
                Dispatch([form] { form->Hide(); });
            }
        });
    }

    void Photograph(platform::Form& form) {
        platform::qt::FormWindow* window = backend.WindowOf(form);
        if (!window) return;
        backend.FlushAll();
        QApplication::processEvents();
        const QString file = QDir(QStringLiteral(SCREENSHOT_DIR))
                                 .filePath(QString::fromStdString(form.Name()) + ".png");
        FullShot(*window).save(file);
        const auto faults = LayoutFaults(form, *window);
        EXPECT_TRUE(faults.empty()) << form.Name() << ":" << Joined(faults);
        const auto clipped = ClippedCaptions(form, *window);
        if (!clipped.empty())
            std::cout << "[ note ] " << form.Name() << " captions cut off:" << Joined(clipped)
                      << "\n";
    }

    QTimer modalWatch_;
};

TEST_F(ScreensTest, EveryScreenIsDrawnLegiblyFromItsRegistry) {
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
        Photograph(*form);
        // Every tab page too: a page's controls share its space with no other page's.
        std::vector<std::pair<std::string, int>> pages;
        for (Control* c : form->Controls()) {
            if (c->Type() != ControlType::Tab || !c->Visible()) continue;
            auto* tab = static_cast<platform::Tab*>(c);
            for (int page = 0; page < tab->Tabs(); ++page)
                if (tab->TabVisible(page) && tab->TabEnabled(page) && page != tab->CurrentTab())
                    pages.emplace_back(tab->Key(), page);
        }
        for (const auto& [key, page] : pages) {
            Dispatch([form, key = key, page = page] {
                if (auto* t = static_cast<platform::Tab*>(form->Find(key))) t->SetTab(page);
            });
            if (platform::Forms::Existing(name) != form || !form->Visible()) break;
            backend.FlushAll();
            QApplication::processEvents();
            platform::qt::FormWindow* window = backend.WindowOf(*form);
            FullShot(*window).save(QDir(QStringLiteral(SCREENSHOT_DIR))
                                       .filePath(QString::fromStdString(name + "-" + key + "-" +
                                                                        std::to_string(page)) +
                                                 ".png"));
            const auto faults = LayoutFaults(*form, *window);
            EXPECT_TRUE(faults.empty())
                << name << " page " << key << " " << page << ":" << Joined(faults);
        }
        if (platform::Forms::Existing(name) != form) continue;
        if (platform::Forms::Existing(name) == form && form->Visible())
            Dispatch([form] { form->Hide(); });
    }
}

namespace {

QTabBar* StripOf(QWidget* tabControl) {
    return tabControl->findChild<QTabBar*>(QString(), Qt::FindDirectChildrenOnly);
}

}  // namespace

TEST_F(ScreensTest, FirstRunGoesFromTheWelcomePageThroughSetUpToTheMainMenu) {
    Dispatch([] { SubMain(); });
    platform::Form* welcome = platform::Forms::Existing("frmWelcome");
    ASSERT_TRUE(welcome && welcome->Visible());
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
    FullShot(WindowOf(*menu))
        .save(QDir(QStringLiteral(SCREENSHOT_DIR)).filePath("first-run-menu.png"));
}
