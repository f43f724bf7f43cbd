#pragma once

#include "connectivity/KeyButton.h"

class QLabel;

/// A key of the on-screen keyboard: while pressed it shows its label enlarged above the finger, and
/// when clicked it sends its label as text.
///
/// The keys of one parent share one enlarged label, as only one finger types; it belongs to the
/// parent. A key without a parent shows none. GUI thread.
class CharacterButton : public KeyButton
{
    Q_OBJECT

public:
    explicit CharacterButton(QWidget *parent);

signals:
    /// The label as it was set: "&&" for the ampersand key.
    void signal_value(const QString &strValue);

public slots:
    /// Shows the enlarged label, 88 x 88 px, centred above the key.
    void show_label();
    void hide_label();
    void send_value();

private:
    QLabel *label;
};
