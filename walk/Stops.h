#pragma once

#include "pages/Language.h"
#include "walk/Walk.h"

#include <vector>

/// How to get somewhere from the stop before.
using Step = std::function<void(Walk &)>;

/// One stop of the walk. Its name is that of its picture, too: a stop more renames no other.
struct Stop
{
    QString name;
    Step go;
};

/// Walks in @p language from stop to stop, every page and every state that a
/// person can reach, and hands each picture to @p look with the name of its stop. Returns what a
/// person would stumble over on the way, a line each.
QStringList walkThrough(const Language &language,
                        const std::function<void(const QString &, const QImage &)> &look);

/// Taps the widgets named @p objectNames one after the other, letting the screen settle after each.
Step tapping(const QStringList &objectNames);

/// Leaves the page by its back arrow and opens @p tile of the menu.
Step backAndOpen(const QString &tile);

/// Calls a hook of a page, for states that no finger reaches yet.
Step calling(const char *className, const char *slot);

/// The stops on the main screen and in the history. Starts and ends on the main screen.
std::vector<Stop> mainScreenStops();

/// The settings menu and its own pages. Starts on the main screen and ends on a settings page.
std::vector<Stop> settingsStops();

/// Wi-Fi, phone app, location and firmware. Starts and ends on a page of the settings.
std::vector<Stop> connectivityStops();

/// The language page: leaving it restarts the program, so the walk ends there.
std::vector<Stop> languageStops();
