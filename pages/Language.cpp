#include "pages/Language.h"

#include "device/RegularFile.h"

#include <QDir>
#include <QSaveFile>
#include <QTextStream>

namespace {
constexpr qint64 longestFile = 65536;

struct Row
{
    const char *title = nullptr;
    QLatin1String translationFile;
};

// A title in its own language needs no translation; those that are marked have one all the same.
constexpr Row rows[] = {
    {QT_TRANSLATE_NOOP("setLanguagePage", "中文（简体）"), QLatin1String("ZH_SIMPLE.qm")},
    {QT_TRANSLATE_NOOP("setLanguagePage", "中文（繁體）"), QLatin1String("ZH_COMPLEX.qm")},
    {QT_TRANSLATE_NOOP("setLanguagePage", "English"), QLatin1String("US.qm")},
};

QString languageFile()
{
    return QDir::currentPath() + QStringLiteral("/language.txt");
}
} // namespace

Language::Language(const QString &translationFile)
    : file(translationFile)
{
    for (const Row &row : rows) {
        if (translationFile == row.translationFile)
            name = row.title;
    }
}

QList<Language> Language::all()
{
    QList<Language> languages;
    for (const Row &row : rows)
        languages.append(Language(row.translationFile));
    return languages;
}

Language Language::stored()
{
    QString lastLine;
    QTextStream stream(readRegularFile(languageFile(), longestFile));
    // Kept[last-language-line]: also an empty one.
    while (!stream.atEnd())
        lastLine = stream.readLine();
    return Language(lastLine);
}

void Language::store() const
{
    QSaveFile saved(languageFile());
    if (!saved.open(QIODevice::WriteOnly))
        return;
    saved.write(file.toUtf8());
    // What is written in commit() itself may fail unnoticed.
    if (saved.flush())
        saved.commit();
}

QString Language::resource() const
{
    return QStringLiteral(":/resource/translation/") +
           (file.isEmpty() ? QStringLiteral("ZH_COMPLEX.qm") : file);
}
