#include "walk/Stops.h"

Step tapping(const QStringList &objectNames)
{
    return [objectNames](Walk &walk) {
        for (const QString &name : objectNames) {
            walk.tap(name);
            walk.settle();
        }
    };
}

Step backAndOpen(const QString &tile)
{
    return [tile](Walk &walk) {
        walk.tap(QStringLiteral("button_back"));
        walk.settle();
        walk.openTile(tile);
    };
}

Step calling(const char *className, const char *slot)
{
    return [className, slot](Walk &walk) {
        walk.call(className, slot);
        walk.settle();
    };
}

std::vector<Stop> wholeWalk()
{
    std::vector<Stop> walk;
    for (const auto &part :
         {mainScreenStops(), settingsStops(), connectivityStops(), languageStops()})
        walk.insert(walk.end(), part.begin(), part.end());
    for (std::size_t index = 0; index < walk.size(); ++index)
        walk[index].name.prepend(QStringLiteral("%1-").arg(index + 1, 2, 10, QLatin1Char('0')));
    return walk;
}
