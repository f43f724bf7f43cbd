#include "connectivity/SetWifiPage.h"
#include "connectivity/connectApp.h"
#include "connectivity/connectResult.h"
#include "connectivity/disconnectApp.h"
#include "connectivity/installFirmware.h"
#include "connectivity/locationResult.h"
#include "connectivity/passwordKeyboard.h"
#include "connectivity/retryFirmware.h"
#include "connectivity/searchLocation.h"
#include "connectivity/setLocation.h"
#include "connectivity/tryConnectApp.h"
#include "connectivity/updateFirmware.h"
#include "connectivity/wifiConnectResult.h"
#include "pages/Page.h"
#include "pages/PageHolder.h"
#include "settings/DateTimePage.h"
#include "settings/FactoryReset_Confirm.h"
#include "settings/Factory_Reset.h"
#include "settings/SetTimePage.h"
#include "settings/TimeZonePage.h"
#include "settings/adjustLight.h"
#include "settings/nightModePage.h"
#include "settings/setLanguagePage.h"
#include "settings/timePage.h"
#include "testkit/CallSlot.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/TableRows.h"

#include <QSignalSpy>
#include <QStackedWidget>
#include <functional>

namespace {
struct PageClass
{
    const char *name;
    std::function<Page *(PageHolder *)> open;
};

template <class Opened>
PageClass visited()
{
    return {Opened::staticMetaObject.className(),
            [](PageHolder *holder) -> Page * { return holder->open<Opened>(); }};
}

/// One for every signal that a plain widget has not.
auto spiesOn(const Page *page)
{
    std::vector<std::unique_ptr<QSignalSpy>> spies;
    const QMetaObject *meta = page->metaObject();
    for (int i = QWidget::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
        if (meta->method(i).methodType() == QMetaMethod::Signal)
            spies.push_back(std::make_unique<QSignalSpy>(page, meta->method(i)));
    }
    return spies;
}

QList<QWidget *> widgetsIn(const Page *page)
{
    QList<QWidget *> widgets = page->findChildren<QWidget *>();
    widgets.removeIf([](const QWidget *widget) { return qobject_cast<const Page *>(widget); });
    return widgets;
}
} // namespace

/// A page that is left is emptied once the next one opens, and does nothing any more.
class TestPageLife : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        stack = std::make_unique<QStackedWidget>();
        stack->addWidget(new QWidget);
        holder = new PageHolder;
        stack->addWidget(holder);
        stack->resize(854, 480);
        stack->show();
    }

    void emptiedPageDoesNothing_data()
    {
        addRows<PageClass>({visited<SetWifiPage>(),     visited<SetTimePage>(),
                            visited<nightModePage>(),   visited<adjustLight>(),
                            visited<setLanguagePage>(), visited<setLocation>(),
                            visited<connectApp>(),      visited<updateFirmware>(),
                            visited<Factory_Reset>(),   visited<FactoryReset_Confirm>(),
                            visited<timePage>(),        visited<connectResult>(),
                            visited<disconnectApp>(),   visited<installFirmware>(),
                            visited<locationResult>(),  visited<passwordKeyboard>(),
                            visited<retryFirmware>(),   visited<searchLocation>(),
                            visited<tryConnectApp>(),   visited<wifiConnectResult>()});
    }

    void emptiedPageDoesNothing()
    {
        QFETCH(PageClass, row);
        const QPointer<Page> former = row.open(holder);
        callSlots(former, "jump_");
        QList<QPointer<Page>> gone{former};
        for (Page *behind : former->findChildren<Page *>())
            gone.append(behind);

        const Page *present = row.open(holder);
        for (const QPointer<Page> &each : gone) {
            QVERIFY(each);
            QVERIFY(each->isEmptied());
            QTRY_VERIFY(widgetsIn(each).isEmpty());
            const auto spies = spiesOn(each);
            const MessageLog log;
            callSlots(each);
            each->grab();
            each->empty();
            QCOMPARE(log.lines(), QStringList());
            for (const auto &spy : spies)
                QCOMPARE(spy->size(), 0);
            QVERIFY(widgetsIn(each).isEmpty());
        }
        QVERIFY(!present->isEmptied());
        QVERIFY(present->isVisible());
        QCOMPARE(stack->currentWidget(), holder);
    }

    void pageThatExistsOnceOutlivesItsOpener()
    {
        auto *opener = holder->open<SetTimePage>();
        QSignalSpy left(holder, &PageHolder::signal_pageLeft);
        opener->on_button_back_clicked();
        opener->on_button_back_clicked();
        QCOMPARE(left.size(), 2);
        // Left, a page is whole until the next one opens.
        opener->on_button_dateTime_clicked();
        opener->on_button_timeZone_clicked();
        const QPointer<Page> wheels = DateTimePage::instance;
        const QPointer<Page> zones = TimeZonePage::instance;
        auto *next = holder->open<SetTimePage>();
        QTRY_VERIFY(opener->findChildren<PageHolder *>().isEmpty());
        next->on_button_dateTime_clicked();
        QCOMPARE(DateTimePage::instance, wheels);
        QVERIFY(wheels->isVisible());
        QCOMPARE(TimeZonePage::instance, zones);
        QVERIFY(!zones->isEmptied());
        stack.reset();
        QVERIFY(!DateTimePage::instance);
        QVERIFY(!TimeZonePage::instance);
    }

private:
    std::unique_ptr<QStackedWidget> stack;
    PageHolder *holder = nullptr;
};

ZELL_TEST_MAIN(TestPageLife)
#include "test_page_life.moc"
