#include "testkit/Environment.h"
#include "testkit/PictureCompare.h"
#include "testkit/TableRows.h"

#include <QPainter>

namespace {
// A disc, a letter of thin strokes and a line as faint as the chart's grid, each moved a little.
QImage drawing(QPointF disc, QPointF letter, QPointF line, const QColor &color = Qt::red)
{
    QImage image(64, 40, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0, 22, 25), 2));
    painter.drawLine(QPointF(58, 0) + line, QPointF(58, 40) + line);
    painter.setPen(QPen(Qt::white, 1.4));
    painter.drawPolyline(QPolygonF({{40, 24}, {40, 12}, {47, 12}}).translated(letter));
    painter.setBrush(color);
    painter.drawEllipse(QPointF(20, 20) + disc, 8, 8);
    return image;
}

struct Picture
{
    const char *name;
    QImage image;
    QString message;
};
} // namespace

class TestPictureCompare : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("ZELL_RENEW_PICTURES", "1");
        QCOMPARE(pictureDifference(drawing({}, {}, {}), "new", "things.png"), QString());
        qunsetenv("ZELL_RENEW_PICTURES");
    }

    void seesWhatAPersonWouldSee_data()
    {
        addRows<Picture>({{"the same", drawing({}, {}, {}), ""},
                          {"on other pixels", drawing({0.5, 0}, {0.5, 0.4}, {0.5, 0.5}), ""},
                          {"a shade off", drawing({}, {}, {}, QColor(248, 7, 7)), ""},
                          {"disc two pixels aside", drawing({2, 0}, {}, {}), "pixels differ"},
                          {"letter two pixels aside", drawing({}, {2, 0}, {}), "pixels differ"},
                          {"line two pixels aside", drawing({}, {}, {2, 0}), "pixels differ"},
                          {"another colour", drawing({}, {}, {}, "#ff2800"), "pixels differ"},
                          {"another size", drawing({}, {}, {}).copy(0, 0, 60, 40), "no picture"}});
    }

    void seesWhatAPersonWouldSee()
    {
        QFETCH(Picture, row);
        const QString message = pictureDifference(row.image, "new", "things.png");
        QVERIFY2(message.contains(row.message), qPrintable(message));
        for (const char *kind : {"actual.png", "difference.png"}) {
            const QString file =
                QCoreApplication::applicationDirPath() + "/pictures/things-" + kind;
            QCOMPARE(message.contains(file), !row.message.isEmpty());
            QCOMPARE(QFile::remove(file), !row.message.isEmpty());
        }
    }
};

ZELL_TEST_MAIN(TestPictureCompare)
#include "test_picture_compare.moc"
