#pragma once

#include <QWidget>

/// Calls the slot @p name of @p object with up to two arguments made by Q_ARG(). Ends the test
/// program with a message where the object has no such slot: a test that calls nothing would pass
/// for ever.
void callSlot(QObject *object, const char *name, QGenericArgument first = {},
              QGenericArgument second = {});

/// Calls every slot that @p page has and a plain widget has not and whose name begins with
/// @p prefix, with arguments that are zero, null or empty. Ends where a slot deletes the page.
void callSlots(QWidget *page, const char *prefix = "");
