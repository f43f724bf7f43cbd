#pragma once

#include "connectivity/KeyLayout.h"

#include <QIcon>
#include <QPointer>
#include <QWidget>
#include <memory>

class QLineEdit;
class KeyButton;

namespace Ui {
class KeyBorad;
}

/// The on-screen keyboard: a page of small letters, one of capitals and one of symbols.
///
/// It types into the last QLineEdit found beside its parent, always at the end of the text; without
/// one it ignores typing. The host places its line edit beside the container it hands over as
/// @p parent, and the container below everything that must stay in reach: the keyboard covers the
/// whole screen, as the enlarged keys rise above the top row. GUI thread.
class KeyBorad : public QWidget
{
    Q_OBJECT

public:
    explicit KeyBorad(QWidget *parent);
    ~KeyBorad() override;

signals:
    /// Never emitted; kept for hosts that want every character.
    void signal_character(const QString &strValue);
    /// The whole text, when the user is done; empty without a line edit.
    void signal_commit(const QString &strValue);

public slots:
    /// Appends @p strValue.
    void add_character(const QString &strValue);
    /// Appends a blank.
    void add_character();
    /// Takes the last character away.
    void delete_character();
    void complete_input();
    void on_button_shiftNormal_pressed();
    void on_button_shiftChecked_pressed();
    void on_button_symbol_clicked();
    void on_button_symbol_2_clicked();
    void on_button_character_clicked();
    void change_pressedIcon();
    void change_releasedIcon();

private:
    void buildKeys();
    KeyButton *newKey(KeyKind kind, QWidget *page);
    void findLineEdit();
    void setDeleteIcon(const QIcon &icon);

    std::unique_ptr<Ui::KeyBorad> ui;
    QList<KeyButton *> deleteKeys;
    QIcon deleteIcon;
    QIcon deleteIconPressed;
    int letterPage = 0;
    QPointer<QLineEdit> edit;
};
