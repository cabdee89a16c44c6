#include "platform/qt/ProgramPictures.h"

#include <QDir>
#include <QFileInfo>
#include <array>

#include "platform/Pictures.h"

namespace platform::qt {
namespace {

struct Role {
    const char* picture;
    std::array<const char*, 2> themeNames;  // the freedesktop name first
    const char* ownDrawing;
};

constexpr Role kRoles[] = {
    {pictures::kNextPage, {"go-next", nullptr}, ":/pictures/next-page.svg"},
    {pictures::kPreviousPage, {"go-previous", nullptr}, ":/pictures/previous-page.svg"},
    {pictures::kClear, {"edit-clear-all", "edit-clear"}, ":/pictures/clear.svg"},
    {pictures::kReload, {"view-refresh", nullptr}, ":/pictures/reload.svg"},
    {pictures::kSetup, {"preferences-system", "configure"}, ":/pictures/setup.svg"},
    {pictures::kDial, {"call-start", nullptr}, ":/pictures/dial.svg"},
    {pictures::kHangUp, {"call-stop", nullptr}, ":/pictures/hang-up.svg"},
    {pictures::kPrint, {"document-print", nullptr}, ":/pictures/print.svg"},
    {pictures::kFind, {"edit-find", nullptr}, ":/pictures/find.svg"},
    {pictures::kProgram, {nullptr, nullptr}, ":/pictures/program.svg"},
};

}  // namespace

void ChooseIconTheme() {
    const QString current = QIcon::themeName();
    if (!current.isEmpty() && current != QStringLiteral("hicolor")) return;
    for (const QString& root : QIcon::themeSearchPaths())
        if (QFileInfo::exists(QDir(root).filePath(QStringLiteral("breeze/index.theme")))) {
            QIcon::setThemeName(QStringLiteral("breeze"));
            return;
        }
}

bool IsRolePicture(const std::string& picture) {
    return picture.rfind(pictures::kPrefix, 0) == 0;
}

QIcon RoleIcon(const std::string& picture) {
    for (const Role& role : kRoles) {
        if (picture != role.picture) continue;
        for (const char* name : role.themeNames) {
            if (!name) continue;
            const QIcon themed = QIcon::fromTheme(QString::fromLatin1(name));
            if (!themed.isNull()) return themed;
        }
        return QIcon(QString::fromLatin1(role.ownDrawing));
    }
    return {};
}

QIcon ProgramIcon() {
    return RoleIcon(pictures::kProgram);
}

}  // namespace platform::qt
