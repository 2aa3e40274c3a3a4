#include "ui/windows/AssumptionGroups.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>
#include <array>
#include <utility>

#include "ui/windows/EntryField.h"
#include "ui/windows/FormParts.h"
#include "ui/windows/HeadedGroup.h"
#include "ui/windows/Identify.h"
#include "ui/windows/Labels.h"

namespace Ledgrove {

namespace {

/// A column heading whose mnemonic moves to the first field of the column.
QLabel* MakeColumnHead(const QString& text, QWidget* firstField) {
    QLabel* head = MakeHead(text);
    head->setBuddy(firstField);
    return head;
}

QString HumanName(QString caption) {
    return caption.remove('&').remove(':');
}

/// Adds a caption, its field and the unit after it.
void AddRow(QGridLayout& grid, const QString& caption, QWidget* field, const QString& unit = {}) {
    const int row = grid.rowCount();
    grid.addWidget(MakeCaption(caption, field), row, 0);
    grid.addWidget(field, row, 1);
    if (!unit.isEmpty())
        grid.addWidget(TextLabel(unit), row, 2);
}

void AddFieldRow(QGridLayout& grid, const QString& caption, const char* control, const QString& unit = {}) {
    AddRow(grid, caption, MakeField(control, HumanName(caption)), unit);
}

void AddOptions(QGridLayout& grid, QGroupBox* parent) {
    auto* options = new QButtonGroup(parent);
    options->setObjectName("optUsePVVars");
    for (const char* caption : {"&Mortgage rate and term", "These &variables"}) {
        const int id = static_cast<int>(options->buttons().size());
        auto* option = new QRadioButton(caption);
        Identify(*option, QString("optUsePVVars%1").arg(id), HumanName(caption));
        options->addButton(option, id);
        grid.addWidget(option, grid.rowCount(), 0, 1, 3);
    }
}

/// Adds a note over the whole width, with word wrap.
void AddNote(QGridLayout& grid, const QString& text) {
    QLabel* note = TextLabel(text);
    note->setWordWrap(true);
    grid.addWidget(note, grid.rowCount(), 0, 1, grid.columnCount());
}

/// The last bracket has no upper limit: the record holds its high end, but the screen shows words instead.
void HideBehindWords(QGridLayout& grid, QWidget* field, int row, int column) {
    field->hide();
    QLabel* words = TextLabel("or greater");
    words->setAlignment(Qt::AlignCenter);
    grid.addWidget(words, row, column);
}

} // namespace

QString RowControl(const char* control, std::size_t row) {
    return control + QString::number(row + 1);
}

QGroupBox* MakePMIMultipliers() {
    auto* group = new HeadedGroup("PMI Multipliers");
    QGridLayout* grid = MakeGrid(group);
    grid->addWidget(MakeHead("Percent Down (less than)"), 0, 0);
    for (std::size_t i = 0; i < PMIRowCount; ++i) {
        const int row = static_cast<int>(i) + 1;
        auto* field =
            MakeField(RowControl("PMI_Multiplier", i), QString("PMI Multiplier, ") + PctDown_LessThan[i]);
        if (i == 0)
            grid->addWidget(MakeColumnHead("&PMI Multiplier", field), 0, 1);
        QLabel* percent = TextLabel(PctDown_LessThan[i]);
        percent->setObjectName(RowControl("PctDown_LessThan", i));
        percent->setAlignment(Qt::AlignCenter);
        grid->addWidget(percent, row, 0);
        grid->addWidget(field, row, 1);
    }
    return group;
}

QGroupBox* MakePresentValue() {
    auto* group = new HeadedGroup("Present Value of Energy Savings");
    QGridLayout* grid = MakeGrid(group);
    grid->addWidget(TextLabel("To calculate PV of energy savings use:"), 0, 0, 1, 3);
    AddOptions(*grid, group);
    AddFieldRow(*grid, "&Rate:", "ecPV_Rate");
    AddFieldRow(*grid, "&Term:", "ecPV_Term", "years");
    AddNote(*grid, "Variables used to calculate the PV of the energy savings.");
    AddNote(*grid, "(Fannie Mae refers to this as the Energy Savings Value)");
    grid->setColumnStretch(2, 1);
    return group;
}

QGroupBox* MakeQualifierRatios(const AssumptionsScreen& record) {
    auto* group = new HeadedGroup("Mortgage Qualifier Ratios");
    QGridLayout* grid = MakeGrid(group);
    for (std::size_t i = 0; i < RatioRowCount; ++i) {
        const QString name = QString::fromStdString(record.lblLoanType[i]);
        auto* front = MakeField(RowControl("FER", i), "Front End Ratio, " + name);
        auto* back = MakeField(RowControl("BER", i), "Back End Ratio, " + name);
        if (i == 0) {
            grid->addWidget(MakeColumnHead("&Front End Ratio", front), 0, 1);
            grid->addWidget(MakeColumnHead("&Back End Ratio", back), 0, 2);
        }
        auto* loanType = new ElidedLabel;
        loanType->setText(name);
        loanType->setMaximumWidth(loanType->fontMetrics().averageCharWidth() * 32);
        loanType->setObjectName(RowControl("lblLoanType", i));
        const int row = static_cast<int>(i) + 1;
        grid->addWidget(loanType, row, 0);
        grid->addWidget(front, row, 1);
        grid->addWidget(back, row, 2);
        for (QWidget* part :
             {static_cast<QWidget*>(loanType), static_cast<QWidget*>(front), static_cast<QWidget*>(back)})
            part->setEnabled(i < record.RatioRows);
    }
    const int last = grid->rowCount();
    grid->addWidget(TextLabel("Note:"), last, 0, Qt::AlignTop | Qt::AlignRight);
    QLabel* note = TextLabel("Mortgage qualifier ratios can vary. Defaults are set to a single value for "
                             "simplification. Check with your local lender for current values.");
    note->setWordWrap(true);
    grid->addWidget(note, last, 1, 1, 2);
    return group;
}

QGroupBox* MakeTaxesAndInsurance() {
    auto* group = new HeadedGroup("Taxes and Insurance");
    QGridLayout* grid = MakeGrid(group);
    AddFieldRow(*grid, "Real &Estate Taxes:", "ecRealEstateTaxPct", "of House Value");
    AddFieldRow(*grid, "Home Owner's &Insurance:", "ecInsurancePct", "of House Value");
    return group;
}

QGroupBox* MakeTaxSchedule(const AssumptionsScreen& record) {
    auto* group = new HeadedGroup("Income Tax Rate Schedule");
    QGridLayout* grid = MakeGrid(group);
    const std::array<std::pair<const char*, const char*>, 3> columns{
        {{"ecLowEnd", "&Low End"}, {"ecHighEnd", "Hi&gh End"}, {"ecRate", "R&ate"}}};
    for (std::size_t i = 0; i < TaxRowCount; ++i) {
        const int row = static_cast<int>(i) + 1;
        for (int column = 0; column < 3; ++column) {
            const auto& [control, head] = columns[static_cast<std::size_t>(column)];
            auto* field = MakeField(RowControl(control, i), HumanName(head) + QString(", Row %1").arg(row));
            if (i == 0)
                grid->addWidget(MakeColumnHead(head, field), 0, column);
            grid->addWidget(field, row, column);
        }
    }
    const std::string further = Module1::FurtherBrackets(record);
    if (further.empty()) {
        const int last = static_cast<int>(record.OpenTaxRow) + 1;
        HideBehindWords(*grid, grid->itemAtPosition(last, 1)->widget(), last, 1);
        return group;
    }
    QLabel* line = TextLabel(QString::fromStdString(further));
    line->setObjectName("lblFurtherBrackets");
    grid->addWidget(line, grid->rowCount(), 0, 1, 3);
    return group;
}

QGroupBox* MakeOtherVariables() {
    auto* group = new HeadedGroup("Other Financial Variables");
    QGridLayout* grid = MakeGrid(group);
    AddFieldRow(*grid, "Anticipated &Years in Home:", "ecYrsInHome");
    const QString upgrade = "Calculated Value of Upgrade:";
    QLineEdit* value = MakeDisplay("ecExpUpgrValue", HumanName(upgrade));
    value->setAlignment(Qt::AlignRight);
    AddRow(*grid, upgrade, value);
    return group;
}

} // namespace Ledgrove
