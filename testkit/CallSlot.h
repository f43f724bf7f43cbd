#pragma once

#include <QObject>

/// Calls the slot @p name of @p object with up to two arguments made by Q_ARG(). Ends the test
/// program with a message where the object has no such slot: a test that calls nothing would pass
/// for ever.
void callSlot(QObject *object, const char *name, QGenericArgument first = {},
              QGenericArgument second = {});
