#pragma once

#include <QQuickWidget>

class QQuickItem;

/// The host of one QML spinner inside a page.
///
/// All hosts share one QML engine. The host is transparent, follows the size of its form and holds
/// the picture of the spinner only while it is on the screen. GUI thread.
class QmlApplicationViewer : public QQuickWidget
{
    Q_OBJECT

public:
    enum class ScreenOrientation { LockPortrait, LockLandscape, Automatic };

    explicit QmlApplicationViewer(QWidget *parent = nullptr);
    /// Shares the engine of @p view; the common engine where it is null.
    QmlApplicationViewer(QQuickWidget *view, QWidget *parent);

    /// Loads @p file afresh: a "qrc:" address, an absolute path or a path relative to the folder
    /// above the program's. The spinner starts with row @p row in its middle. A file that is
    /// missing or broken leaves the host empty; the log says why.
    void setMainQmlFile(const QString &file, int row = 0);
    /// Adds a folder, written like the path of a main file, to where QML modules are looked for.
    void addImportPath(const QString &path);
    /// Does nothing: the screen of the device never turns.
    void setOrientation(ScreenOrientation /*wished*/) {}
    /// Shows the host in the place its page gives it.
    void showExpanded() { show(); }

    /// Tells the row in the middle of the spinner, counted from 0; -1 while there is none.
    int currentIndex() const;

signals:
    /// Never emitted; for the page that will take what a wheel was turned to.
    void hour(int value);

protected:
    void hideEvent(QHideEvent *event) override;

private:
    static QString adjustPath(const QString &path);
    QQuickItem *wheel() const;
};
