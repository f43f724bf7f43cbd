#include "connectivity/SetWifiPage.h"

#include "connectivity/WifiListModel.h"
#include "connectivity/WifiListRowDelegate.h"
#include "connectivity/WifiScan.h"
#include "connectivity/passwordKeyboard.h"
#include "device/RegularFile.h"
#include "pages/ScrollThumb.h"
#include "pages/TouchList.h"
#include "ui_SetWifiPage.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QPointer>
#include <utility>

namespace {
// The scan tells neither of them; every network gets the same.
constexpr int scannedLevel = 3;
const QString scannedAddress = QStringLiteral("MAC");
// Whoever taps on and on must not nest choices until the stack is full.
constexpr int mostChoicesUnderWay = 4;
} // namespace

SetWifiPage::SetWifiPage(QWidget *parent)
    : FormPage(parent)
    , model(new WifiListModel(this))
{
    ui->setupUi(this);
    for (QWidget *part : std::initializer_list<QWidget *>{
             ui->label_noWifi, ui->icon_noWifi, ui->info_noWifi, ui->listView, ui->scrollArea})
        part->hide();
    ui->listView->setModel(model);
    showScroll(ui->listView, ui->scrollBar_networks);
    connect(ui->page_passwordKeyboard, &PageHolder::signal_pageLeft, this,
            &SetWifiPage::back_default_page);

    QFile scanFile(scan());
    // One that is missing is opened all the same: it tells why it cannot be.
    const bool opened = scanFile.exists()
                            ? openExisting(scanFile, QIODevice::ReadOnly, FileKind::Regular)
                            : scanFile.open(QIODevice::ReadOnly);
    qDebug() << scanFile.exists();
    if (opened && scanFile.size() != 0)
        showNetworks(scanFile);
    else
        showNoWifi(scanFile);
}

// The networks must outlive the model, which still reads them while the view is taken down.
SetWifiPage::~SetWifiPage()
{
    delete model;
}

QString SetWifiPage::scan()
{
    const QString command = scanCommand(QDir::currentPath());
    qDebug() << "command" << command;
    QString filePath = scanFilePath(QDir::currentPath());
    qDebug() << "filePath" << filePath;
    // Kept[scan-blocks]: the page opens when the scan is done. The file tells whether it worked.
    runScan(command);
    return filePath;
}

void SetWifiPage::showNetworks(QFile &scanFile)
{
    ui->listView->show();
    ui->scrollArea->show();
    qDebug() << "Open file OK and the file is not blank...";
    // It goes once the view has the next one.
    const std::unique_ptr<WifiListModel> blank(std::exchange(model, new WifiListModel(this)));
    for (const QString &name : readNetworkNames(scanFile)) {
        qDebug() << "strEverySSIDName" << name;
        wifiList.append(keep(
            std::make_unique<WifiInfo>(name, scannedAddress, scannedLevel, EncryptType::None)));
    }
    scanFile.close();

    model->setWifiList(wifiList);
    ui->listView->setModel(model);
    ui->listView->setItemDelegate(new WifiListRowDelegate(ui->listView));
    QPalette palette = ui->listView->palette();
    palette.setBrush(QPalette::Highlight, Qt::white);
    ui->listView->setPalette(palette);
    connect(ui->listView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &SetWifiPage::onListWifiItemClicked);
    new TouchList(ui->listView);
}

void SetWifiPage::showNoWifi(const QFile &scanFile)
{
    qDebug() << scanFile.errorString();
    qDebug() << "file zize = " << scanFile.size();
    ui->label_noWifi->show();
    ui->icon_noWifi->show();
    ui->info_noWifi->show();
}

WifiInfo *SetWifiPage::keep(std::unique_ptr<WifiInfo> info)
{
    networks.push_back(std::move(info));
    return networks.back().get();
}

void SetWifiPage::on_button_back_clicked()
{
    if (!ui)
        return;
    leave();
    killTimer(timerId);
    qDebug() << "Timer Killed";
}

void SetWifiPage::onListWifiItemClicked(const QItemSelection &selected, const QItemSelection &)
{
    if (!ui || selected.isEmpty())
        return;
    qDebug() << "Click";
    if (choicesUnderWay == mostChoicesUnderWay) {
        qDebug() << "still connecting: the tap is ignored";
        return;
    }
    const int row = selected.first().top();
    chosen = model->index(row).data().toString();
    const QPointer<SetWifiPage> self(this);
    ++choicesUnderWay;
    model->toConnect(row);
    if (!self)
        return;
    --choicesUnderWay;
    // Within the second the menu may have opened the next page and emptied this one.
    if (ui)
        ui->page_passwordKeyboard->open<passwordKeyboard>()->setNetwork(chosen);
}

// Kept[placeholder-network]: the page starts no timer by itself.
void SetWifiPage::timerEvent(QTimerEvent *)
{
    if (!ui)
        return;
    qDebug() << "Timer";
    WifiInfo *info =
        keep(std::make_unique<WifiInfo>(QStringLiteral("A"), scannedAddress, 0, EncryptType::None));
    model->insertWifi(0, info);
}
