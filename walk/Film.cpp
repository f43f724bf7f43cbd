#include "walk/Film.h"

#include "walk/Walk.h"

#include <QTimeLine>

namespace {
constexpr int frameTime = 50;
constexpr int leftX = 40;
constexpr int rightX = 130;
} // namespace

void filmSlide(const QDir &folder)
{
    Walk walk;
    walk.settle();
    auto *timeLine = walk.screen()->findChild<QTimeLine *>();
    int frame = 0;
    const auto slide = [&](int fromX, int toX) {
        walk.swipe(fromX, toX);
        timeLine->setPaused(true);
        for (int time = 0; time <= timeLine->duration(); time += frameTime) {
            timeLine->setCurrentTime(time);
            const QString name = QStringLiteral("%1.png").arg(++frame, 3, 10, QLatin1Char('0'));
            if (!walk.picture().save(folder.filePath(name)))
                qFatal("cannot write to %s", qPrintable(folder.path()));
        }
        timeLine->setPaused(false);
        walk.settle();
    };
    slide(rightX, leftX);
    slide(leftX, rightX);
    slide(leftX, rightX);
    slide(rightX, leftX);
}
