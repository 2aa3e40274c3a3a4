#include "ui/windows/frmHomeSelection.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QVBoxLayout>
#include <array>

#include "ui/windows/FormParts.h"
#include "ui/windows/HouseListModel.h"
#include "ui/windows/Identify.h"
#include "ui/windows/Labels.h"

namespace Ledgrove {

namespace {

constexpr const char* houseScenarios = "House Scenarios";
// The controls that one mode enables and the other disables; the first one gets the focus.
constexpr std::array fieldNames{"ecStdCost", "ecGMHCost", "ecStdUtil", "ecGMHUtil"};
constexpr std::array viewNames{"lbHomes", "bAdd", "bOK", "bCancel", "bHelp"};

/// A disabled field, as in view mode, whose amount is as readable as in edit mode.
EntryField* MakeAmount(const char* control, const QString& humanName) {
    EntryField* field = MakeField(control, humanName);
    QPalette palette;
    palette.setColor(QPalette::Disabled, QPalette::Text,
                     palette.color(QPalette::Active, QPalette::WindowText));
    field->setPalette(palette);
    field->setEnabled(false);
    return field;
}

void AddRow(QGridLayout& grid, const QString& caption, const char* base, const char* labelled) {
    const QString human = QString(caption).remove('&').remove(':');
    EntryField* baseField = MakeAmount(base, human + ", Base Home");
    const int row = grid.rowCount();
    grid.addWidget(MakeCaption(caption, baseField), row, 0);
    grid.addWidget(baseField, row, 1);
    grid.addWidget(MakeAmount(labelled, human + ", GREENMARK Home"), row, 2);
}

} // namespace

frmHomeSelection::frmHomeSelection(HouseScenarios& record, Session& session, Host& outside, QWidget* parent)
    : EntryDialog({"frmHomeSelection", houseScenarios, "ctxHouses"}, session, outside, parent)
    , m_record(record)
    , m_houses(new HouseListModel(record.Houses, this)) {
    BuildControls();
    ConnectList();
    BindFields();
    Present();
}

void frmHomeSelection::Refresh() {
    EntryDialog::Refresh();
    m_houses->Refresh();
    ShowSelection();
    ShowMode();
}

void frmHomeSelection::accept() {
    Module1::CloseHouseScenarios(m_record, State(), Outside());
    Module1::ChooseHouse(m_record, State());
    EntryDialog::accept();
}

void frmHomeSelection::reject() {
    if (m_record.Editing)
        return CancelEdit();
    Module1::CloseHouseScenarios(m_record, State(), Outside());
    EntryDialog::reject();
}

void frmHomeSelection::closeEvent(QCloseEvent* event) {
    // Unlike Escape, the close button closes the whole dialog.
    if (m_record.Editing)
        CancelEdit();
    reject();
    event->accept();
}

void frmHomeSelection::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && m_list->hasFocus() && m_record.HasSelection())
        return accept();
    EntryDialog::keyPressEvent(event);
}

void frmHomeSelection::BuildControls() {
    auto* columns = new QHBoxLayout;
    columns->setSpacing(18);
    columns->addLayout(MakeHouses(), 1);
    columns->addLayout(MakeAmounts());
    LayOut(columns, MakeButtonRow());
}

QLayout* frmHomeSelection::MakeHouses() {
    m_list = new QListView;
    Identify(*m_list, "lbHomes", houseScenarios);
    m_list->setModel(m_houses);
    m_list->setUniformItemSizes(true);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setMinimumWidth(m_list->fontMetrics().averageCharWidth() * 40);
    auto* layout = new QVBoxLayout;
    layout->setSpacing(6);
    layout->addWidget(MakeCaption("House Scena&rios", m_list));
    layout->addWidget(m_list, 1);
    auto* row = new QHBoxLayout;
    row->addWidget(MakeAction("bAdd", "&Add", &frmHomeSelection::Add));
    row->addWidget(MakeAction("bEdit", "&Edit", &frmHomeSelection::Edit));
    row->addWidget(MakeAction("bDelete", "&Delete", &frmHomeSelection::Delete));
    layout->addLayout(row);
    return layout;
}

