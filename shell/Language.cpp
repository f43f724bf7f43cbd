#include "shell/Language.h"

#include <QFile>
#include <QTextStream>

namespace {
constexpr qint64 longestFile = 65536;
}

QString readLanguageFile(const QString &directory)
{
    QFile file(directory + QStringLiteral("/language.txt"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QTextStream stream(file.read(longestFile));
    QString language;
    while (!stream.atEnd())
        language = stream.readLine();
    return language;
}

QString translationResource(const QString &language)
{
    if (language.isEmpty())
        return QStringLiteral(":/resource/translation/ZH_COMPLEX.qm");
    return QStringLiteral(":/resource/translation/%1").arg(language);
}
