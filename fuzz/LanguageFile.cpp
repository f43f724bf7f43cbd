#include "fuzz/Targets.h"
#include "pages/Language.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>

void fuzzLanguageFile(const QByteArray &bytes)
{
    static const QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    QFile file(QStringLiteral("language.txt"));
    hold(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "the file is there");
    file.close();

    const Language language = Language::stored();
    const QString name = language.translationFile();
    hold(!name.contains(QLatin1Char('\n')), "a language is one line");
    hold(name.size() <= bytes.size(), "nothing is added to the file");
    if (name.isEmpty())
        hold(language.resource().endsWith(QStringLiteral("/ZH_COMPLEX.qm")), "there is a language");
    // A carriage return or a byte order mark would be taken for part of the file.
    const auto isPlain = [](QChar c) { return c.isPrint() && c != QChar::ReplacementCharacter; };
    if (!std::ranges::all_of(name, isPlain) || !name.isValidUtf16())
        return;
    language.store();
    hold(Language::stored().translationFile() == name, "what is stored is read again");
}
