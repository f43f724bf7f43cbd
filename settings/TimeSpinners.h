#pragma once

#include <QString>
#include <QTime>

class QmlApplicationViewer;

/// Loads what all spinners share, once per run of the program and shortly after this call, so that
/// the first page with wheels opens as fast as any later one. For the pages on the way to wheels:
/// it holds the event loop up for some 10 ms, when their own picture is on the screen.
void readySpinnersSoon();

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
};
