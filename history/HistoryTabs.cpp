#include "history/HistoryTabs.h"

#include <QTabBar>

namespace {
class Bar : public QTabBar
{
public:
    // The name that the bar has which QTabWidget makes.
    Bar() { setObjectName(QStringLiteral("qt_tabwidget_tabbar")); }

protected:
    QSize tabSizeHint(int) const override { return {100, 50}; }
};
} // namespace

HistoryTabs::HistoryTabs(QWidget *parent)
    : QTabWidget(parent)
{
    setTabBar(new Bar);
    // These would measure texts, too.
    setUsesScrollButtons(false);
}
