#pragma once

#include <QGraphicsPixmapItem>

/// Shows below the reading which page of the strip is in view: a dot for each page. A picture that
/// changes with the page only, so that it costs a slide next to nothing. GUI thread.
class PageDots : public QGraphicsPixmapItem
{
public:
    PageDots();

    /// Lights the dot of @p page, from 0; none where there is no such page.
    void light(int page);

private:
    int lit = -1;
};
