#include "fuzz/Targets.h"
#include "settings/TimeZoneItemDelegate.h"

void fuzzTimeZones(const QByteArray &bytes)
{
    const QString line = QString::fromUtf8(bytes);
    const QChar tab = QLatin1Char('\t');
    const timeZoneItem item = timeZoneItem::fromLine(line);
    hold(!item.zone.contains(tab), "a zone has no tab");
    hold(!item.description.contains(tab), "a description has no tab");
    hold(line.startsWith(item.zone), "a line begins with its zone");
    hold((line + tab).startsWith(item.zone + tab + item.description) || !line.contains(tab),
         "behind the tab stands the description");
}
