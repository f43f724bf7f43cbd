#include "testkit/Environment.h"
#include "testkit/FixedClock.h"
#include "testkit/PictureCompare.h"
#include "walk/Languages.h"
#include "walk/Stops.h"

#include <QTemporaryFile>

namespace {
constexpr QSize screen(854, 480);

/// The file that the platform draws on; it must be there before the application object.
class FrameFile
{
public:
    FrameFile()
    {
        if (!file.open() || !file.resize(screen.width() * screen.height() * ZELL_FRAME_BITS / 8))
            qFatal("no frame buffer");
        qputenv("QT_QPA_PLATFORM", "linuxfb:fb=" + QFile::encodeName(file.fileName()) +
                                       ":tty=/dev/null:nographicsmodeswitch");
        qputenv("QT_QPA_FB_DISABLE_INPUT", "1");
        qputenv("QT_QPA_FB_HIDECURSOR", "1");
        qunsetenv("ZELL_RENEW_PICTURES"); // the references are pictures of the other platform
    }

    QImage picture()
    {
        const QByteArray bytes = Environment::contentOf(file.fileName());
        const auto *dots = reinterpret_cast<const uchar *>(bytes.constData());
        return QImage(dots, screen.width(), screen.height(), bytes.size() / screen.height(),
                      ZELL_FRAME_BITS == 16 ? QImage::Format_RGB16 : QImage::Format_RGB32)
            .copy();
    }

private:
    QTemporaryFile file;
} frame;
} // namespace

class TestFrameBuffer : public QObject
{
    Q_OBJECT

private slots:
    void showsThePages()
    {
        stopCalendarAt(walkTime);
        const InLanguage spoken(Language("ZH_SIMPLE.qm"));
        Walk walk;
        for (const Stop &stop :
             {Stop{"main-temperature", {}}, Stop{"history-24h", {tapping("button_history")}},
              Stop{"settings-menu", {tapping("button_back"), tapping("button_option")}}}) {
            for (const Step &step : stop.way)
                step(walk);
            walk.settle();
            const QString difference =
                pictureDifference(frame.picture(), ZELL_REFERENCE_DIR, stop.name + ".png");
            QVERIFY2(difference.isEmpty(), qPrintable(difference));
        }
    }
};

ZELL_TEST_MAIN(TestFrameBuffer)
#include "test_frame_buffer.moc"
