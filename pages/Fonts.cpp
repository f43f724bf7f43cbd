#include "pages/Fonts.h"

#include "device/DevicePath.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QFontDatabase>
#include <QPalette>

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

void setPlainText()
{
    QPalette palette = QApplication::palette();
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
        palette.setColor(role, Qt::white);
    palette.setColor(QPalette::PlaceholderText, QColor(255, 255, 255, 128));
    QApplication::setPalette(palette);
    QFont font = QApplication::font();
    font.setFamily(QStringLiteral("Heiti SC"));
    QApplication::setFont(font);
}
