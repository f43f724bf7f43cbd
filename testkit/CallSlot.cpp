#include "testkit/CallSlot.h"

#include <QMetaMethod>
#include <QPointer>
#include <cstddef>

void callSlot(QObject *object, const char *name, QGenericArgument first, QGenericArgument second)
{
    if (!object)
        qFatal("no object to call %s of", name);
    if (!QMetaObject::invokeMethod(object, name, Qt::DirectConnection, first, second))
        qFatal("%s has no slot %s with these arguments", object->metaObject()->className(), name);
}

void callSlots(QWidget *page, const char *prefix)
{
    const QMetaObject *meta = page->metaObject();
    const QPointer<QWidget> there(page);
    for (int i = QWidget::staticMetaObject.methodCount(); i < meta->methodCount() && there; ++i) {
        if (meta->method(i).methodType() != QMetaMethod::Slot ||
            !meta->method(i).name().startsWith(prefix))
            continue;
        // Numbers, pointers and what Qt shares are all zeros while they are nothing.
        alignas(std::max_align_t) std::byte nothing[64]{};
        void *arguments[] = {nullptr, nothing, nothing, nothing};
        QMetaObject::metacall(page, QMetaObject::InvokeMetaMethod, i, arguments);
    }
}
