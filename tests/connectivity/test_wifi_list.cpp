#include "connectivity/WifiListModel.h"
#include "connectivity/WifiListRowDelegate.h"
#include "connectivity/WifiScan.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/ModelColumn.h"
#include "testkit/PictureCompare.h"
#include "testkit/TableRows.h"

#include <QAbstractItemModelTester>
#include <QBuffer>
#include <QPainter>
#include <QTimer>
#include <ctime>

using namespace std::chrono_literals;

namespace {
struct Networks
{
    explicit Networks(WifiListModel *model) { model->setWifiList({&home, &studio, &guest}); }

    WifiInfo home{"Home", "MAC", 3, EncryptType::None};
    WifiInfo studio{"Studio", "MAC", 7, EncryptType::None};
    WifiInfo guest{"Guest", "MAC", 0, EncryptType::None};
};

struct Scan
{
    const char *name;
    QByteArray text; ///< of the scan, or of the scanner
    QStringList networks;
};

const QByteArray megabyte(1 << 20, 'n');

QByteArray scanLine(const QByteArray &name)
{
    return QByteArray(20, ' ') + "ESSID:\"" + name + "\"\n";
}

QStringList namesIn(QByteArray scan)
{
    QBuffer file(&scan);
    return file.open(QIODevice::ReadOnly) ? readNetworkNames(file) : QStringList();
}
} // namespace

class TestWifiList : public QObject
{
    Q_OBJECT

private slots:
    void modelKeepsTheRules()
    {
        MessageLog log;
        WifiListModel model;
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::Warning);
        Networks networks(&model);
        networks.studio.setConnectState(ConnectState::StateConnectedNoNetwork);
        QCOMPARE(columnOf(model, Qt::DisplayRole), (QVariantList{"Home", "Studio", "Guest"}));
        QCOMPARE(columnOf(model, Qt::StatusTipRole), (QVariantList{3, 7, 0}));
        QCOMPARE(columnOf(model, Qt::CheckStateRole), (QVariantList{0, 2, 0}));
        QVERIFY(!model.data({}).isValid());
        QVERIFY(!model.setData(model.index(2, 0), "x"));

