#pragma once

#include <QGenericPlugin>

/// Ends the program that loads it as soon as its first picture is on the screen, and says on the
/// standard output what it took: CPU time of the process in us, resident memory in KiB.
class FirstPicture : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "first-picture.json")

public:
    QObject *create(const QString &key, const QString &arguments) override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
