#pragma once

#include <QList>
#include <QString>

/// One language of the program, known by the file name of its translation ("US.qm").
///
/// A further one takes a row in Language.cpp and its file below resource/translation/, a copy of
/// ZH_SIMPLE.ts to be translated; the two pictures of the language page are renewed.
class Language
{
public:
    /// Names a translation that need not exist: without it the texts of the sources are shown. An
    /// empty name gives traditional Chinese, the language of a device without a language file.
    explicit Language(const QString &translationFile);

    /// Lists the languages to choose from, in the order of the language page.
    static QList<Language> all();

    /// Reads "language.txt" in the working directory: its last line, UTF-8. An empty name where the
    /// file is missing, unreadable or empty. Reads 64 KiB at the most.
    static Language stored();

    /// Writes the file that stored() reads, whole or not at all: the name alone, without a line
    /// end.
    void store() const;

    QString translationFile() const { return file; }

    /// Tells the name to choose it by: a source text of the context setLanguagePage.
    const char *title() const { return name; }

    /// Names the resource that holds its translation.
    QString resource() const;

private:
    QString file;
    const char *name = "";
};
