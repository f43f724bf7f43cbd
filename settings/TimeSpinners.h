#pragma once

#include <QString>
#include <QTime>

class QmlApplicationViewer;

/// Loads the spinner "spinner_<name>.qml" into @p host and shows it with row @p row in the middle.
void loadSpinner(QmlApplicationViewer *host, const QString &name, int row);

/// The wheels for a time of day on one page.
struct TimeSpinners
{
    QmlApplicationViewer *hour;
    QmlApplicationViewer *minute;
    QmlApplicationViewer *amp; ///< morning or afternoon, hidden in 24-hour mode

    /// Loads all wheels afresh, @p start in their middle.
    void load(bool use24Hour, const QTime &start) const;
    /// Takes the wheels off the screen, for a page that is left and will be loaded again.
    void hide() const;
};
