#include "pages/EmptyPage.h"

#include <QWidget>

void emptyPage(QWidget *page)
{
    page->setUpdatesEnabled(false);
    for (QWidget *child : page->findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
        child->deleteLater();
}
