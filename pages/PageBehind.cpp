#include "pages/PageBehind.h"

#include <QWidget>
#include <algorithm>

namespace {
// The style sheet forgets a widget that is destroyed, and there is no other way to make it: to take
// the style away, or give it anew, fills its memory at once with the same again.
void forgetStyle(QWidget *widget)
{
    emit widget->destroyed(widget);
}
} // namespace

void lightenPageBehind(const QWidget *page)
{
    const QObjectList &siblings = page->parentWidget()->children();
    const auto former = std::find_if(siblings.rbegin(), siblings.rend(), [page](QObject *sibling) {
        return sibling != page && sibling->metaObject() == page->metaObject();
    });
    if (former == siblings.rend())
        return;
    forgetStyle(qobject_cast<QWidget *>(*former));
    for (QWidget *part : (*former)->findChildren<QWidget *>())
        forgetStyle(part);
}
