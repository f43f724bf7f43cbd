#pragma once

#include <QPixmap>
#include <QRegion>
#include <QWidget>

class QAbstractScrollArea;

/// Stands for what scrolls in an area as long as it moves: a picture of what is in view, in which
/// each step draws no more than has come in.
///
/// Between two steps everything below is painted as ever, and shows through: what changes there is
/// seen at once and drawn anew with the next step. Takes no touches. GUI thread.
class ScrolledPicture : public QWidget
{
    Q_OBJECT

public:
    /// Covers @p scrolled but for its scroll bars. It lies on the ground of all pages and scrolls
    /// per pixel. Owned by it.
    explicit ScrolledPicture(QAbstractScrollArea *scrolled);

    /// Moves the vertical scroll bar to @p value and shows that within the call.
    void scrollTo(int value);

    /// Watches the window.
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRect view() const;
    bool isMoving() const { return testAttribute(Qt::WA_OpaquePaintEvent); }
    void takePlace();
    void drawMissing();
    void findInk(const QRect &rows);

    QAbstractScrollArea *area;
    QWidget *content;
    // A row of the content lies here at its y modulo the height: nothing in it ever moves.
    QPixmap picture;
    // In the coordinates of the content.
    QRegion drawn;
    // The columns in which something lies: beside them nothing moves.
    QRect ink;
};
