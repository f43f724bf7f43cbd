#include "connectivity/TextLines.h"

QString linesApart(const QString &text, int pitch)
{
    return QStringLiteral("<p style=\"line-height:%1px; -qt-line-height-type:fixed\">%2</p>")
        .arg(QString::number(pitch),
             text.toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("<br/>")));
}
