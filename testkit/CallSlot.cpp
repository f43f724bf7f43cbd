#include "testkit/CallSlot.h"

#include <QMetaObject>

void callSlot(QObject *object, const char *name, QGenericArgument first, QGenericArgument second)
{
    if (!object)
        qFatal("no object to call %s of", name);
    if (!QMetaObject::invokeMethod(object, name, Qt::DirectConnection, first, second))
        qFatal("%s has no slot %s with these arguments", object->metaObject()->className(), name);
}
