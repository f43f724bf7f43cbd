#include "connectivity/FirmwareDownload.h"
#include "connectivity/updateFirmware.h"
#include "pages/Ground.h"
#include "tests/connectivity/PackageServer.h"
#include "tests/support/Environment.h"
#include "tests/support/MessageLog.h"
#include "tests/support/PictureCompare.h"
#include "tests/support/Touch.h"

#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>
#include <QStackedWidget>

using namespace std::chrono_literals;
Q_DECLARE_METATYPE(Then)

namespace {
constexpr auto package = "/zell/ZellQt-1.1.pkg";

// The sanitizer keeps freed memory for a while.
#ifdef __SANITIZE_ADDRESS__
constexpr bool sanitized = true;
#else
constexpr bool sanitized = false;
#endif

QByteArray ok(const QByteArray &body, qint64 length)
{
    return "HTTP/1.1 200 OK\r\n" +
           (length < 0 ? "" : "Content-Length: " + QByteArray::number(length) + "\r\n") + "\r\n" +
           body;
}

qint64 residentBytes()
{
    QFile file("/proc/self/statm");
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').at(1).toLongLong() * 4096 : 0;
}
} // namespace

class TestFirmware : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        page = new updateFirmware;
        page->setLimits({300ms, 60s, qint64(96) * 1024 * 1024});
        fillGround(page);
        page->show();
    }
    void cleanup() { delete page; }

    void addressAndProgressArePure()
    {
        qunsetenv("ZELL_FIRMWARE_URL");
        QCOMPARE(firmwareAddress(), QUrl("http://firmware.example.com/zell/ZellQt-1.1.pkg"));
        qputenv("ZELL_FIRMWARE_URL", "http://127.0.0.1:8/a.pkg");
        QCOMPARE(firmwareAddress(), QUrl("http://127.0.0.1:8/a.pkg"));
        QCOMPARE(downloadPercent(2, 3), 66);
        QCOMPARE(downloadPercent(qint64(1) << 40, qint64(1) << 41), 50);
        QCOMPARE(downloadPercent(5, -1), -500);
        QCOMPARE(downloadPercent(5, 0), 0);
    }

    void everyServerEndsOnAPageWithAWayBack_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<Then>("then");
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<bool>("installs");
        const QByteArray good(package);
        const QByteArray loop =
            "HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: /again\r\n\r\n";
        QTest::newRow("whole package") << ok("abcdef", 6) << Then::Hold << good << true;
        QTest::newRow("no length, closes") << ok("abcdef", -1) << Then::Close << good << true;
        QTest::newRow("moved") << ok("abcdef", 6) << Then::Hold << "/moved" + good << true;
        QTest::newRow("empty package") << ok("", 0) << Then::Hold << good << true;
        QTest::newRow("moves in circles") << loop << Then::Hold << good << false;
        QTest::newRow("not found") << QByteArray("HTTP/1.1 404 No\r\nContent-Length: 2\r\n\r\nno")
                                   << Then::Hold << good << false;
        QTest::newRow("closes at once") << QByteArray() << Then::Close << good << false;
        QTest::newRow("closes early") << ok("abc", 6) << Then::Close << good << false;
        QTest::newRow("no HTTP") << QByteArray("\0\xff\n\n", 4) << Then::Close << good << false;
        QTest::newRow("silent") << QByteArray() << Then::Hold << good << false;
        QTest::newRow("falls silent") << ok("abc", 6) << Then::Hold << good << false;
        QTest::newRow("a byte now and then") << ok("a", -1) << Then::Trickle << good << false;
        QTest::newRow("endless") << ok("a", -1) << Then::SendForEver << good << false;
        QTest::newRow("far too large")
            << ok("a", qint64(1) << 40) << Then::SendForEver << good << false;
    }

    void everyServerEndsOnAPageWithAWayBack()
    {
        QFETCH(QByteArray, answer);
        QFETCH(Then, then);
        QFETCH(QByteArray, path);
        QFETCH(bool, installs);
        PackageServer server(answer, then);
        QSignalSpy left(page, &updateFirmware::signal_backDefaultPage);
        if (then == Then::Trickle)
            page->setLimits({300ms, 2s, 1 << 20});
        const qint64 before = residentBytes();
        startDownload(server.address(path));
        QVERIFY(!shown("button_back"));
        QVERIFY(waitFor(installs ? "page_installFirmware" : "page_retryFirmware"));
        // A redirect is followed a few hops, not for ever.
        QVERIFY(server.requests < 20);
        QVERIFY(sanitized || residentBytes() - before < 24e6);
        compare(installs ? "firmware-install.png" : "firmware-retry.png");
        tap(shown("button_back"));
        // The retry page runs its slots twice per click.
        QCOMPARE(left.count(), installs ? 1 : 2);
        QCOMPARE(QFileInfo("ZellQt-1.1.pkg").size(), 0);
        QVERIFY(QFile::remove("ZellQt-1.1.pkg"));
    }

    void retryHandsBackToAPageThatCanBeLeft()
    {
        startDownload("http://127.0.0.1:1/refused.pkg");
        QVERIFY(waitFor("page_retryFirmware"));
        tap(shown("button_retry"));
        QCOMPARE(current(), "page_firmware");
        QVERIFY(shown("progressBar_update") && !shown("button_update"));
        QSignalSpy left(page, &updateFirmware::signal_backDefaultPage);
        tap(shown("button_back"));
        QCOMPARE(left.count(), 1);
    }

    void progressIsShownAndLogged()
    {
        MessageLog log;
        PackageServer server(ok(QByteArray("ab\0cdefg", 8), 16), Then::Hold);
        startDownload(server.address(package));
        auto *bar = page->findChild<QProgressBar *>("progressBar_update");
        auto *text = page->findChild<QLabel *>("label_process");
        QTRY_COMPARE(text->text(), "正在下载 ... 50%\n");
        compare("firmware-downloading.png");
        page->on_downloadProgress(qint64(1) << 33, -1);
        QCOMPARE(text->text(), "正在下载 ... -858993459200%\n");
        QCOMPARE(bar->value(), 50);
        QVERIFY(waitFor("page_retryFirmware"));
        for (const char *line :
             {"Need to update version! ", "Update new version! ", "Download new version...",
              "on_downloadProgress...", "iBytesReceive is 8", "iDownloadProcess is 50",
              "finish_reply...", "statusCode is  200", "result is  \"ab\"", "Error comes..."})
            QVERIFY2(log.contains(line), line);
    }

    void reportOfNoBytesFailsUntilTheDownloadSucceeds()
    {
        PackageServer server(ok("abcdef", 6), Then::Hold);
        startDownload(server.address(package));
        page->on_downloadProgress(0, 6);
        QCOMPARE(current(), "page_retryFirmware");
        QVERIFY(waitFor("page_installFirmware"));
    }

    void twoChecksStartTwoDownloads()
    {
        PackageServer server(ok("abcdef", 6), Then::Hold);
        page->check_versionUpdate();
        startDownload(server.address(package));
        QTRY_COMPARE(page->findChildren<QWidget *>("installFirmware").size(), 2);
        QCOMPARE(server.requests, 2);
    }

    void pageMayGoWhileItsDownloadRuns()
    {
        for (const bool leftByTouch : {true, false}) {
            PackageServer server(ok("a", -1), Then::SendForEver);
            page->setLimits({});
            startDownload(server.address(package));
            QTRY_VERIFY(server.sent > 1e6);
            page->on_downloadProgress(0, -1);
            if (leftByTouch)
                tap(shown("button_back"));
            else
                delete page;
            QTRY_COMPARE(server.socket->state(), QAbstractSocket::UnconnectedState);
            if (leftByTouch)
                cleanup();
            init();
        }
    }

private:
    QWidget *shown(const char *name) { return visibleChild(page, name); }
    QStackedWidget *stack() { return page->findChild<QStackedWidget *>("stackedWidget"); }
    QString current() { return stack()->currentWidget()->objectName(); }
    void startDownload(const QByteArray &address)
    {
        qputenv("ZELL_FIRMWARE_URL", address);
        page->check_versionUpdate();
        tap(shown("button_update"));
    }
    // In an event loop of its own: the polling of QTRY_ would slow a download a hundredfold.
    bool waitFor(const QString &end)
    {
        QSignalSpy turned(stack(), &QStackedWidget::currentChanged);
        while (current() != end && turned.wait(20000)) {
        }
        return current() == end;
    }
    void compare(const char *name)
    {
        const QString problem = pictureDifference(page->grab().toImage(), ZELL_REFERENCE_DIR, name);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
    }

    updateFirmware *page = nullptr;
};

ZELL_TEST_MAIN(TestFirmware)
#include "test_firmware.moc"
