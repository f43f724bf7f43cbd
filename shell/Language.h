#pragma once

#include <QString>

/// The content of the language file "language.txt" in @p directory: its last line, UTF-8.
/// Empty when the file is missing, unreadable or empty. Reads 64 KiB at the most.
QString readLanguageFile(const QString &directory);

/// The resource that holds the translation named @p language. An empty name gives traditional
/// Chinese, the language of a device without a language file. The resource need not exist.
QString translationResource(const QString &language);
