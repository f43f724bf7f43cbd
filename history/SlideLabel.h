#pragma once

#include <QColor>
#include <QString>
#include <QTimer>
#include <QWidget>

class QLabel;

/// Reads out a touched reading: its value on a chip of its colour, the unit beside it, and a date
/// above. GUI thread.
class SlideLabel : public QWidget
{
    Q_OBJECT

public:
    explicit SlideLabel(QWidget *parent = nullptr);

    /// Shows @p value with one decimal in @p unit on @p color. The date keeps the text it was built
    /// with; @p time is not shown. The style sheet of the chip follows when the finger rests.
    void updateValue(float value, const QString &unit, const QString &time, const QColor &color);

private:
    class OutlinedLabel;

    void dressPlate();

    QLabel *timeLabel;
    OutlinedLabel *valueLabel;
    QLabel *unitLabel;
    QTimer rest;
};
