#include "settings/QmlApplicationViewer.h"

#include <QCoreApplication>
#include <QDir>
#include <QHideEvent>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>
#include <QResizeEvent>

namespace {
// One engine for all spinners: each would otherwise load QtQuick and compile its files again.
QQmlEngine *sharedEngine()
{
    static QPointer<QQmlEngine> engine;
    if (engine.isNull())
        engine = new QQmlEngine(qApp);
    return engine;
}
} // namespace

QmlApplicationViewer::QmlApplicationViewer(QWidget *parent)
    : QmlApplicationViewer(nullptr, parent)
{
}

QmlApplicationViewer::QmlApplicationViewer(QQuickWidget *view, QWidget *parent)
    : QQuickWidget(view ? view->engine() : sharedEngine(), parent)
{
    setResizeMode(QQuickWidget::SizeRootObjectToView);
    setClearColor(Qt::transparent);
}

void QmlApplicationViewer::setMainQmlFile(const QString &file, int row)
{
    setSource(file.startsWith(QLatin1String("qrc:")) ? QUrl(file)
                                                     : QUrl::fromLocalFile(adjustPath(file)));
    if (QQuickItem *spinner = wheel())
        QMetaObject::invokeMethod(spinner, "startAt", Q_ARG(int, row));
}

void QmlApplicationViewer::addImportPath(const QString &path)
{
    engine()->addImportPath(adjustPath(path));
}

QString QmlApplicationViewer::adjustPath(const QString &path)
{
    if (QDir::isAbsolutePath(path))
        return path;
    return QStringLiteral("%1/../%2").arg(QCoreApplication::applicationDirPath(), path);
}

int QmlApplicationViewer::currentIndex() const
{
    const QQuickItem *spinner = wheel();
    return spinner ? spinner->property("currentIndex").toInt() : -1;
}

QQuickItem *QmlApplicationViewer::wheel() const
{
    return rootObject() ? rootObject()->findChild<QQuickItem *>(QStringLiteral("wheel")) : nullptr;
}

void QmlApplicationViewer::hideEvent(QHideEvent *event)
{
    QQuickWidget::hideEvent(event);
    if (event->spontaneous())
        return;
    // The base class keeps its picture of the last frame until it is given another size. A hidden
    // widget learns of a size only when it is shown, so it is told of the smallest one here; the
    // size of the form waits for the next showing and brings a full picture back.
    const QSize full = size();
    resize(1, 1);
    QResizeEvent smallest(size(), full);
    QQuickWidget::resizeEvent(&smallest);
    resize(full);
}
