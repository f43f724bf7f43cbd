#include "connectivity/FirmwareDownload.h"
#include "connectivity/updateFirmware.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/Touch.h"
#include "tests/connectivity/PackageServer.h"

#include <QLabel>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <QProgressBar>
#include <QSignalSpy>
#include <QStackedWidget>

using namespace std::chrono_literals;

namespace {
constexpr auto package = "/zell/ZellQt-1.1.pkg";

QByteArray ok(const QByteArray &body, qint64 length)
{
    return "HTTP/1.1 200 OK\r\n" +
           (length < 0 ? "" : "Content-Length: " + QByteArray::number(length) + "\r\n") + "\r\n" +
           body;
}

qint64 residentBytes()
{
#ifndef __SANITIZE_ADDRESS__ // The sanitizer keeps freed memory for a while.
    QFile file("/proc/self/statm");
    if (file.open(QIODevice::ReadOnly))
        return file.readAll().split(' ').at(1).toLongLong() * 4096;
#endif
    return 0;
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
        page->show();
    }
    void cleanup() { delete page; }

    void addressAndPercent()
    {
        qunsetenv("ZELL_FIRMWARE_URL");
        QCOMPARE(firmwareAddress(), QUrl("http://firmware.example.com/zell/ZellQt-1.1.pkg"));
        QCOMPARE(downloadPercent(2, 3), 66);
        QCOMPARE(downloadPercent(qint64(1) << 40, qint64(1) << 41), 50);
        QCOMPARE(downloadPercent(5, 0), 0);
    }

    void everyServerEndsOnAPageWithAWayBack_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<Then>("then");
        QTest::addColumn<bool>("installs");
        const QByteArray loop =
            "HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: /again\r\n\r\n";
        const QByteArray missing = "HTTP/1.1 404 No\r\nContent-Length: 2\r\n\r\nno";
        QTest::newRow("whole package") << ok("abcdef", 6) << Then::Hold << true;
        QTest::newRow("no length, closes") << ok("abcdef", -1) << Then::Close << true;
        QTest::newRow("empty package") << ok("", 0) << Then::Hold << true;
        QTest::newRow("moves in circles") << loop << Then::Hold << false;
        QTest::newRow("not found") << missing << Then::Hold << false;
        QTest::newRow("closes early") << ok("abc", 6) << Then::Close << false;
        QTest::newRow("no HTTP") << QByteArray("\0\xff\n\n", 4) << Then::Close << false;
        QTest::newRow("silent") << QByteArray() << Then::Hold << false;
        QTest::newRow("falls silent") << ok("abc", 6) << Then::Hold << false;
        QTest::newRow("head without end")
            << QByteArray("HTTP/1.1 200 OK\r\nX: ") << Then::SendForEver << false;
        QTest::newRow("a byte now and then") << ok("a", -1) << Then::Trickle << false;
        QTest::newRow("body without end") << ok("a", -1) << Then::SendForEver << false;
    }

    void everyServerEndsOnAPageWithAWayBack()
    {
        QFETCH(QByteArray, answer);
        QFETCH(Then, then);
        QFETCH(bool, installs);
        PackageServer server(answer, then);
        QSignalSpy left(page, &updateFirmware::signal_backDefaultPage);
        if (then == Then::Trickle)
            page->setLimits({300ms, 2s, 1 << 20});
        const qint64 before = residentBytes();
        startDownload(server.address(package));
        QVERIFY(!shown("button_back"));
        QVERIFY(waitFor(installs ? "page_installFirmware" : "page_retryFirmware"));
        // A redirect is followed a few hops, not for ever.
        QVERIFY(server.requests < 20);
        QVERIFY(residentBytes() - before < 24e6);
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
        QVERIFY(shown("page_firmware") && shown("button_back") && !shown("button_update"));
    }

    void progressIsShownAndLogged()
    {
        MessageLog log;
        PackageServer server(ok(QByteArray("ab\0cdefg", 8), 16), Then::Hold);
        startDownload(server.address(package));
        auto *text = page->findChild<QLabel *>("label_process");
        QTRY_COMPARE(text->text(), "正在下载 ... 50%\n");
        page->on_downloadProgress(qint64(1) << 33, -1);
        QCOMPARE(text->text(), "正在下载 ... -858993459200%\n");
        QCOMPARE(page->findChild<QProgressBar *>("progressBar_update")->value(), 50);
        QVERIFY(waitFor("page_retryFirmware"));
        for (const char *line : {"Need to update version! ", "Update new version! ",
                                 "iBytesReceive is 8", "iDownloadProcess is 50",
                                 "statusCode is  200", "result is  \"ab\"", "Error comes..."})
            QVERIFY2(log.contains(line), line);
    }

    void secondCheckAndReportOfNoBytes()
    {
        PackageServer server(ok("abcdef", 6), Then::Hold);
        page->check_versionUpdate();
        startDownload(server.address(package));
        page->on_downloadProgress(0, 6);
        QVERIFY(shown("page_retryFirmware"));
        QTRY_COMPARE(page->findChildren<QWidget *>("installFirmware").size(), 2);
        QCOMPARE(server.requests, 2);
    }

    void anyReplyIsReadAndDeleted()
    {
        PackageServer server(ok(QByteArray(100000, 'b') + QByteArray("\0c", 2), 100002),
                             Then::Hold);
        QNetworkAccessManager manager;
        const QPointer<QNetworkReply> reply =
            manager.get(QNetworkRequest(QUrl(server.address(package))));
        QTRY_VERIFY(reply->isFinished());
        MessageLog log;
        page->finish_reply(reply);
        QCOMPARE(log.count("No error result is  \"" + QString(65536, 'b') + "\""), 1);
        QVERIFY(shown("page_installFirmware"));
        QTRY_VERIFY(!reply);
    }

    void pageMayGoWhileItsDownloadRuns()
    {
        PackageServer server(ok("a", -1), Then::SendForEver);
        startDownload(server.address(package));
        QTRY_VERIFY(server.sent > 1e6);
        page->on_downloadProgress(0, -1);
        tap(shown("button_back"));
        QTRY_COMPARE(server.socket->state(), QAbstractSocket::UnconnectedState);
        page->download_newVersion();
        server.sent = 0;
        QTRY_VERIFY(server.sent > 1e6);
        cleanup();
        init();
    }

private:
    QWidget *shown(const char *name) { return visibleChild(page, name); }
    void startDownload(const QByteArray &address)
    {
        qputenv("ZELL_FIRMWARE_URL", address);
        page->check_versionUpdate();
        tap(shown("button_update"));
    }
    // In an event loop of its own: the polling of QTRY_ would slow a download a hundredfold.
    bool waitFor(const char *end)
    {
        QSignalSpy turned(page->findChild<QStackedWidget *>(), &QStackedWidget::currentChanged);
        while (!shown(end) && turned.wait(20000)) {
        }
        return shown(end) != nullptr;
    }

    updateFirmware *page = nullptr;
};

ZELL_TEST_MAIN(TestFirmware)
#include "test_firmware.moc"
