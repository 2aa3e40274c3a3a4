#include "ui/windows/MainInputs.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <array>

#include "ui/windows/EntryField.h"
#include "ui/windows/FormParts.h"
#include "ui/windows/HeadedGroup.h"
#include "ui/windows/Identify.h"
#include "ui/windows/Labels.h"
#include "ui/windows/Pictures.h"

namespace Ledgrove {

namespace {

constexpr const char* baseHome = "Base Home";
constexpr const char* labelledHome = "GREENMARK Home";

QComboBox* MakePickList(const char* control, const QString& description) {
    auto* list = new QComboBox;
    IdentifyByDescription(*list, control, description);
    list->setFocusPolicy(Qt::StrongFocus);
    // The labelled home's items change with the base option; the list keeps the width of its longest item.
    list->setMinimumContentsLength(15);
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    return list;
}

struct HomeRow {
    const char* Caption;
    const char* Human;
    const char* Base;
    const char* Labelled;
};

constexpr std::array<HomeRow, 4> fieldRows{
    {{"&Sticker Price:", "Sticker Price", "ecStdHome", "ecGMHHome"},
     {"Annual &Utility Cost:", "Annual Utility Cost", "ecStdUtil", "ecGMHUtil"},
     {"Interest R&ate:", "Interest Rate", "ecStdRate", "ecGMHRate"},
     {"Mort&gage Stretch:", "Mortgage Stretch", "ecStdStr", "ecGMHStr"}}};

QString HumanName(const char* caption, const char* column) {
    return QString(caption) + ", " + column;
}

void AddHomeRow(QGridLayout& grid, const char* caption, QWidget* base, QWidget* labelled) {
    const int row = grid.rowCount();
    grid.addWidget(MakeCaption(caption, base), row, 0);
    grid.addWidget(base, row, 1);
    grid.addWidget(labelled, row, 2);
}

void AddDownPayment(QGridLayout& grid, QWidget* parent) {
    auto* options = new QButtonGroup(parent);
    options->setObjectName("optDownPayment");
    auto* percent = new QRadioButton("% &Down");
    Identify(*percent, "optDownPayment0", "% Down");
    auto* fixed = new QRadioButton("or Fi&xed $");
    Identify(*fixed, "optDownPayment1", "or Fixed $");
    options->addButton(percent, 0);
    options->addButton(fixed, 1);
    percent->setChecked(true);
    const int row = grid.rowCount();
    grid.addWidget(percent, row, 0);
    grid.addWidget(MakeField("ecPctDown", "% Down, Down Payment"), row, 1);
    grid.addWidget(fixed, row + 1, 0);
    grid.addWidget(MakeField("ecFixedDown", "or Fixed $, Down Payment"), row + 1, 1);
}

/// Adds the house scenario's button and name above the columns, and the column headings.
void AddHomeHeads(QGridLayout& grid) {
    QPushButton* houses = MakeButton("bHouses", "House Scenarios");
    houses->setIcon(HousePicture(16));
    // A house name may have any length.
    auto* name = new ElidedLabel;
    name->setObjectName("lblHomeName");
    name->setAccessibleDescription("House Scenarios");
    grid.addWidget(houses, 0, 0);
    grid.addWidget(name, 0, 1, 1, 2);
    grid.addWidget(MakeHead(baseHome), 1, 1);
    grid.addWidget(MakeHead(labelledHome), 1, 2);
}

} // namespace

MainInputs::MainInputs(QWidget* parent)
    : QWidget(parent) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    // On a wide screen, the fields stay close to their captions.
    const int letter = fontMetrics().averageCharWidth();
    QWidget* buyer = MakeBuyer();
    buyer->setMaximumWidth(letter * 60);
    QWidget* homes = MakeHomes();
    homes->setMaximumWidth(letter * 100);
    row->addWidget(buyer, 2);
    row->addWidget(homes, 3);
    row->addStretch();
    row->addWidget(MakeButtons());
}

QWidget* MainInputs::MakeBuyer() {
    auto* group = new HeadedGroup("Buyer");
    QGridLayout* grid = MakeGrid(group);
    EntryField* income = MakeField("ecIncome", "Annual Income");
    grid->addWidget(MakeCaption("Annual &Income", income), 0, 0);
    grid->addWidget(income, 0, 1);
    EntryField* debt = MakeField("ecMonthlyDebt", "Monthly Debt");
    grid->addWidget(MakeCaption("Monthly De&bt", debt), 1, 0);
    grid->addWidget(debt, 1, 1);
    AddDownPayment(*grid, group);
    auto* taxes = new QCheckBox("I&nclude Taxes in");
    Identify(*taxes, "chkDoTax0", "Include Taxes in");
    grid->addWidget(taxes, grid->rowCount(), 0, 1, 2, Qt::AlignLeft);
    grid->setRowStretch(grid->rowCount(), 1);
    grid->setColumnStretch(1, 1);
    return group;
}

QWidget* MainInputs::MakeHomes() {
    auto* group = new HeadedGroup("Homes");
    QGridLayout* grid = MakeGrid(group);
    AddHomeHeads(*grid);
    for (const HomeRow& row : fieldRows)
        AddHomeRow(*grid, row.Caption, MakeField(row.Base, HumanName(row.Human, baseHome)),
                   MakeField(row.Labelled, HumanName(row.Human, labelledHome)));
    AddHomeRow(*grid, "Te&rm:", MakePickList("cboMortTerm", HumanName("Term", baseHome)),
               MakeDisplay("ecGMHTerm", HumanName("Term", labelledHome)));
    AddHomeRow(*grid,
               "Mortgage &Option:", MakePickList("cboStdMortOption", HumanName("Mortgage Option", baseHome)),
               MakePickList("cboGMHMortOption", HumanName("Mortgage Option", labelledHome)));
    grid->setRowStretch(grid->rowCount(), 1);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    return group;
}

QWidget* MainInputs::MakeButtons() {
    auto* column = new QWidget;
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* financing = new DecorationLabel;
    financing->setObjectName("bFinancing");
    financing->setAlignment(Qt::AlignCenter);
    financing->setFixedHeight(EmblemHeight);
    layout->addWidget(financing);
    layout->addStretch();
    layout->addWidget(MakeButton("Command1", "Financial Assumptions"));
    layout->addWidget(MakeButton("bSysOpt", "Options"));
    layout->addWidget(MakeButton("bPrint", "&Print Reports"));
    layout->addWidget(MakeButton("bDisclaimer", "Disclaimer"));
    layout->addWidget(MakeButton("bHelp", "Help"));
    return column;
}

} // namespace Ledgrove
