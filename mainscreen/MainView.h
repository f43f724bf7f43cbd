#pragma once

#include "pages/Quantity.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QList>

class BaseScene;
class BaseValue;
class GetData;
class PageDots;
class QGraphicsPixmapItem;
class QTimeLine;

/// Shows the main screen: three reading pages on a strip that slides over a wide background, and
/// the overlay above them. Owns the scheduler that feeds them. GUI thread.
class MainView : public QGraphicsView
{
    Q_OBJECT

public:
    enum class SlideDirection { Left = 1, Right = 2 };

    explicit MainView(QWidget *parent = nullptr);

    /// Gives out the overlay, whose signal_jumpToOption() asks for the settings.
    BaseScene *overlay() const { return baseScene; }

    /// Starts a slide by @p pages; negative is towards higher page numbers.
    void slide(int pages);
    /// Slides to the next page (Right) or to the previous one.
    void slide_show(SlideDirection direction);

protected:
    /// Paints the brush only where the background picture does not lie.
    void drawBackground(QPainter *painter, const QRectF &rect) override;
    /// Shows at once what a press has changed, and hands swipes beyond the last page, where there
    /// is none, to the last one.
    bool viewportEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

protected slots:
    /// Slides to the next / previous page. Ignored while a slide runs and at the ends.
    void slide_right();
    void slide_left();
    /// Slides as the tile numbered @p page wants it. Ignored while a slide runs; see
    /// Strip::slideToChosen().
    void choose_page(int page);

private slots:
    void change_page(int frame);
    /// Fades the pages on their way, and lets those rest that cannot be seen: beside the view, and
    /// all while the view is hidden or covered by the history.
    void updateSight();

private:
    void scene_init();
    void connect_init();
    void animation_init();
    void addProxy(QGraphicsProxyWidget *proxy, qreal z);
    bool isSliding() const;

    QGraphicsScene graphicsScene;
    QTimeLine *timeLine = nullptr;
    float position = 0;
    QList<BaseValue *> readingPages;
    BaseScene *baseScene = nullptr;
    QGraphicsPixmapItem *background = nullptr;
    PageDots *dots = nullptr;
    bool isOffPages = false; ///< where the finger came down
    GetData *scheduler = nullptr;
    int currentPage = int(Quantity::Temperature);
};
