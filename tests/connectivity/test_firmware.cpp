#include "connectivity/CapsuleBar.h"
#include "connectivity/FirmwareDownload.h"
#include "connectivity/updateFirmware.h"
#include "simulator/FirmwareServer.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/TableRows.h"
#include "testkit/Touch.h"

#include <QLabel>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <QProgressBar>
#include <QSignalSpy>
#include <QStackedWidget>

using namespace std::chrono_literals;
using simulator::FirmwareAnswer;
using simulator::FirmwareFault;
using simulator::FirmwareServer;

namespace {
constexpr auto stalls = FirmwareAnswer::Ending::Stall;
constexpr auto closes = FirmwareAnswer::Ending::Close;

QByteArray ok(const QByteArray &body, qint64 length)
{
    return "HTTP/1.1 200 OK\r\n" +
           (length < 0 ? "" : "Content-Length: " + QByteArray::number(length) + "\r\n") + "\r\n" +
           body;
}

QByteArray lengthIs(const QByteArray &length)
{
    return "HTTP/1.1 200 OK\r\nContent-Length: " + length + "\r\n\r\nabcdef";
}

FirmwareAnswer atOnce(FirmwareFault fault)
{
    FirmwareAnswer answer = simulator::firmwareAnswer(fault);
    answer.pause = 0ms;
    return answer;
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
        page = std::make_unique<updateFirmware>();
        page->setLimits({300ms, 60s, qint64(96) * 1024 * 1024});
        page->show();
    }

    void addressAndPercent()
    {
        qunsetenv("ZELL_FIRMWARE_URL");
        QCOMPARE(firmwareAddress(), QUrl("http://firmware.example.com/zell/ZellQt-1.1.pkg"));
        QCOMPARE(downloadPercent(2, 3), 66);
        QCOMPARE(downloadPercent(qint64(1) << 40, qint64(1) << 41), 50);
        QCOMPARE(downloadPercent(5, 0), 0);
    }

    void barGrowsFromACircle()
    {
        auto *bar = page->findChild<CapsuleBar *>("progressBar_update");
        bar->show();
        shown("button_checkUpdate")->hide();
        for (const auto &[percent, length] :
             QMap<int, int>{{0, 0}, {1, 20}, {50, 280}, {99, 554}, {100, 560}}.asKeyValueRange()) {
            bar->setValue(percent);
            const QImage picture = page->grab(bar->geometry()).toImage();
            const auto isLit = [&](int x, int y) { return qGray(picture.pixel(x, y)) > 128; };
            int end = 0;
            while (end < 560 && isLit(end, 10))
                ++end;
            QCOMPARE(end, length);
            QVERIFY(!isLit(std::max(end - 1, 0), 0));
        }
    }

    void everyServerEndsOnAPageWithAWayBack_data()
    {
        const QByteArray moved = "HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: " +
                                 QByteArray(simulator::firmwarePath) + "\r\n\r\n";
        const FirmwareAnswer silent{.head = {}, .ending = stalls};
        const FirmwareAnswer fallsSilent{.head = ok("abc", 6), .ending = stalls};
        const QByteArray missing = "HTTP/1.1 404 No\r\nContent-Length: 2\r\n\r\nno";
        const QByteArray longHead = "HTTP/1.1 200 OK\r\nX: " + QByteArray(1 << 20, 'x');
        const FirmwareAnswer drops{
            .head = ok("a", -1), .bodySize = -1, .chunkSize = 1, .pause = 10ms};
        addRows<Server>({
            {"whole package", {{.head = ok("abcdef", 6), .ending = stalls}}, true},
            {"length below zero", {{.head = lengthIs("-6"), .ending = closes}}},
            {"length no number", {{.head = lengthIs("six"), .ending = closes}}},
            {"length beyond all numbers",
             {{.head = lengthIs(QByteArray(30, '9')), .ending = closes}}},
            {"moves in circles", {{.head = moved, .ending = closes}}},
            {"moved, silent", {{.head = moved, .ending = closes}, silent}},
            {"moved, falls silent", {{.head = moved, .ending = closes}, fallsSilent}},
            {"moved, silent on the same line", {{.head = moved, .ending = stalls}}},
            {"not found", {{.head = missing, .ending = stalls}}},
            {"simulated: refused", {atOnce(FirmwareFault::Refused)}},
            {"simulated: cut off", {atOnce(FirmwareFault::CutOff)}},
            {"simulated: stalled", {atOnce(FirmwareFault::Stalled)}},
            {"simulated: endless", {atOnce(FirmwareFault::Endless)}},
            {"simulated: unknown length", {atOnce(FirmwareFault::UnknownLength)}, true},
            {"simulated: zero report", {atOnce(FirmwareFault::ZeroReport)}, true},
            {"no HTTP", {{.head = QByteArray("\0\xff\n\n", 4), .ending = closes}}},
            {"silent", {silent}},
            {"head without end", {{.head = longHead, .ending = stalls}}},
            {"a byte now and then", {drops}},
        });
    }

