#include "tests/support/Environment.h"
#include "tests/support/PictureCompare.h"

#include <QDir>
#include <QPainter>

class TestPictureCompare : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        qunsetenv("ZELL_RENEW_PICTURES");
        reference = drawing(QPointF(20, 20), Qt::red);
        QVERIFY(reference.save("disc.png"));
    }

    void seesWhatAPersonWouldSee_data()
    {
        QTest::addColumn<QImage>("picture");
        QTest::addColumn<bool>("agrees");
        QTest::newRow("the same") << reference << true;
        QTest::newRow("half a pixel aside") << drawing(QPointF(20.5, 20), Qt::red) << true;
        QTest::newRow("a shade off") << drawing(QPointF(20, 20), QColor(240, 10, 10)) << true;
        QTest::newRow("three pixels aside") << drawing(QPointF(23, 20), Qt::red) << false;
        QTest::newRow("another colour") << drawing(QPointF(20, 20), Qt::green) << false;
        QTest::newRow("gone") << drawing(QPointF(-90, 0), Qt::red) << false;
        QTest::newRow("another size") << reference.copy(0, 0, 60, 40) << false;
        QTest::newRow("nothing at all") << QImage() << false;
    }

    void seesWhatAPersonWouldSee()
    {
        QFETCH(QImage, picture);
        QFETCH(bool, agrees);
        QCOMPARE(pictureDifference(picture, QDir::currentPath(), "disc.png").isEmpty(), agrees);
    }

    void namesThePicturesItWrites()
    {
        const QString message =
            pictureDifference(drawing({40, 20}, Qt::red), QDir::currentPath(), "disc.png");
        const QString written = QCoreApplication::applicationDirPath() + "/pictures/disc-";
        for (const char *kind : {"actual.png", "difference.png"}) {
            QVERIFY(message.contains(written + kind));
            QVERIFY(QFile::remove(written + kind));
        }
    }

    void renewsOnRequest()
    {
        qputenv("ZELL_RENEW_PICTURES", "1");
        const QImage changed = drawing({40, 20}, Qt::red);
        QVERIFY(pictureDifference(changed, QDir::currentPath(), "new/disc.png").isEmpty());
        QCOMPARE(differentPixels(changed, QImage("new/disc.png")), 0);
    }

private:
    static QImage drawing(QPointF middle, const QColor &color)
    {
        QImage image(64, 40, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(color);
        painter.setPen(Qt::NoPen);
        painter.drawEllipse(middle, 8, 8);
        return image;
    }

    QImage reference = drawing(QPointF(20, 20), Qt::red);
};

ZELL_TEST_MAIN(TestPictureCompare)
#include "test_picture_compare.moc"
