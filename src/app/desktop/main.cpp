// The desktop program: the screens in real windows over the program's own folder.
#include <QApplication>
#include <QFileInfo>

#include "frame/SubMain.h"
#include "platform/Files.h"
#include "platform/Ui.h"
#include "platform/qt/QtBackend.h"
#ifdef SCHEDULER_HAVE_QTDEVICES
#include "platform/qtdevices/QtDevices.h"
#endif

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Norvax Construction Scheduler"));

    // The program's folder is where its executable lies; all data lives below it.
    const QFileInfo executable(QCoreApplication::applicationFilePath());
    platform::SetAppFolder(executable.absolutePath().toStdString());
    platform::SetProgramFileName(executable.completeBaseName().toStdString());

    platform::qt::QtBackend backend;
    platform::SetBackend(&backend);
#ifdef SCHEDULER_HAVE_QTDEVICES
    platform::InstallQtDevices();
#endif

    RegisterScreens();
    platform::Dispatch([] { SubMain(); });
    const int status = backend.Exec();
    backend.DropAllWindows();
    platform::SetBackend(nullptr);
    return status;
}