        WifiInfo *top = &networks.guest;
        model.insertWifi(0, top);
        QVERIFY(model.insertRows(2, 3));
        QVERIFY(model.removeRows(1, 2));
        // Rows outside the list are harmless.
        const std::pair<int, int> outside[] = {{5, 2}, {-1, 2}, {0, -4}, {1, 99}};
        for (const auto &[first, count] : outside)
            QVERIFY(model.removeRows(first, count));
        QVERIFY(model.insertRows(99, 1));
        QVERIFY(model.insertRows(-9, 1));
        model.toConnect(3);
        model.toConnect(-1);
        QCOMPARE(columnOf(model, Qt::DisplayRole), (QVariantList{"", "Guest", ""}));
        // The tester objects to nothing but the flags of the invalid index.
        QVERIFY(log.contains("FAIL!"));
        QCOMPARE(log.count("FAIL!"), log.count("FAIL! flags"));
    }

    void connectingTakesASecond()
    {
        WifiListModel model;
        auto networks = std::make_unique<Networks>(&model);
        networks->home.setConnectState(ConnectState::StateConnected);
        QVariantList meanwhile;
        QTimer::singleShot(0, &model, [&] { meanwhile = columnOf(model, Qt::CheckStateRole); });
        const QDeadlineTimer second(1000);
        const std::clock_t work = std::clock();
        model.toConnect(1);
        QVERIFY(second.hasExpired());
        QVERIFY2(std::clock() - work < CLOCKS_PER_SEC / 4, "asleep meanwhile");
        QCOMPARE(meanwhile, (QVariantList{0, 3, 0}));
        QCOMPARE(columnOf(model, Qt::CheckStateRole), (QVariantList{0, 1, 0}));
        // The network goes meanwhile.
        QTimer::singleShot(0, &model, [&] {
            model.setWifiList({});
            networks.reset();
        });
        model.toConnect(0);
    }

    void scanIsCutIntoNames_data()
    {
        addRows<Scan>({
            {"order and doubles", scanLine("B") + scanLine("A") + scanLine("B"), {"B", "A", "B"}},
            {"foreign line end", scanLine("A").chopped(1) + "\r\n", {"A"}},
            {"short lines", "ESSID\n\nx", {"", "", ""}},
            {"just no name", QByteArray(27, 'x') + "\n" + QByteArray(28, 'x'), {"", ""}},
            {"quotes", scanLine("it's \"mine\""), {"it's \"mine\""}},
            {"right to left", scanLine("שלום"), {"שלום"}},
            {"symbols", scanLine("咖啡☕📶"), {"咖啡☕📶"}},
            {"no text",
             scanLine(QByteArray("a\0\xff\x01", 4)),
             {QString("a") + QChar(0) + QChar(0xfffd) + QChar(1)}},
            {"endless line", scanLine(megabyte) + scanLine("B"), {QString(1024 - 28, 'n'), "B"}},
            {"eight megabytes at most", scanLine(megabyte).repeated(20),
             QStringList(8, QString(1024 - 28, 'n'))},
        });
    }

    void scanIsCutIntoNames()
    {
        QFETCH(Scan, row);
        QCOMPARE(namesIn(row.text), row.networks);
    }

    void everyScannerLeavesAList_data()
    {
        const QByteArray line = scanLine("A").chopped(1);
        addRows<Scan>({
            {"never ends", "yes '" + line + "'", QStringList(1000, "A")},
            {"hangs", "trap '' TERM; printf '" + line + "\nESSID:\"half'; sleep 30", {"A"}},
            {"bytes that are no text",
             "printf '" + scanLine("a\\0\\377b") + line + "\n'",
             {QString("a") + QChar(0) + QChar(0xfffd) + "b", "A"}},
        });
    }

    void everyScannerLeavesAList()
    {
        QFETCH(Scan, row);
        Environment::writeDeviceScript("/sbin/iwlist", row.text);
        const QDeadlineTimer patience(2500);
        runScan(scanCommand("."), 1s);
        QVERIFY(!patience.hasExpired());
        QFile scan(scanFilePath("."));
        QVERIFY(scan.open(QIODevice::ReadOnly));
        QVERIFY(scan.size() <= 8 << 20);
        QCOMPARE(readNetworkNames(scan), row.networks);
    }

    void rowsLookAsTheyShould()
    {
        using enum ConnectState;
        QImage picture(854, 80 * 9, QImage::Format_RGB32);
        picture.fill(QColor(33, 33, 33));
        QPainter painter(&picture);
        QStyleOptionViewItem option;
        option.rect = QRect(0, 0, 854, 80);
        option.font = QFont("Heiti SC");
        option.font.setPixelSize(24);
        option.fontMetrics = QFontMetrics(option.font);
        const auto paint = [&](const QString &name, int level, ConnectState state,
                               QStyle::State style = {}) {
            WifiInfo network(name, "MAC", level, EncryptType::None);
            network.setConnectState(state);
            WifiListModel model;
            model.setWifiList({&network});
            option.state = style;
            WifiListRowDelegate().paint(&painter, option, model.index(0));
            option.rect.translate(0, 80);
        };
        paint("Normal", 3, StateDisconnected);
        paint("Selected", 2, StateDisconnected, QStyle::State_Selected);
        paint("Connecting", 3, StateConnecting);
        paint("Connected", 4, StateConnected);
        paint("Connected and selected", 1, StateConnectedNoNetwork, QStyle::State_Selected);
        paint("Level below one", -5, StateDisconnected);
        paint("Level above four", 9, StateDisconnected);
        paint(QString(2000, 'n'), 3, StateConnected);
        paint("שלום", 3, StateDisconnected);
        painter.end();
        const QString fault = pictureDifference(picture, ZELL_REFERENCE_DIR, "wifi-rows.png");
        QVERIFY2(fault.isEmpty(), qPrintable(fault));
    }
};

ZELL_TEST_MAIN(TestWifiList)
#include "test_wifi_list.moc"
