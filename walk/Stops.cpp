#include "walk/Stops.h"

#include "walk/Languages.h"
#include "walk/LayoutCheck.h"

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

QStringList walkThrough(const Language &language,
                        const std::function<void(const QString &, const QImage &)> &look)
{
    const InLanguage spoken(language);
    QStringList findings;
    Walk walk;
    for (const auto &part :
         {mainScreenStops(), settingsStops(), connectivityStops(), languageStops()}) {
        for (const Stop &stop : part) {
            stop.go(walk);
            look(stop.name, walk.picture());
            for (const QString &finding : layoutFindings(walk.screen()))
                findings.append(stop.name + QStringLiteral(": ") + finding);
        }
    }
    return findings;
}
