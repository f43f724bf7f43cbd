#pragma once

class QWidget;

/// Deletes the widgets inside @p page, from the event loop, and stops its painting.
///
/// For a page that has been left for good and stays behind the pages of later visits: the style
/// sheet keeps some 11 KB for every widget it has ever met, which adds up to half a megabyte for a
/// form page. No slot of the page may run afterwards, so it must have no timer, reply or
/// connection of its own that outlives its widgets.
void emptyPage(QWidget *page);
