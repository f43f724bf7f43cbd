#pragma once

#include <QGenericPlugin>

/// Ends a session of the program from outside, without the program knowing: after the number of
/// seconds in ZELL_SESSION_SECONDS, or at SIGINT or SIGTERM, its event loop ends with status 0.
/// Where ZELL_SESSION_SHOT names a file, a picture of the window is saved there first.
class SessionPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "session.json")

public:
    QObject *create(const QString &key, const QString &arguments) override;
};
