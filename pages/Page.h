#pragma once

#include <QWidget>
#include <chrono>

/// Serves as a page of the settings area: built afresh for every visit, opened by a PageHolder and
/// left by signal_backDefaultPage(), on the opaque ground of all pages.
///
/// Its life: whole from its construction until its holder opens the next page, thus also after it
/// has been left; emptied from then on. An emptied page stays as a bare frame of some 4 KB until
/// the holder goes. Its slots do nothing any more. What must go on is done by objects that know
/// nothing of the form. GUI thread.
class Page : public QWidget
{
    Q_OBJECT

public:
    /// When an opened page has its picture, counted from the tap, and nobody has found yet what to
    /// tap on it: time for what no picture waits for.
    static constexpr std::chrono::milliseconds pictureTime{100};

    explicit Page(QWidget *parent = nullptr);

    bool isEmptied() const { return emptied; }

    /// Deletes the widgets of the form, once the page that is opened now has its picture or is
    /// left. The pages behind this one are kept and emptied with it, but for those that exist once.
    /// May be called again.
    void empty();

    /// Tells whether there is one such page in the program, which moves from holder to holder.
    virtual bool existsOnce() const { return false; }

signals:
    /// Tells that the user is done with the page.
    void signal_backDefaultPage();

public slots:
    /// Leaves the page: its arrow was tapped.
    virtual void on_button_back_clicked() { leave(); }
    /// Shows the page itself again, once a page behind it has been left.
    void back_default_page();

protected:
    void hideEvent(QHideEvent *event) override;

    /// Tells the opener that the user is done with the page. Nothing on an emptied one.
    void leave();

    /// Ends or hands over what needs the form, which is about to go.
    virtual void beforeEmptying() {}

private:
    /// Gives up the form, whose widgets go.
    virtual void dropForm() = 0;
    void deleteWidgets();
    QList<QWidget *> formWidgets() const;

    bool emptied = false;
};
