#include "shell/ScreenOff.h"

#include "device/Backlight.h"

#include <QApplication>
#include <QPainter>

ScreenOff::ScreenOff(QWidget *window)
    : QWidget(window)
{
    hide();
    awake.setSingleShot(true);
    connect(&awake, &QTimer::timeout, this, &QWidget::hide);
}

ScreenOff::~ScreenOff()
{
    if (isDark)
        Backlight::ofDevice().setDark(false);
}

void ScreenOff::darken()
{
    resize(parentWidget()->size());
    show();
    raise();
    setDark(true);
}

// Once awake it stays for a moment without a picture, and takes what must not tap anything.
void ScreenOff::setDark(bool dark)
{
    isDark = dark;
    setAttribute(Qt::WA_OpaquePaintEvent, dark);
    // Before the command, which may hold the screen up.
    repaint();
    Backlight::ofDevice().setDark(dark);
}

void ScreenOff::paintEvent(QPaintEvent *)
{
    if (isDark)
        QPainter(this).fillRect(rect(), Qt::black);
}

void ScreenOff::mousePressEvent(QMouseEvent *)
{
    const bool isFirst = isDark;
    awake.stop();
    awake.setInterval(isFirst ? QApplication::doubleClickInterval() : 0);
    if (isFirst)
        setDark(false);
}

// Does not wake: who taps the button twice in his haste would see no darkness at all.
void ScreenOff::mouseDoubleClickEvent(QMouseEvent *)
{
    awake.stop();
    awake.setInterval(0);
}

void ScreenOff::mouseReleaseEvent(QMouseEvent *)
{
    if (!isDark)
        awake.start();
}