    void everyServerEndsOnAPageWithAWayBack()
    {
        QFETCH(Server, row);
        FirmwareServer server(row.answers);
        QSignalSpy left(page.get(), &updateFirmware::signal_backDefaultPage);
        if (row.answers.last().chunkSize == 1)
            page->setLimits({300ms, 2s, 1 << 20});
        const qint64 before = residentBytes();
        startDownload(server);
        QVERIFY(!shown("button_back"));
        QVERIFY(waitFor(row.installs ? "page_installFirmware" : "page_retryFirmware"));
        // A redirect is followed a few hops, not for ever.
        QVERIFY(server.downloads() < 20);
        QVERIFY(residentBytes() - before < 24e6);
        tap(shown("button_back"));
        // The retry page runs its slots twice per click.
        QCOMPARE(left.count(), row.installs ? 1 : 2);
        QCOMPARE(QFileInfo("ZellQt-1.1.pkg").size(), 0);
        QVERIFY(QFile::remove("ZellQt-1.1.pkg"));
    }

    void progressIsShownAndLogged()
    {
        MessageLog log;
        FirmwareServer server({{.head = ok(QByteArray("ab\0cdefg", 8), 16), .ending = stalls}});
        startDownload(server);
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
        FirmwareServer server({{.head = ok("abcdef", 6), .ending = stalls}});
        page->check_versionUpdate();
        startDownload(server);
        page->on_downloadProgress(0, 6);
        QVERIFY(shown("page_retryFirmware"));
        QTRY_COMPARE(page->findChildren<QWidget *>("installFirmware").size(), 2);
        QCOMPARE(server.downloads(), 2);
    }

    void anyReplyIsReadAndDeleted()
    {
        const QByteArray body = QByteArray(100000, 'b') + QByteArray("\0c", 2);
        FirmwareServer server({{.head = ok(body, body.size()), .ending = stalls}});
        QVERIFY(server.listen());
        QNetworkAccessManager manager;
        const QPointer<QNetworkReply> reply = manager.get(QNetworkRequest(QUrl(server.url())));
        QTRY_VERIFY(reply->isFinished());
        MessageLog log;
        page->finish_reply(reply);
        QCOMPARE(log.count("No error result is  \"" + QString(65536, 'b') + "\""), 1);
        QVERIFY(shown("page_installFirmware"));
        QTRY_VERIFY(!reply);
    }

    void pageMayGoWhileItsDownloadRuns()
    {
        FirmwareServer server({atOnce(FirmwareFault::Endless)});
        page->setLimits({60s, 60s, qint64(1) << 50});
        startDownload(server);
        QTRY_VERIFY(server.bytesSent() > 1e6);
        page->on_downloadProgress(0, -1);
        tap(shown("button_back"));
        QTRY_COMPARE(server.clients(), 0);
        page->download_newVersion();
        const qint64 before = server.bytesSent();
        QTRY_VERIFY(server.bytesSent() > before + 1e6);
        page.reset();
        QTRY_COMPARE(server.clients(), 0);
    }

private:
    struct Server
    {
        const char *name;
        QList<FirmwareAnswer> answers;
        bool installs = false;
    };

    QWidget *shown(const char *name) { return visibleChild(page.get(), name); }
    void startDownload(FirmwareServer &server)
    {
        QVERIFY(server.listen());
        qputenv("ZELL_FIRMWARE_URL", server.url().toLatin1());
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

    std::unique_ptr<updateFirmware> page;
};

ZELL_TEST_MAIN(TestFirmware)
#include "test_firmware.moc"
