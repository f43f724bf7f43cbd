#pragma once

#include <QImage>
#include <QList>

/// A picture with what stands below it on the sheet.
struct NamedPicture
{
    QString name;
    QImage picture;
};

/// Puts @p pictures at half their size side by side, from left to right and from top to bottom.
QImage contactSheet(const QList<NamedPicture> &pictures);
