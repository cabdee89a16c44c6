#include "platform/qt/QtBackend.h"

#include <QApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QEventLoop>
#include <QGridLayout>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>
#include <QUrl>
#include <cmath>

#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/InstanceLock.h"
#include "platform/qt/Ansi.h"
#include "platform/qt/FormWindow.h"
#include "platform/qt/ProgramPictures.h"

namespace platform::qt {
namespace {

constexpr int kButtonMask = 7;
constexpr int kIconMask = 0x70;
constexpr int kDefaultButtonMask = 0x300;

QFont ProgramFont() {
    QFont font;
    // Metric-compatible with the original's sans serif where installed.
    font.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("Arimo"),
                      QStringLiteral("Arial"), QStringLiteral("DejaVu Sans Condensed"),
                      QStringLiteral("DejaVu Sans")});
    font.setPixelSize(static_cast<int>(std::lround(kDefaultTextPixels * kBaseScale)));
    return font;
}

// Room the window manager takes beside a title: its icon and its buttons.
constexpr int kTitleBarExtras = 160;

// The window manager writes the title in its own, larger font and cuts it short when the box
// is narrower: the box is made wide enough for the whole title.
void KeepTitleWhole(QMessageBox& box) {
    QFont titleFont = QApplication::font();
    titleFont.setBold(true);
    titleFont.setPixelSize(std::max(titleFont.pixelSize(), 16));
    const int wanted =
        QFontMetrics(titleFont).horizontalAdvance(box.windowTitle()) + kTitleBarExtras;
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout()))
        grid->addItem(new QSpacerItem(wanted, 0, QSizePolicy::Minimum, QSizePolicy::Minimum),
                      grid->rowCount(), 0, 1, grid->columnCount());
}

}  // namespace

QtBackend::QtBackend() {
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setFont(ProgramFont());
    QApplication::setQuitOnLastWindowClosed(false);
    ChooseIconTheme();
    QApplication::setWindowIcon(ProgramIcon());
}

QtBackend::~QtBackend() {
    DropAllWindows();
}

int QtBackend::MsgBox(const std::string& prompt, int buttons, const std::string& title) {
    FlushAll();
    QWidget* parent = QApplication::activeWindow();
    if (!parent)
        for (FormWindow* w : Windows())
            if (w->isVisible()) parent = w;
    QMessageBox box(parent);
    QString text = FromAnsi(prompt);
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    box.setText(text);
    box.setTextFormat(Qt::PlainText);
    box.setWindowTitle(FromAnsi(title));
    switch (buttons & kIconMask) {
        case vbCritical:
            box.setIcon(QMessageBox::Critical);
            break;
        case vbQuestion:
            box.setIcon(QMessageBox::Question);
            break;
        case vbExclamation:
            box.setIcon(QMessageBox::Warning);
            break;
        case vbInformation:
            box.setIcon(QMessageBox::Information);
            break;
        default:
            break;
    }
    struct Choice {
        QMessageBox::StandardButton button;
        int answer;
    };
    std::vector<Choice> choices;
    switch (buttons & kButtonMask) {
        case vbOKCancel:
            choices = {{QMessageBox::Ok, vbOK}, {QMessageBox::Cancel, vbCancel}};
            break;
        case vbYesNoCancel:
            choices = {{QMessageBox::Yes, vbYes},
                       {QMessageBox::No, vbNo},
                       {QMessageBox::Cancel, vbCancel}};
            break;
        case vbYesNo:
            choices = {{QMessageBox::Yes, vbYes}, {QMessageBox::No, vbNo}};
            break;
        default:
            choices = {{QMessageBox::Ok, vbOK}};
            break;
    }
    std::vector<QAbstractButton*> made;
    for (const Choice& c : choices) made.push_back(box.addButton(c.button));
    const size_t preferred = static_cast<size_t>((buttons & kDefaultButtonMask) >> 8);
    box.setDefaultButton(static_cast<QPushButton*>(made[std::min(preferred, made.size() - 1)]));
    // Escape answers Cancel, or OK when OK is all there is; a Yes/No question must be answered.
    const int kind = buttons & kButtonMask;
    if (kind == vbOKOnly)
        box.setEscapeButton(made[0]);
    else if (kind == vbOKCancel || kind == vbYesNoCancel)
        box.setEscapeButton(made.back());
    KeepTitleWhole(box);
    // The box takes the keyboard; the control that had it gets it back, whatever window the
    // window manager activates next.
    const QPointer<QWidget> focused = QApplication::focusWidget();
    box.exec();
    if (focused && focused->isVisible()) {
        focused->activateWindow();
        focused->setFocus(Qt::ActiveWindowFocusReason);
    }
    QAbstractButton* clicked = box.clickedButton();
    for (size_t i = 0; i < made.size(); ++i)
        if (made[i] == clicked) return choices[i].answer;
    return kind == vbYesNo ? vbNo : choices.back().answer;
}

void QtBackend::Beep() {
    QApplication::beep();
}

DateTime QtBackend::Now() {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate d = now.date();
    const QTime t = now.time();
    return DateTime::FromYmdHms(d.year(), d.month(), d.day(), t.hour(), t.minute(), t.second());
}

