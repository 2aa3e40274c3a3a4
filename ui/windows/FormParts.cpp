#include "ui/windows/FormParts.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "ui/windows/EntryField.h"
#include "ui/windows/Identify.h"
#include "ui/windows/Labels.h"

namespace Ledgrove {

EntryField* MakeField(const QString& control, const QString& humanName) {
    auto* field = new EntryField;
    Identify(*field, control, humanName);
    field->setAlignment(Qt::AlignRight);
    field->setMinimumWidth(field->fontMetrics().horizontalAdvance("$888,888,888") + 20);
    return field;
}

QLineEdit* MakeDisplay(const QString& control, const QString& humanName) {
    auto* display = new QLineEdit;
    Identify(*display, control, humanName);
    display->setReadOnly(true);
    display->setFocusPolicy(Qt::NoFocus);
    display->setFrame(false);
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::transparent);
    display->setPalette(palette);
    return display;
}

QLabel* MakeCaption(const QString& text, QWidget* field) {
    QLabel* caption = TextLabel(text);
    caption->setBuddy(field);
    return caption;
}

QLabel* MakeHead(const QString& text) {
    QLabel* head = TextLabel(text);
    head->setAlignment(Qt::AlignCenter);
    MakeBold(*head);
    return head;
}

QPushButton* MakeButton(const char* control, const QString& caption) {
    auto* button = new QPushButton(caption);
    Identify(*button, control, QString(caption).remove('&'));
    button->setAutoDefault(false);
    return button;
}

QGridLayout* MakeGrid(QWidget* parent) {
    auto* grid = new QGridLayout(parent);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(6);
    return grid;
}

} // namespace Ledgrove
