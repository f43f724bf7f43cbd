#pragma once

#include "pages/Language.h"
#include "walk/Walk.h"

#include <vector>

/// Something that a person does, or that is done to the device.
using Step = std::function<void(Walk &)>;

/// One stop of the walk: its name, which is that of its picture, too, and the way there from the
/// stop before. After each step the screen settles.
struct Stop
{
    QString name;
    std::vector<Step> way;
};

/// Walks in @p language from stop to stop, every page and every state that a person can
/// reach, and lets @p visit look there; what it touches it leaves as it was. Returns what a person
/// would stumble over on the way, what @p visit returns included, a line each.
QStringList walkThrough(const Language &language,
                        const std::function<QStringList(const QString &stop, Walk &)> &visit);

Step tapping(const QString &name); ///< the widget of this object name
Step tappingAt(const QPoint &position);
Step pressingAt(const QPoint &position);
Step typing(const QString &keys);
Step opening(const QString &tile); ///< of the settings menu
Step seeing(const QString &name);  ///< waits for the widget of this object name

/// Calls a hook of a page, for states that no finger reaches yet.
Step calling(const char *className, const char *slot);

/// Lists the stops on the main screen and in the history. Starts and ends on the main screen.
std::vector<Stop> mainScreenStops();

/// Lists those of the settings menu and its pages. Starts on the main screen, ends on a page of it.
std::vector<Stop> settingsStops();

/// Lists those of Wi-Fi, phone app, location and firmware. Starts and ends on a settings page.
std::vector<Stop> connectivityStops();

/// Lists those of the language page: leaving it restarts the program, so the walk ends there.
std::vector<Stop> languageStops();
