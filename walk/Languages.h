#pragma once

#include "shell/Language.h"

#include <QApplication>
#include <QTranslator>

/// The program in one of its languages, by the name of the translation file, while this lives.
class InLanguage
{
public:
    explicit InLanguage(const QString &translationFile)
    {
        if (!translator.load(translationResource(translationFile)))
            qFatal("no translation %s", qPrintable(translationFile));
        QApplication::installTranslator(&translator);
    }

private:
    QTranslator translator;
};

/// 2016-11-21 09:41 at UTC+8: the instant at which the calendar of the walk stands still.
inline constexpr std::time_t walkTime = 1'479'692'460;
