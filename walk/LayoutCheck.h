#pragma once

#include <QStringList>
#include <QWidget>

/// A widget, or one row or tab of it, that a finger or the eye meets.
struct Placed
{
    QWidget *widget;
    QRect whole; ///< on the screen
    QRect seen;  ///< what its ancestors show of it
    QString name = {};
};

/// Lists what reacts to a finger below @p window: buttons, sliders, frames, rows of lists, and tabs
/// but the chosen one. Looks at what is visible, the widgets inside a graphics view included.
QList<Placed> touchPlaces(QWidget *window);

/// Lists what a person would stumble over on the screen as it stands, one line per finding.
///
/// Texts that are cut off, and touchPlaces() that overlap one another or are under 48 px in one
/// direction.
QStringList layoutFindings(QWidget *window);
