#include "pages/Fonts.h"

#include "device/DevicePath.h"

#include <QFile>
#include <QFont>
#include <QFontDatabase>

void registerDeviceFonts()
{
    for (const QString &file :
         {QStringLiteral("/bin/qtapp/simhei.ttf"), QStringLiteral("/bin/qtapp/Helvetica.ttf"),
          QStringLiteral("/bin/qtapp/condensed.ttf")}) {
        const QString path = devicePath(file);
        if (QFile::exists(path))
            QFontDatabase::addApplicationFont(path);
    }
}

void substituteFonts()
{
    QFont::insertSubstitutions(QStringLiteral("Heiti SC"),
                               {QStringLiteral("SimHei"), QStringLiteral("Noto Sans CJK SC")});
    QFont::insertSubstitution(QStringLiteral("DINCond-Bold"), QStringLiteral("Roboto Condensed"));
    for (const QString &family :
         {QStringLiteral("Helvetica"), QStringLiteral(".Helvetica Neue DeskInterface")}) {
        QFont::insertSubstitutions(family, {QStringLiteral("Roboto"), QStringLiteral("SimHei"),
                                            QStringLiteral("Noto Sans CJK SC")});
    }
}
