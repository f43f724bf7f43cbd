#include "connectivity/KeyBorad.h"

#include "connectivity/CharacterButton.h"
#include "connectivity/KeyButton.h"
#include "connectivity/LineCaret.h"
#include "ui_KeyBorad.h"

#include <QDebug>
#include <QLineEdit>

namespace {
// By way of a picture, which Qt reads once and knows again: each icon made from a file would put
// pictures of its own into its cache.
QIcon keyIcon(const char *name)
{
    return QPixmap(
        QStringLiteral(":/resource/images/optionPage/keyboard/%1.png").arg(QLatin1String(name)));
}
} // namespace

KeyBorad::KeyBorad(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::KeyBorad>())
    , deleteIcon(keyIcon("deleteIconNormal"))
    , deleteIconPressed(keyIcon("deleteIconHover"))
{
    ui->setupUi(this);
    buildKeys();
    // The form leaves this to us: the slots bound by name need the keys built here.
    QMetaObject::connectSlotsByName(this);
    findLineEdit();
}

KeyBorad::~KeyBorad() = default;

void KeyBorad::buildKeys()
{
    for (const KeyPage face : {KeyPage::Lowercase, KeyPage::Uppercase, KeyPage::Symbol}) {
        QWidget *page = ui->stackedWidget->widget(int(face));
        for (const KeyPlace &place : keyPlaces(face)) {
            KeyButton *key = newKey(place.kind, page);
            key->setObjectName(place.objectName);
            if (!place.text.isEmpty())
                key->setText(tr(place.text.toUtf8().constData()));
            key->setGeometry(place.area);
        }
    }
}

KeyButton *KeyBorad::newKey(KeyKind kind, QWidget *page)
{
    if (kind == KeyKind::Character) {
        auto *key = new CharacterButton(page);
        connect(key, &CharacterButton::signal_value, this,
                qOverload<const QString &>(&KeyBorad::add_character));
        return key;
    }
    auto *key = new KeyButton(kind, page);
    if (kind == KeyKind::Shift)
        key->setIcon(keyIcon("shiftIconNormal"));
    else if (kind == KeyKind::ShiftOn)
        key->setIcon(keyIcon("shiftIconHover"));
    else if (kind == KeyKind::Blank)
        connect(key, &QPushButton::clicked, this, qOverload<>(&KeyBorad::add_character));
    else if (kind == KeyKind::Enter)
        connect(key, &QPushButton::clicked, this, &KeyBorad::complete_input);
    else if (kind == KeyKind::Delete) {
        key->setIcon(deleteIcon);
        deleteKeys.append(key);
        connect(key, &QPushButton::clicked, this, &KeyBorad::delete_character);
        connect(key, &QPushButton::pressed, this, &KeyBorad::change_pressedIcon);
        connect(key, &QPushButton::released, this, &KeyBorad::change_releasedIcon);
    }
    return key;
}

void KeyBorad::findLineEdit()
{
    const QWidget *container = parentWidget();
    const QWidget *host = container ? container->parentWidget() : nullptr;
    if (host) {
        for (auto *beside : host->findChildren<QLineEdit *>(Qt::FindDirectChildrenOnly)) {
            if (qstrcmp(beside->metaObject()->className(), "QLineEdit") == 0)
                edit = beside;
        }
    }
    if (edit)
        new LineCaret(edit);
    else
        qDebug() << "keyboard without a line edit: typing is ignored";
}

void KeyBorad::add_character(const QString &strValue)
{
    if (edit)
        edit->setText(edit->text() + strValue);
}

void KeyBorad::add_character()
{
    add_character(QStringLiteral(" "));
}

void KeyBorad::delete_character()
{
    if (edit && !edit->text().isEmpty())
        edit->setText(edit->text().chopped(1));
}

void KeyBorad::complete_input()
{
    const QString text = edit ? edit->text() : QString();
    qDebug() << text;
    emit signal_commit(text);
}

void KeyBorad::on_button_shiftNormal_pressed()
{
    ui->stackedWidget->setCurrentWidget(ui->page_uppercase);
}

void KeyBorad::on_button_shiftChecked_pressed()
{
    ui->stackedWidget->setCurrentWidget(ui->page_lowercase);
}

void KeyBorad::on_button_symbol_clicked()
{
    letterPage = ui->stackedWidget->currentIndex();
    ui->stackedWidget->setCurrentWidget(ui->page_symbol);
}

void KeyBorad::on_button_symbol_2_clicked()
{
    on_button_symbol_clicked();
}

void KeyBorad::on_button_character_clicked()
{
    ui->stackedWidget->setCurrentIndex(letterPage);
}

void KeyBorad::change_pressedIcon()
{
    setDeleteIcon(deleteIconPressed);
}

void KeyBorad::change_releasedIcon()
{
    setDeleteIcon(deleteIcon);
}

void KeyBorad::setDeleteIcon(const QIcon &icon)
{
    for (KeyButton *key : std::as_const(deleteKeys))
        key->setIcon(icon);
}
