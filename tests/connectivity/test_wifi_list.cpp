#include "connectivity/WifiListModel.h"
#include "connectivity/WifiListRowDelegate.h"
#include "connectivity/WifiScan.h"
#include "tests/support/Environment.h"
#include "tests/support/MessageLog.h"
#include "tests/support/PictureCompare.h"

#include <QAbstractItemModelTester>
#include <QBuffer>
#include <QPainter>
#include <QTimer>
#include <list>

namespace {
struct Networks
{
    explicit Networks(WifiListModel *model) { model->setWifiList({&home, &studio, &guest}); }

    WifiInfo home{"Home", "MAC", 3, EncryptType::None};
    WifiInfo studio{"Studio", "MAC", 7, EncryptType::None};
    WifiInfo guest{"Guest", "MAC", 0, EncryptType::None};
};

QVariantList column(const QAbstractItemModel &model, int role)
{
    QVariantList values;
    for (int row = 0; row < model.rowCount(); ++row)
        values.append(model.index(row, 0).data(role));
    return values;
}

QByteArray scanLine(const QByteArray &name)
{
    return QByteArray(20, ' ') + "ESSID:\"" + name + "\"\n";
}
} // namespace

class TestWifiList : public QObject
{
    Q_OBJECT

private slots:
    void modelKeepsTheRules();
    void rolesShowTheNetworks();
    void connectingTakesASecond();
    void namesOfAScan_data();
    void namesOfAScan();
    void longScansAreCut();
    void rowsLookAsTheyShould();
};

void TestWifiList::modelKeepsTheRules()
{
    MessageLog log;
    WifiListModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Warning);
    Networks networks(&model);
    WifiInfo *top = &networks.guest;
    model.insertWifi(0, top);
    model.insertRows(2, 3);
    QCOMPARE(column(model, Qt::DisplayRole),
             (QVariantList{"Guest", "Home", "", "", "", "Studio", "Guest"}));
    model.removeRows(1, 2);
    QCOMPARE(column(model, Qt::DisplayRole), (QVariantList{"Guest", "", "", "Studio", "Guest"}));
    model.resetList();
    // The flags are the same for every index, the invalid one included, to which the tester
    // objects.
    QVERIFY(log.contains("FAIL!"));
    QCOMPARE(log.count("FAIL!"), log.count("FAIL! flags"));
}

void TestWifiList::rolesShowTheNetworks()
{
    WifiListModel model;
    Networks networks(&model);
    networks.studio.setConnectState(ConnectState::StateConnectedNoNetwork);
    QCOMPARE(column(model, Qt::DisplayRole), (QVariantList{"Home", "Studio", "Guest"}));
    QCOMPARE(column(model, Qt::StatusTipRole), (QVariantList{3, 7, 0}));
    QCOMPARE(column(model, Qt::CheckStateRole), (QVariantList{0, 2, 0}));
    const QModelIndex last = model.index(2, 0);
    QVERIFY(!last.data(Qt::ToolTipRole).isValid());
    QVERIFY(!model.data({}).isValid());
    QCOMPARE(int(model.flags(last)), 33);
    QCOMPARE(int(model.flags({})), 33);
    QVERIFY(!model.setData(last, "x"));
    QCOMPARE(last.data().toString(), "Guest");

    // Rows outside the list are harmless.
    QVERIFY(model.removeRows(3, 2) && model.removeRows(-1, 2) && model.removeRows(0, -4));
    QCOMPARE(model.rowCount(), 3);
    QVERIFY(model.removeRows(1, 99) && model.insertRows(99, 1) && model.insertRows(-9, 1));
    QCOMPARE(column(model, Qt::DisplayRole), (QVariantList{"", "Home", ""}));
    QVERIFY(!model.toConnect(3) && !model.toConnect(-1));
}

void TestWifiList::connectingTakesASecond()
{
    WifiListModel model;
    auto networks = std::make_unique<Networks>(&model);
    networks->home.setConnectState(ConnectState::StateConnected);
    QVariantList meanwhile;
    QTimer::singleShot(0, &model, [&] { meanwhile = column(model, Qt::CheckStateRole); });
    QElapsedTimer clock;
    clock.start();
    QVERIFY(model.toConnect(1));
    QVERIFY(clock.elapsed() >= 990);
    QCOMPARE(meanwhile, (QVariantList{0, 3, 0}));
    QCOMPARE(column(model, Qt::CheckStateRole), (QVariantList{0, 1, 0}));

    // A later choice takes over.
    bool later = true;
    QTimer::singleShot(100, &model, [&] { later = model.toConnect(2); });
    QVERIFY(model.toConnect(0) && !later);
    QCOMPARE(column(model, Qt::CheckStateRole), (QVariantList{0, 0, 1}));

    // The network goes meanwhile.
    QTimer::singleShot(0, &model, [&] {
        model.setWifiList({});
        networks.reset();
    });
    QVERIFY(!model.toConnect(0));
}

