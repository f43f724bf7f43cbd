#pragma once

class QWidget;

/// Frees what the style sheet remembers for the page of the last visit, which lies behind @p page:
/// the page of its class before it in the same holder. To be called once per visit.
///
/// Such a page stays as long as its holder but is never seen again, and what the style sheet keeps
/// for each of its widgets, 7 KiB and more, is nearly all that it costs. The page is not changed:
/// what is needed again is remembered again. GUI thread.
///
/// The widgets of that page emit destroyed() for it, so nobody else may wait for that signal of a
/// part of a page.
void lightenPageBehind(const QWidget *page);
