#include "connectivity/CharacterButton.h"

#include <QLabel>

namespace {
constexpr QSize enlargedSize(88, 88);
constexpr int enlargedLeft = -44;
constexpr int enlargedTop = -98;
// The balloon's tail below the plate that carries the label.
constexpr int enlargedTail = 16;

QLabel *sharedLabel(QWidget *parent)
{
    if (!parent)
        return nullptr;
    const QString name = QStringLiteral("label_enlarge");
    if (auto *label = parent->findChild<QLabel *>(name, Qt::FindDirectChildrenOnly))
        return label;
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setStyleSheet(
        QStringLiteral("font:60px \"Helvetica\";"
                       "image: url(\":/resource/images/optionPage/keyboard/keyboard Enlarge.png\");"
                       "color: rgb(33, 33, 33);"));
    label->setContentsMargins(0, 0, 0, enlargedTail);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    label->hide();
    return label;
}
} // namespace

CharacterButton::CharacterButton(QWidget *parent)
    : KeyButton(KeyKind::Character, parent)
    , label(sharedLabel(parent))
{
    setFixedSize(characterKeySize);
    connect(this, &QPushButton::pressed, this, &CharacterButton::show_label);
    connect(this, &QPushButton::released, this, &CharacterButton::hide_label);
    connect(this, &QPushButton::clicked, this, &CharacterButton::send_value);
}

void CharacterButton::show_label()
{
    if (!label)
        return;
    const QPoint topLeft(x() + width() / 2 + enlargedLeft, y() + enlargedTop);
    label->setGeometry({topLeft, enlargedSize});
    label->setText(text());
    label->raise();
    label->show();
}

void CharacterButton::hide_label()
{
    if (label)
        label->hide();
}

void CharacterButton::send_value()
{
    emit signal_value(text());
}
