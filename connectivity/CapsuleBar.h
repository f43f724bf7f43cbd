#pragma once

#include <QPixmap>
#include <QProgressBar>

/// A progress bar whose groove and fill end in half circles at every length, which a style sheet
/// cuts straight while the fill is short. A fill of more than nothing is at least a circle. Shows
/// no text, and nothing that moves where the range is empty. GUI thread.
class CapsuleBar : public QProgressBar
{
    Q_OBJECT

public:
    explicit CapsuleBar(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap groove;
    QPixmap fill;
};
