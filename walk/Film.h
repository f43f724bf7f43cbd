#pragma once

#include <QDir>

/// Films the main screen sliding once over its three pages: a numbered picture in @p folder for
/// every 50 ms.
void filmSlide(const QDir &folder);
