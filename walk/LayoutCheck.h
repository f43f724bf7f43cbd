#pragma once

#include <QStringList>
#include <QWidget>

/// Lists what a person would stumble over on the screen as it stands, one line per finding.
///
/// Texts that are cut off, widgets that react to a finger and overlap one another, and widgets that
/// react but are under 48 px in one direction. Looks at what is visible below @p window, the
/// widgets inside a graphics view included.
QStringList layoutFindings(QWidget *window);
