#pragma once

#include <QGenericPlugin>

/// Leads a session of the program from outside, without the program knowing, and ends it after the
/// number of seconds in ZELL_SESSION_SECONDS. Where ZELL_SESSION_SHOT names a file, a picture of
/// the window is saved there at the end, whatever brought it. Where ZELL_SESSION_WATCH is set, a
/// Witness tells how the session went.
///
/// ZELL_SESSION_TAPS ("3:800,60 5:60,400-300,400", separated by blanks) touches the screen after so
/// many seconds, the second time from place to place. ZELL_SESSION_CALLS
/// ("OptionPage.jump_setWifi_page,listView.0") calls slots one after another, each on the widgets
/// of that name, of which a list takes the row to choose.
class SessionPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "session.json")

public:
    QObject *create(const QString &key, const QString &arguments) override;
};
