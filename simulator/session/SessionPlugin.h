#pragma once

#include <QGenericPlugin>

/// Ends a session of the program from outside, without the program knowing: after the number of
/// seconds in ZELL_SESSION_SECONDS, or at SIGINT or SIGTERM, its event loop ends with status 0.
/// Where ZELL_SESSION_SHOT names a file, a picture of the window is saved there first. Where
/// ZELL_SESSION_WATCH is set, a Witness tells how the session went. ZELL_SESSION_TAPS ("3:800,60
/// 5:60,400", separated by blanks) touches the screen after so many seconds.
class SessionPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "session.json")

public:
    QObject *create(const QString &key, const QString &arguments) override;
};
