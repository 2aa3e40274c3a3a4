#include "ui/windows/insight/ChangesSides.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "ui/windows/Identify.h"

namespace Ledgrove {

namespace {

constexpr int fromRow = 0;
constexpr int toRow = 1;
constexpr int captionColumn = 0;
constexpr int listColumn = 1;
constexpr int fileColumn = 2;
constexpr int swapColumn = 3;

QString IdOf(const QComboBox& list) {
    return list.currentData().toString();
}

void ChooseId(QComboBox& list, const QString& id, const QString& otherwise) {
    const int row = list.findData(id);
    list.setCurrentIndex(row >= 0 ? row : list.findData(otherwise));
    list.setToolTip(list.currentData(Qt::ToolTipRole).toString());
}

void Fill(QComboBox& list, const ChangesChoices& choices, const QString& otherwise) {
    const QString id = IdOf(list);
    list.clear();
    for (const ChangesChoice& choice : choices.All) {
        list.addItem(QString::fromStdString(choice.Text), QString::fromStdString(choice.Id));
        list.setItemData(list.count() - 1, QString::fromStdString(choice.Tip), Qt::ToolTipRole);
    }
    ChooseId(list, id, otherwise);
}

} // namespace

ChangesSides::ChangesSides(QWidget* parent)
    : QWidget(parent) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(listColumn, 1);
    m_from = AddSide(*grid, fromRow, "&From:", "From");
    AddButton(*grid, fromRow, "&Other File…", &ChangesSides::FromFileAsked);
    m_to = AddSide(*grid, toRow, "&To:", "To");
    AddButton(*grid, toRow, "Othe&r File…", &ChangesSides::ToFileAsked);
    auto* swap = new QPushButton("S&wap");
    swap->setAutoDefault(true);
    Identify(*swap, "bSwap", "Swap From and To");
    connect(swap, &QPushButton::clicked, this, &ChangesSides::Swap);
    grid->addWidget(swap, fromRow, swapColumn, 2, 1);
}

QComboBox* ChangesSides::AddSide(QGridLayout& grid, int row, const QString& caption, const QString& spoken) {
    auto* list = new QComboBox;
    IdentifyByDescription(*list, "cbo" + spoken, spoken + ", a comparison");
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setMinimumContentsLength(14);
    auto* label = new QLabel(caption);
    label->setBuddy(list);
    grid.addWidget(label, row, captionColumn);
    grid.addWidget(list, row, listColumn);
    connect(list, &QComboBox::activated, this, [this, list] {
        ChooseId(*list, IdOf(*list), {});
        emit Chosen();
    });
    return list;
}

void ChangesSides::AddButton(QGridLayout& grid, int row, const QString& caption,
                             void (ChangesSides::*asked)()) {
    auto* button = new QPushButton(caption);
    button->setAutoDefault(true);
    Identify(*button, row == fromRow ? "bFromFile" : "bToFile",
             row == fromRow ? "Other file for From" : "Other file for To");
    connect(button, &QPushButton::clicked, this, asked);
    grid.addWidget(button, row, fileColumn);
}

void ChangesSides::Show(const ChangesChoices& choices) {
    Fill(*m_from, choices, QString::fromStdString(choices.Usual));
    Fill(*m_to, choices, QString::fromStdString(choices.All.front().Id));
}

void ChangesSides::Choose(const std::string& from, const std::string& to) {
    ChooseId(*m_from, QString::fromStdString(from), IdOf(*m_from));
    ChooseId(*m_to, QString::fromStdString(to), IdOf(*m_to));
}

std::string ChangesSides::From() const {
    return IdOf(*m_from).toStdString();
}

std::string ChangesSides::To() const {
    return IdOf(*m_to).toStdString();
}

void ChangesSides::Swap() {
    Choose(To(), From());
    emit Chosen();
}

} // namespace Ledgrove
