#include "reports/Brief.h"

#include "engine/NumberText.h"
#include "insight/Views.h"
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

std::string YearsText(int years) {
    return std::to_string(years) + (years == 1 ? " year" : " years");
}

std::shared_ptr<const ChartFigures> CostChart(const Session& session) {
    auto chart = std::make_shared<ChartFigures>(MakeChart(ChartKind::MonthlyCost, session));
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
    return {{{"Buyer qualifies", screen.lblStdQual.Text, screen.lblGMHQual.Text},
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

/// The assumptions that move the figures of this comparison.
std::vector<std::string_view> KeysThatMatter(const Insight& insight) {
    const Decisions& decided = insight.Record().Decisions;
    std::vector<std::string_view> keys{"YEARS_IN_HOME", "ASSUMPTION1", "ASSUMPTION2", "GROWTH_UTILITIES"};
    for (const std::string_view key : {KeyOf(decided.Std.PMI), KeyOf(decided.GMH.PMI)})
        if (!key.empty())
            keys.push_back(key);
    if (insight.Now().IncludeTaxes)
        keys.push_back("DEDUCTION_STANDARD");
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

std::vector<BriefAssumption> AssumptionsOf(const Session& session, const Insight& insight) {
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
    for (const auto& row : AssumptionSheet(KeysThatMatter(insight), session, session.Years).Rows)
        list.push_back(AssumptionOf(row));
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
    brief.Figures = FiguresOf(session, views.YearsView());
    brief.Qualifying = QualifyingOf(session.Screen, views.OptionsView());
    brief.Assumptions = AssumptionsOf(session, insight);
    brief.Disclaimer = Module1::DisclaimerMessage().Text;
    return brief;
}

} // namespace Ledgrove
