#include "fuzz/Targets.h"
#include "mainscreen/GradualValueToColor.h"

#include <QDataStream>
#include <QRegularExpression>

void fuzzColorNames(const QByteArray &bytes)
{
    static const QRegularExpression name(QStringLiteral("^#[0-9a-f]{2,6}$"));
    QDataStream numbers(bytes);
    numbers.setFloatingPointPrecision(QDataStream::SinglePrecision);
    GradualValueToColor scale;
    while (!numbers.atEnd()) {
        float position = 0;
        float value = 0;
        int color = 0;
        numbers >> value >> position >> color;
        hold(name.match(scale.colorAt(value)).hasMatch(), "every number has a colour");
        scale.setColorAt(position, color);
    }
}
