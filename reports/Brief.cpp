#include "reports/Brief.h"

#include "engine/NumberText.h"
#include "insight/Views.h"
#include "insight/YearsWords.h"
#include "reports/modPrint.h"
#include "ui/AssumptionList.h"
#include "ui/InsightAnswers.h"
#include "ui/MainScreenRules.h"
#include "ui/YearCharts.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

namespace Ledgrove {

namespace {

std::shared_ptr<const ChartFigures> CostChart(const Session& session) {
    auto chart = std::make_shared<ChartFigures>(MakeChart(ChartKind::MonthlyCost, session));
    // In a column that adds up, savings have a minus.
    for (ChartSeries& series : chart->Series)
        series.Texts.clear();
    const MainScreen& screen = session.Screen;
    chart->Title.clear();
    chart->Categories[0] += ": " + screen.lblStdPITIU.Text + " a month";
    chart->Categories[1] += ": " + screen.lblGMHPITIU.Text + " a month";
    return chart;
}

/// Names the amount after so many years beside the curve.
void MarkYear(ChartFigures& chart, const YearByYear& years, int year) {
    const double amount = years.Years[static_cast<std::size_t>(year) - 1].Cumulative;
    chart.Curves.Marks.push_back(
        {static_cast<double>(year), amount, YearsText(year) + ": " + DollarText(amount)});
}

std::shared_ptr<const ChartFigures> SavingsChart(const YearByYear& years) {
    auto chart = std::make_shared<ChartFigures>(MakeYearsChart(years));
    chart->Title.clear();
    MarkYear(*chart, years, years.InHome);
    if (years.InHome != ChartYears)
        MarkYear(*chart, years, ChartYears);
    std::ranges::stable_sort(chart->Curves.Marks, {}, &CurveMark::At);
    return chart;
}

std::array<BriefRow, 10> FiguresOf(const Session& session, const YearByYear& years) {
    const MainScreen& screen = session.Screen;
    const double ahead = years.Years[static_cast<std::size_t>(years.InHome) - 1].Cumulative;
    return {{{"Price", screen.lblStdHome.Text, screen.lblGMHHome.Text},
             {"Down payment", screen.lblStdDown.Text, screen.lblgmhDown.Text},
             {"Mortgage amount", screen.lblStdMortgage.Text, screen.lblgmhMortgage.Text},
             {"Monthly payment: loan, taxes, insurance, PMI", screen.lblStdPITI.Text, screen.lblGMHPITI.Text},
             {"Monthly utility bills", screen.lblStdUtilMo.Text, screen.lblGMHUtilMo.Text},
             {"Net monthly payment, utilities included", screen.lblStdPITIU.Text, screen.lblGMHPITIU.Text},
             {"Monthly net against the base home", "", screen.lblNetCashMo2.Text},
             {"Extra down payment", "", DollarText(static_cast<double>(session.Scenario.ExtraCashToday))},
             {(ahead < 0 ? "Behind after " : "Ahead after ") + YearsText(years.InHome) + " by", "",
              DollarText(std::fabs(ahead))},
             {"Energy savings, worth today", "", screen.lblPVofSavings.Text}}};
}

std::string IncomeText(const OptionHome& home) {
    return home.IncomeToQualify ? DollarText(static_cast<double>(*home.IncomeToQualify)) : "none is enough";
}

std::array<BriefRow, 3> QualifyingOf(const MainScreen& screen, const OptionTable& options) {
    const OptionAnswer& row = options.Rows[static_cast<std::size_t>(options.Current)];
    // A star stands for something else on this page.
    const auto answer = [](const Label& label) {
        return label.Text.starts_with('*') ? label.Text.substr(1) : label.Text;
    };
    return {{{"Buyer qualifies", answer(screen.lblStdQual), answer(screen.lblGMHQual)},
             {"Largest loan", screen.lblStdMaxHome.Text, screen.lblGMHMaxHome.Text},
             {"Least income, a year", IncomeText(row.Std), IncomeText(row.GMH)}}};
}

std::string_view KeyOf(PMIBand band) {
    switch (band) {
    case PMIBand::Below5:
        return "PMI_MULT1";
    case PMIBand::Below10:
        return "PMI_MULT2";
    case PMIBand::Below15:
        return "PMI_MULT3";
    case PMIBand::Below20:
        return "PMI_MULT4";
    case PMIBand::None:
    case PMIBand::NoPMI:
        break;
    }
    return {};
}

/// The keys of the check of the tax line, as far as they count.
void AddTaxKeys(std::vector<std::string_view>& keys, const Insight& insight, const YearByYear& years) {
    const YearSettings& by = insight.By().Years;
    keys.push_back("DEDUCTION_STANDARD");
    if (by.StateTax != 0)
        keys.push_back("DEDUCTION_STATE_TAX");
    if (by.OtherDeductions != 0)
        keys.push_back("DEDUCTION_OTHER");
    const Results& record = insight.Record();
    const auto isAbove = [](const HomeCase& home, double stateTax, double cap) {
        return 12 * static_cast<double>(home.TaxMonthly) + stateTax > cap;
    };
    if (isAbove(record.StdCase, by.StateTax, by.SaltCap) || isAbove(record.GMHCase, by.StateTax, by.SaltCap))
        keys.push_back("DEDUCTION_SALT_CAP");
    if (std::max(years.Std.BalanceAfter(0), years.GMH.BalanceAfter(0)) > by.DebtCap)
        keys.push_back("DEDUCTION_DEBT_CAP");
}

/// The assumptions that move the figures of this comparison.
std::vector<std::string_view> KeysThatMatter(const Insight& insight, const YearByYear& years) {
    const Decisions& decided = insight.Record().Decisions;
    std::vector<std::string_view> keys{"YEARS_IN_HOME", "ASSUMPTION1", "ASSUMPTION2", "GROWTH_UTILITIES",
                                       "GROWTH_HOME"};
    for (const std::string_view key : {KeyOf(decided.Std.PMI), KeyOf(decided.GMH.PMI)})
        if (!key.empty())
            keys.push_back(key);
    if (insight.By().Assumptions.UsePVVars) {
        keys.push_back("PVSAVINGS_RATE");
        keys.push_back("PVSAVINGS_TERM");
    }
    if (insight.Now().IncludeTaxes)
        AddTaxKeys(keys, insight, years);
    return keys;
}

std::string PercentText(float fraction) {
    return Module1::PlainText(fraction * 100) + "%";
}

std::string RatiosText(const HomeCase& home) {
    return PercentText(home.FrontRatio) + " and " + PercentText(home.BackRatio);
}

std::string RatesText(const Results& record) {
    const std::string base = PercentText(record.StdCase.IntRate);
    const std::string labelled = PercentText(record.GMHCase.IntRate);
    return base == labelled ? base : base + " and " + labelled;
}

/// From a row of the sheet of the assumptions.
BriefAssumption AssumptionOf(const std::vector<SheetCell>& row) {
    const std::string& date = row[2].Text;
    const std::string& remark = row[4].Text;
    const bool isOld = !date.empty() && !remark.empty();
    if (date.empty())
        return {row[0].Text, row[1].Text, remark.empty() ? "no date" : remark, false};
    return {row[0].Text, row[1].Text, date, isOld};
}

/// The assumption of this key with another caption and value, as far as it matters here.
BriefAssumption PartOf(std::string_view key, const Session& session, std::string caption, std::string value) {
    BriefAssumption whole = AssumptionOf(AssumptionSheet({key}, session, session.Years).Rows.front());
    return {std::move(caption), std::move(value), std::move(whole.Date), whole.IsOld};
}

/// The years that count: none counts as one.
void NameYears(std::vector<BriefAssumption>& list, const Session& session, const YearByYear& years) {
    if (session.Assumptions.YearsInHome == years.InHome)
        return;
    for (BriefAssumption& one : list)
        if (one.Value == std::to_string(session.Assumptions.YearsInHome) &&
            one.Caption == "Years in the home")
            one.Value += ", counted as " + std::to_string(years.InHome);
}

std::vector<BriefAssumption> AssumptionsOf(const Session& session, const Insight& insight,
                                           const YearByYear& years) {
    const MainScreen& screen = session.Screen;
    const Results& record = insight.Record();
    std::vector<BriefAssumption> list;
    list.push_back({"Interest rate", RatesText(record), "entered", false});
    list.push_back({"Term", std::string(screen.cboMortTerm.Text()), "entered", false});
    list.push_back(PartOf("LOANTYPE", session,
                          "Qualifying ratios, " + std::string(screen.cboStdMortOption.Text()),
                          RatiosText(record.StdCase)));
    if (screen.cboStdMortOption.Text() != screen.cboGMHMortOption.Text())
        list.push_back(PartOf("LOANTYPE", session,
                              "Qualifying ratios, " + std::string(screen.cboGMHMortOption.Text()),
                              RatiosText(record.GMHCase)));
    for (const auto& row : AssumptionSheet(KeysThatMatter(insight, years), session, session.Years).Rows)
        list.push_back(AssumptionOf(row));
    NameYears(list, session, years);
    if (insight.Now().IncludeTaxes)
        list.push_back(
            PartOf("TAXCAT", session, "Income tax rate", PercentText(record.Scenario.MarginalTaxRate)));
    return list;
}

} // namespace

Brief MakeBrief(const Session& session, int logoOption, std::string date) {
    Brief brief;
    brief.Names = session.Header;
    brief.Date = std::move(date);
    brief.Logo = LogoPicture(session, logoOption);
    const Insight insight(session.Screen, session);
    brief.Missing = insight.Missing();
    if (!brief.Missing.empty())
        return brief;
    InsightViews views(insight, UsualBy);
    brief.Sentences = views.TakeawayView().Sentences;
    brief.Cost = CostChart(session);
    brief.Savings = SavingsChart(views.YearsView());
    brief.SavingsHead = "What is saved over the years";
    if (std::fabs(views.YearsView().ExtraCash) >= 0.5)
        brief.SavingsHead += views.YearsView().ExtraCash > 0 ? ", less the extra down payment"
                                                             : ", with the smaller down payment";
    brief.Figures = FiguresOf(session, views.YearsView());
    brief.Qualifying = QualifyingOf(session.Screen, views.OptionsView());
    brief.Assumptions = AssumptionsOf(session, insight, views.YearsView());
    brief.Disclaimer = Module1::DisclaimerMessage().Text;
    return brief;
}

} // namespace Ledgrove
