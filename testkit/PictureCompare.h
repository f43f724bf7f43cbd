#pragma once

#include <QImage>
#include <QString>

/// Compares @p picture with @p fileName in @p folder (ZELL_REFERENCE_DIR of the test). Empty when
/// they agree, but for a handful of stray pixels; else a message for QVERIFY2 that names the
/// pictures, actual and difference, written to "pictures" beside the test program.
///
/// Text is rasterised a little differently from one machine to the next, so a pixel agrees when it
/// could stand between those around it, in both pictures. What moves by two pixels, vanishes or
/// changes its colour leaves a patch that does not, the faint grid of the chart included;
/// one of 16 bits a pixel is allowed more. With
/// ZELL_RENEW_PICTURES=1 in the environment the reference is written instead.
QString pictureDifference(const QImage &picture, const QString &folder, const QString &fileName);
