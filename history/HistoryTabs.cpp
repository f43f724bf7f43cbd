#include "history/HistoryTabs.h"

#include <QTabBar>

namespace {
class Bar : public QTabBar
{
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
