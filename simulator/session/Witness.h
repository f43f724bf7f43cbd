#pragma once

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QTimer>

/// Watches the program from within its event loop: tells each time in which that did not turn for
/// long, the longest of them at the end, and every new text of the labels named in
/// ZELL_SESSION_WATCH (separated by blanks).
class Witness : public QObject
{
    Q_OBJECT

public:
    explicit Witness(QObject *parent = nullptr);
    ~Witness() override;

private:
    void look();

    QTimer beat;
    QElapsedTimer sinceBeat;
    qint64 longest = 0;
    QHash<QString, QString> texts;
};
