#include "walk/Stops.h"

#include "walk/Languages.h"
#include "walk/LayoutCheck.h"

Step tapping(const QString &name)
{
    return [name](Walk &walk) { walk.tap(name); };
}

Step tappingAt(const QPoint &position)
{
    return [position](Walk &walk) { walk.tapAt(position); };
}

Step pressingAt(const QPoint &position)
{
    return [position](Walk &walk) { walk.pressAt(position); };
}

Step typing(const QString &keys)
{
    return [keys](Walk &walk) { walk.type(keys); };
}

Step opening(const QString &tile)
{
    return [tile](Walk &walk) { walk.openTile(tile); };
}

Step seeing(const QString &name)
{
    return [name](Walk &walk) { walk.waitFor(name, [&] { return walk.sees(name); }); };
}

Step calling(const char *className, const char *slot)
{
    return [className, slot](Walk &walk) { walk.call(className, slot); };
}

QStringList walkThrough(const Language &language,
                        const std::function<QStringList(const QString &stop, Walk &)> &visit)
{
    const InLanguage spoken(language);
    QStringList findings;
    Walk walk;
    walk.settle();
    for (const auto &part :
         {mainScreenStops(), settingsStops(), connectivityStops(), languageStops()}) {
        for (const Stop &stop : part) {
            for (const Step &step : stop.way) {
                step(walk);
                walk.settle();
            }
            const QStringList met = visit(stop.name, walk);
            for (const QString &finding : met + layoutFindings(walk.screen()))
                findings.append(stop.name + QStringLiteral(": ") + finding);
        }
    }
    return findings;
}
