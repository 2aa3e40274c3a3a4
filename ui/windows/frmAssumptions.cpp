#include "ui/windows/frmAssumptions.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/windows/AssumptionGroups.h"

namespace Ledgrove {

namespace {

constexpr Module1::AfterEdit nothing = Module1::AfterEdit::Nothing;
constexpr EntryTypes wholePercent{FieldFormat::WholePercent, FieldFormat::WholePercent, nothing};
constexpr EntryTypes whole{FieldFormat::Whole, FieldFormat::Whole, nothing};

} // namespace

frmAssumptions::frmAssumptions(AssumptionsScreen& record, Session& session, Host& outside, QWidget* parent)
    : EntryDialog({"frmAssumptions", "Financial Assumptions", "ctxAssumptions"}, session, outside, parent)
    , m_record(record) {
    BuildControls();
    BindTaxRows();
    BindRates();
    BindRows();
    ConnectOptions();
    Present();
}

void frmAssumptions::Refresh() {
    EntryDialog::Refresh();
    ShowText(*findChild<QLineEdit*>("ecExpUpgrValue"), m_record.ecExpUpgrValue.Text);
    findChild<QButtonGroup*>("optUsePVVars")->button(m_record.optUsePVVars ? 1 : 0)->setChecked(true);
}

void frmAssumptions::accept() {
    if (!Module1::MayConfirmAssumptions(Context(), m_record))
        return;
    if (Succeeded(Module1::ConfirmAssumptions(m_record, State(), Outside())))
        EntryDialog::accept();
}

void frmAssumptions::reject() {
    EntryDialog::reject();
    Outside().RunPendingEvents();
}

bool frmAssumptions::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) {
        Module1::CalcExpUpgrValue(m_record, State());
        Refresh();
    }
    return EntryDialog::event(event);
}

void frmAssumptions::BuildControls() {
    auto* left = new QVBoxLayout;
    left->addWidget(MakePMIMultipliers());
    left->addWidget(MakeQualifierRatios(m_record));
    left->addWidget(MakeTaxesAndInsurance());
    left->addStretch();
    auto* right = new QVBoxLayout;
    right->addWidget(MakePresentValue());
    right->addWidget(MakeTaxSchedule(m_record));
    right->addWidget(MakeOtherVariables());
    right->addStretch();
    auto* columns = new QHBoxLayout;
    columns->setSpacing(12);
    columns->addLayout(left);
    columns->addLayout(right);
    LayOut(columns, MakeButtonRow());
}

void frmAssumptions::BindTaxRows() {
    for (std::size_t row = 0; row < TaxRowCount; ++row) {
        EntryEvents lowEnd;
        lowEnd.LostFocus = [this, row] {
            Shows().Run([&] { Module1::LeaveLowEnd(State(), m_record, row); });
            return Module1::EntryOutcome::Accepted;
        };
        lowEnd.Change = StandardEvents(m_record.ecLowEnd[row], whole).Change;
        BindField(RowControl("ecLowEnd", row), m_record.ecLowEnd[row], lowEnd);

        EntryEvents highEnd =
            StandardEvents(m_record.ecHighEnd[row], {FieldFormat::Dollar, FieldFormat::Dollar, nothing});
        highEnd.Click = {};
        highEnd.LostFocus = [this, row] {
            Module1::EntryOutcome outcome{};
            Shows().Run([&] { outcome = Module1::LeaveHighEnd(Context(), m_record, row); });
            return outcome;
        };
        BindField(RowControl("ecHighEnd", row), m_record.ecHighEnd[row], highEnd);

        EntryEvents rate = StandardEvents(m_record.ecRate[row], wholePercent);
        rate.Click = {};
        BindField(RowControl("ecRate", row), m_record.ecRate[row], rate);
    }
}

void frmAssumptions::BindRates() {
    BindField("ecRealEstateTaxPct", m_record.ecRealEstateTaxPct,
              {FieldFormat::WholePercent, FieldFormat::Percent, nothing});
    BindField("ecInsurancePct", m_record.ecInsurancePct, wholePercent);
    EntryEvents rate = StandardEvents(m_record.ecPV_Rate, wholePercent);
    rate.LostFocus = [this] {
        Module1::EntryOutcome outcome{};
        Shows().Run([&] {
            outcome = Module1::LeaveFieldAs(Context(), m_record.ecPV_Rate, FieldFormat::Percent,
                                            FieldFormat::WholePercent);
        });
        return outcome;
    };
    BindField("ecPV_Rate", m_record.ecPV_Rate, rate);
    BindField("ecPV_Term", m_record.ecPV_Term, whole);
    BindField("ecYrsInHome", m_record.ecYrsInHome, whole);
}

void frmAssumptions::BindRows() {
    for (std::size_t row = 0; row < RatioRowCount; ++row) {
        BindField(RowControl("FER", row), m_record.FER[row], wholePercent);
        BindField(RowControl("BER", row), m_record.BER[row], wholePercent);
    }
    for (std::size_t row = 0; row < PMIRowCount; ++row)
        BindField(RowControl("PMI_Multiplier", row), m_record.PMI_Multiplier[row],
                  {FieldFormat::SmallPercent, FieldFormat::SmallPercent, nothing});
}

void frmAssumptions::ConnectOptions() {
    connect(findChild<QButtonGroup*>("optUsePVVars"), &QButtonGroup::idClicked, this,
            [this](int option) { m_record.optUsePVVars = option == 1; });
}

} // namespace Ledgrove