void QtBackend::RunModal(Form& form) {
    FlushAll();
    if (!form.Visible() || ProgramHasEnded()) return;
    QEventLoop loop;
    modalLoops_.push_back({&form, &loop});
    loop.exec(QEventLoop::DialogExec);
    for (auto it = modalLoops_.begin(); it != modalLoops_.end(); ++it)
        if (it->loop == &loop) {
            modalLoops_.erase(it);
            break;
        }
}

void QtBackend::DoEvents() {
    FlushAll();
    QCoreApplication::processEvents(QEventLoop::AllEvents);
}

FormWindow& QtBackend::WindowFor(Form& form) {
    auto it = windows_.find(&form);
    if (it != windows_.end() && it->second && !it->second->Detached()) return *it->second;
    auto* window = new FormWindow(form, *this);
    windows_[&form] = window;
    return *window;
}

void QtBackend::FormLoaded(Form& form) {
    WindowFor(form);
}

void QtBackend::FormShown(Form& form) {
    FormWindow& window = WindowFor(form);
    window.FlushAll();
    const Qt::WindowModality modality = form.IsModal() ? Qt::ApplicationModal : Qt::NonModal;
    if (window.windowModality() != modality) {
        window.hide();
        window.setWindowModality(modality);
    }
    if (!window.property("placed").toBool()) {
        window.setProperty("placed", true);
        window.FitContents();
        if (const QScreen* screen = QApplication::primaryScreen()) {
            const QRect room = screen->availableGeometry();
            window.move(room.center() - QPoint(window.width() / 2, window.height() / 2));
        }
    }
    window.show();
    window.raise();
    window.activateWindow();
}

void QtBackend::FormHidden(Form& form) {
    if (FormWindow* window = WindowOf(form)) window->hide();
    for (const ModalLoop& m : modalLoops_)
        if (m.form == &form) m.loop->quit();
}

void QtBackend::FormUnloaded(Form& form) {
    auto it = windows_.find(&form);
    if (it != windows_.end()) {
        if (FormWindow* window = it->second) {
            window->Detach();
            window->hide();
            // The window may be in the middle of delivering the event that unloaded it.
            window->deleteLater();
        }
        windows_.erase(it);
    }
    for (const ModalLoop& m : modalLoops_)
        if (m.form == &form) m.loop->quit();
}

void QtBackend::FocusRequested(Control& control) {
    if (FormWindow* window = WindowOf(control.Parent())) {
        window->Flush();
        window->FocusControl(control);
    }
}

void QtBackend::PopupMenu(Form& form, Control& menu) {
    FlushAll();
    if (FormWindow* window = WindowOf(form)) window->ShowPopup(menu);
}

bool QtBackend::PrevInstance() {
    // The claim is on the program folder itself, held for the life of the process.
    return !ClaimProgramFolder(AppFolder());
}

void QtBackend::OpenUrl(const std::string& url) {
    // Where no browser can be started the user is told the address, to open it by hand.
    // The handler answers later, perhaps after this backend is gone: the box goes to the one
    // in use then.
    auto tellUser = [url] {
        platform::MsgBox("No web browser could be started. The address is:\r\n" + url,
                         vbInformation);
    };
    const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (opener.isEmpty()) {
        if (!QDesktopServices::openUrl(QUrl::fromUserInput(FromAnsi(url)))) tellUser();
        return;
    }
    // The desktop's own handler; it says by its exit status whether a browser took the address.
    auto* process = new QProcess(QCoreApplication::instance());
    process->setProgram(opener);
    process->setArguments({FromAnsi(url)});
    process->setStandardInputFile(QProcess::nullDevice());
    QObject::connect(process, &QProcess::finished, process,
                     [process, tellUser](int status, QProcess::ExitStatus how) {
                         process->deleteLater();
                         if (how != QProcess::NormalExit || status != 0) tellUser();
                     });
    QObject::connect(process, &QProcess::errorOccurred, process,
                     [process, tellUser](QProcess::ProcessError error) {
                         if (error != QProcess::FailedToStart) return;
                         process->deleteLater();
                         tellUser();
                     });
    process->start();
}

void QtBackend::Quit() {
    for (FormWindow* window : Windows()) {
        window->StopTimers();
        window->hide();
    }
    for (const ModalLoop& m : modalLoops_) m.loop->quit();
    // Leaving the main loop is only asked of a running one: asked before, Qt would refuse
    // every later event loop, message boxes included.
    if (mainLoopRunning_) QCoreApplication::exit(0);
}

int QtBackend::Exec() {
    if (ProgramHasEnded()) return 0;
    mainLoopRunning_ = true;
    const int status = QApplication::exec();
    mainLoopRunning_ = false;
    return status;
}

FormWindow* QtBackend::WindowOf(const Form& form) const {
    auto it = windows_.find(&form);
    return it == windows_.end() ? nullptr : it->second.data();
}

std::vector<FormWindow*> QtBackend::Windows() const {
    std::vector<FormWindow*> all;
    for (const auto& [form, window] : windows_)
        if (window) all.push_back(window);
    return all;
}

void QtBackend::FlushAll() {
    for (FormWindow* window : Windows()) window->Flush();
}

void QtBackend::DropAllWindows() {
    for (FormWindow* window : Windows()) {
        window->Detach();
        delete window;
    }
    windows_.clear();
}

}  // namespace platform::qt
