#pragma once

class QWidget;

/// Deletes the widgets inside @p page, from the event loop, and ends its painting. The page stays
/// as an empty frame.
///
/// For a page that has been left for good and stays behind the pages of later visits: the style
/// sheet keeps some 11 KB for every widget it has ever met, which adds up to half a megabyte for a
/// form page. Once its widgets are gone no slot, timer or reply of the page may touch its form. May
/// be called again. GUI thread.
void emptyPage(QWidget *page);