void TestWifiList::namesOfAScan_data()
{
    QTest::addColumn<QByteArray>("scan");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("in file order, doubles kept")
        << scanLine("B") + scanLine("A") + scanLine("B") << QStringList{"B", "A", "B"};
    QTest::newRow("carriage return") << scanLine("A").chopped(1) + "\r\n" << QStringList{"A"};
    QTest::newRow("short lines") << QByteArray("ESSID\n\nx") << QStringList{"", "", ""};
    QTest::newRow("27 and 28 characters")
        << QByteArray(27, 'x') + "\n" + QByteArray(28, 'x') << QStringList{"", ""};
    QTest::newRow("quotes") << scanLine("it's \"mine\"") << QStringList{"it's \"mine\""};
    QTest::newRow("right to left, emoji")
        << scanLine("שלום") + scanLine("咖啡☕📶") << QStringList{"שלום", "咖啡☕📶"};
    QTest::newRow("binary") << QByteArray(27, '\0') + QByteArray("a\0\xff\x01z", 5)
                            << QStringList{QString("a") + QChar(0) + QChar(0xfffd) + QChar(1)};
    QTest::newRow("long line among others")
        << scanLine("A") + scanLine(QByteArray(1024 * 1024, 'n')) + scanLine("B")
        << QStringList{"A", QString(1024 - 27 - 1, 'n'), "B"};
}

void TestWifiList::namesOfAScan()
{
    QFETCH(QByteArray, scan);
    QFETCH(QStringList, names);
    QBuffer file(&scan);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(readNetworkNames(file), names);
}

void TestWifiList::longScansAreCut()
{
    MessageLog log;
    QByteArray many = scanLine("A").repeated(100'000);
    QByteArray huge = scanLine(QByteArray(1024 * 1024, 'n')).repeated(20);
    for (const auto &[scan, count] : {std::pair(&many, 1000), std::pair(&huge, 8)}) {
        QBuffer file(scan);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(readNetworkNames(file).size(), count);
        QVERIFY(file.pos() <= 9 * 1024 * 1024);
    }
    QCOMPARE(log.count("scan result too long"), 2);
}

void TestWifiList::rowsLookAsTheyShould()
{
    WifiListModel model;
    using enum ConnectState;
    const struct
    {
        QString name;
        int level;
        ConnectState state;
        QStyle::State style = QStyle::State_Enabled;
    } rows[] = {
        {"Normal", 3, StateDisconnected},
        {"Selected", 2, StateDisconnected, QStyle::State_Selected},
        {"Connecting", 3, StateConnecting},
        {"Connected", 4, StateConnected},
        {"Connected and selected", 1, StateConnectedNoNetwork, QStyle::State_Selected},
        {"Level below one", -5, StateDisconnected},
        {"Level above four", 9, StateDisconnected},
        {QString(2000, 'n'), 3, StateConnected},
        {"שלום", 3, StateDisconnected},
    };
    std::list<WifiInfo> networks;
    for (const auto &row : rows) {
        WifiInfo *info = &networks.emplace_back(row.name, "MAC", row.level, EncryptType::None);
        info->setConnectState(row.state);
        model.insertWifi(model.rowCount(), info);
    }

    const WifiListRowDelegate delegate;
    QStyleOptionViewItem option;
    option.font = QFont("Heiti SC");
    option.font.setPixelSize(24);
    option.fontMetrics = QFontMetrics(option.font);
    QCOMPARE(delegate.sizeHint(option, model.index(0)), QSize(100, 80));
    QImage picture(854, 80 * int(std::size(rows)), QImage::Format_RGB32);
    picture.fill(QColor(33, 33, 33));
    QPainter painter(&picture);
    for (int i = 0; i < int(std::size(rows)); ++i) {
        option.rect = QRect(0, 80 * i, 854, 80);
        option.state = rows[i].style;
        delegate.paint(&painter, option, model.index(i));
    }
    painter.end();
    const QString difference = pictureDifference(picture, ZELL_REFERENCE_DIR, "wifi-rows.png");
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

ZELL_TEST_MAIN(TestWifiList)
#include "test_wifi_list.moc"