QLayout* frmHomeSelection::MakeAmounts() {
    auto* layout = new QVBoxLayout;
    layout->setSpacing(12);
    QGridLayout* grid = MakeGrid(nullptr);
    layout->addLayout(grid);
    grid->addWidget(MakeHead("Base Home"), 0, 1);
    grid->addWidget(MakeHead("GREENMARK Home"), 0, 2);
    AddRow(*grid, "&Sticker Price:", "ecStdCost", "ecGMHCost");
    AddRow(*grid, "Annual &Utility Cost:", "ecStdUtil", "ecGMHUtil");
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    row->addStretch();
    row->addWidget(MakeAction("bDoneEdit", "Do&ne", &frmHomeSelection::DoneEdit));
    row->addWidget(MakeAction("bCancelEdit", "Cancel Ed&it", &frmHomeSelection::CancelEdit));
    layout->addLayout(row);
    layout->addStretch();
    return layout;
}

QPushButton* frmHomeSelection::MakeAction(const char* control, const QString& caption, Action action) {
    QPushButton* button = MakeButton(control, caption);
    KeepPlaceWhileHidden(*button);
    OnClick(*button, [this, action] {
        (this->*action)();
        Refresh();
    });
    return button;
}

void frmHomeSelection::ConnectList() {
    const QItemSelectionModel* selection = m_list->selectionModel();
    connect(selection, &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& current) {
        if (!current.isValid() || current.row() == m_record.Selected)
            return;
        Module1::SelectHouse(m_record, current.row());
        Refresh();
    });
    connect(m_list, &QListView::doubleClicked, this, [this] { accept(); });
    // Ctrl with a click would leave the list without a selected house.
    connect(selection, &QItemSelectionModel::selectionChanged, this, [this, selection] {
        if (!selection->hasSelection())
            ShowSelection();
    });
}

void frmHomeSelection::BindFields() {
    for (const HouseAmount& amount : HouseAmounts()) {
        const QString control = "ec" + QString::fromUtf8(amount.Key.data(), qsizetype(amount.Key.size()));
        BindField(control, m_record.*amount.Shown,
                  {FieldFormat::Dollar, FieldFormat::Dollar, Module1::AfterEdit::Nothing});
    }
}

void frmHomeSelection::Add() {
    const QString name = QInputDialog::getText(this, houseScenarios, "Enter The Name Of The New Home:");
    Module1::AddHouse(m_record, State(), Outside(), name.toStdString());
}

void frmHomeSelection::Edit() {
    Module1::BeginHouseEdit(m_record);
}

void frmHomeSelection::DoneEdit() {
    Module1::FinishHouseEdit(m_record, Outside());
}

void frmHomeSelection::CancelEdit() {
    Module1::CancelHouseEdit(m_record);
    Refresh();
}

void frmHomeSelection::Delete() {
    Module1::DeleteHouse(m_record, Outside());
}

void frmHomeSelection::ShowSelection() {
    const QModelIndex selected = m_houses->index(m_record.Selected);
    if (selected.isValid() && !m_list->selectionModel()->isSelected(selected))
        m_list->setCurrentIndex(selected);
}

void frmHomeSelection::ShowMode() {
    const bool editing = m_record.Editing;
    if (m_list->isEnabled() == editing)
        editing ? SwitchMode(fieldNames, viewNames) : SwitchMode(viewNames, fieldNames);
    for (const char* name : {"bDoneEdit", "bCancelEdit"})
        findChild<QWidget*>(name)->setVisible(editing);
    for (const char* name : {"bEdit", "bDelete"})
        findChild<QWidget*>(name)->setEnabled(!editing && m_record.HasSelection());
}

void frmHomeSelection::SwitchMode(ControlNames opening, ControlNames closing) {
    for (const char* name : opening)
        findChild<QWidget*>(name)->setEnabled(true);
    // Sets the focus before the old control is disabled; otherwise Qt would choose another control.
    findChild<QWidget*>(opening.front())->setFocus(Qt::OtherFocusReason);
    for (const char* name : closing)
        findChild<QWidget*>(name)->setEnabled(false);
}

} // namespace Ledgrove
