#pragma once

#include "pages/Language.h"

#include <QApplication>
#include <QTranslator>

/// Shows the program in one of its languages while this lives.
class InLanguage
{
public:
    explicit InLanguage(const Language &language)
    {
        if (!translator.load(language.resource()))
            qFatal("no translation %s", qPrintable(language.translationFile()));
        QApplication::installTranslator(&translator);
    }

private:
    QTranslator translator;
};

/// 2016-11-21 09:41 at UTC+8: the instant at which the calendar of the walk stands still.
inline constexpr std::time_t walkTime = 1'479'692'460;
