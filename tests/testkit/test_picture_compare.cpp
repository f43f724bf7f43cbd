#include "testkit/Environment.h"
#include "testkit/PictureCompare.h"

#include <QDir>
#include <QPainter>

class TestPictureCompare : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        qunsetenv("ZELL_RENEW_PICTURES");
        QVERIFY(drawing({}, {}, {}).save("things.png"));
    }

    void seesWhatAPersonWouldSee_data()
    {
        QTest::addColumn<QImage>("picture");
        QTest::addColumn<bool>("agrees");
        QTest::newRow("the same") << drawing({}, {}, {}) << true;
        QTest::newRow("on other pixels") << drawing({0.5, 0}, {0.5, 0.4}, {0.5, 0.5}) << true;
        QTest::newRow("a shade off") << drawing({}, {}, {}, QColor(248, 7, 7)) << true;
        QTest::newRow("disc two pixels aside") << drawing({2, 0}, {}, {}) << false;
        QTest::newRow("letter two pixels aside") << drawing({}, {2, 0}, {}) << false;
        QTest::newRow("letter two pixels lower") << drawing({}, {0, 2}, {}) << false;
        QTest::newRow("faint line two pixels aside") << drawing({}, {}, {2, 0}) << false;
        QTest::newRow("another colour") << drawing({}, {}, {}, QColor(255, 40, 0)) << false;
        QTest::newRow("letter gone") << drawing({}, {-90, 0}, {}) << false;
        QTest::newRow("another size") << drawing({}, {}, {}).copy(0, 0, 60, 40) << false;
        QTest::newRow("nothing at all") << QImage() << false;
    }

    void seesWhatAPersonWouldSee()
    {
        QFETCH(QImage, picture);
        QTEST(pictureDifference(picture, QDir::currentPath(), "things.png").isEmpty(), "agrees");
    }

    void writesPictures()
    {
        const QImage changed = drawing({9, 0}, {}, {});
        const QString message = pictureDifference(changed, QDir::currentPath(), "things.png");
        for (const char *kind : {"actual.png", "difference.png"}) {
            const QString file =
                QCoreApplication::applicationDirPath() + "/pictures/things-" + kind;
            QVERIFY(message.contains(file) && QFile::remove(file));
        }
        qputenv("ZELL_RENEW_PICTURES", "1");
        QVERIFY(pictureDifference(changed, QDir::currentPath(), "new/things.png").isEmpty());
        QCOMPARE(differentPixels(changed, QImage("new/things.png")), 0);
    }

private:
    // A disc, a letter of thin strokes and a line as faint as the chart's grid, each moved a
    // little.
    static QImage drawing(QPointF disc, QPointF letter, QPointF line, const QColor &color = Qt::red)
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
        painter.setPen(Qt::NoPen);
        painter.drawEllipse(QPointF(20, 20) + disc, 8, 8);
        return image;
    }
};

ZELL_TEST_MAIN(TestPictureCompare)
#include "test_picture_compare.moc"
