#include "platform/qtdevices/MetricFonts.h"

#include <QFont>
#include <QFontInfo>
#include <QStringList>

namespace platform {
namespace {

struct Twins {
    const char* windowsName;
    const char* liberation;
    const char* croscore;
};

constexpr Twins kTwins[] = {
    {"Arial", "Liberation Sans", "Arimo"},
    {"Times New Roman", "Liberation Serif", "Tinos"},
    {"Courier New", "Liberation Mono", "Cousine"},
};

}  // namespace

void MapWindowsFonts() {
    static const bool mapped = [] {
        for (const Twins& t : kTwins)
            QFont::insertSubstitutions(
                QString::fromLatin1(t.windowsName),
                {QString::fromLatin1(t.liberation), QString::fromLatin1(t.croscore)});
        // The original screens' own font.
        QFont::insertSubstitutions(QStringLiteral("MS Sans Serif"),
                                   {QStringLiteral("Liberation Sans"), QStringLiteral("Arimo")});
        return true;
    }();
    (void)mapped;
}

QString InstalledFamily(const std::string& name) {
    MapWindowsFonts();
    return QFontInfo(QFont(QString::fromStdString(name))).family();
}

std::string KeptFontName(const QString& family) {
    for (const Twins& t : kTwins)
        if (family.compare(QString::fromLatin1(t.liberation), Qt::CaseInsensitive) == 0 ||
            family.compare(QString::fromLatin1(t.croscore), Qt::CaseInsensitive) == 0)
            return t.windowsName;
    return family.toStdString();
}

}  // namespace platform
