// The desktop program: the screens in real windows over the program's own folder.
#include <sys/socket.h>
#include <unistd.h>
#include <QApplication>
#include <QFileInfo>
#include <QSocketNotifier>
#include <csignal>
#include <cstdlib>

#include "frame/Navigation.h"
#include "frame/SubMain.h"
#include "platform/Files.h"
#include "platform/Ui.h"
#include "platform/qt/QtBackend.h"
#ifdef SCHEDULER_HAVE_QTDEVICES
#include "platform/qtdevices/QtDevices.h"
#endif

namespace {

// Ctrl+C in the terminal, or the end of the session, closes the program as its Exit menu
// does, exit backup included. The signal only writes a byte; the event loop does the rest.
int stopSignals[2] = {-1, -1};

void OnStopSignal(int) {
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = write(stopSignals[1], &byte, 1);
}

void ExitOnStopSignals(QObject* owner) {
    if (socketpair(AF_UNIX, SOCK_STREAM, 0, stopSignals) != 0) return;
    auto* notifier = new QSocketNotifier(stopSignals[0], QSocketNotifier::Read, owner);
    QObject::connect(notifier, &QSocketNotifier::activated, [] {
        char byte = 0;
        [[maybe_unused]] const ssize_t got = read(stopSignals[0], &byte, 1);
        platform::Dispatch([] { ExitProgram(); });
    });
    struct sigaction action {};
    action.sa_handler = OnStopSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (int signal : {SIGINT, SIGTERM, SIGHUP}) sigaction(signal, &action, nullptr);
}

}  // namespace

int main(int argc, char** argv) {
    // The window manager and the desktop entry know the program by these names (WM_CLASS).
    if (!std::getenv("RESOURCE_NAME")) setenv("RESOURCE_NAME", "norvax-construction-scheduler", 1);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("NorvaxConstructionScheduler"));
    QApplication::setApplicationVersion(QStringLiteral(SCHEDULER_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("norvax-construction-scheduler"));

    // The program's folder is where its executable lies; all data lives below it.
    const QFileInfo executable(QCoreApplication::applicationFilePath());
    platform::SetAppFolder(executable.absolutePath().toStdString());
    platform::SetProgramFileName(executable.completeBaseName().toStdString());

    platform::qt::QtBackend backend;
    platform::SetBackend(&backend);
#ifdef SCHEDULER_HAVE_QTDEVICES
    platform::InstallQtDevices();
    // Every document is shown before it goes to paper or to a PDF file.
    platform::SetPrintPreview(true);
#endif
    ExitOnStopSignals(&app);

    RegisterScreens();
    platform::Dispatch([] { SubMain(); });
    const int status = backend.Exec();
    backend.DropAllWindows();
    platform::SetBackend(nullptr);
    return status;
}
