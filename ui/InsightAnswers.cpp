#include "ui/InsightAnswers.h"

#include <utility>

#include "insight/Views.h"
#include "ui/AssumptionList.h"
#include "ui/InsightCharts.h"
#include "ui/YearCharts.h"

namespace Ledgrove {

namespace {

/// The monthly net, which everything leads to.
constexpr std::string_view usualLabel = "lblNetCashMo2";

InsightAnswer ExplanationOf(const Insight& insight, std::string_view asked) {
    InsightAnswer answer;
    Explanation chain = ComputeExplanation(insight);
    const ExplainedFigure* figure = chain.FigureOfLabel(asked);
    if (!figure)
        figure = chain.Find(asked);
    if (!figure)
        figure = chain.FigureOfLabel(usualLabel);
    if (figure) {
        answer.Figure = figure->Figure;
        answer.Table = ExplainSheet(chain, figure->Figure);
        answer.Sentence = figure->Caption + ": " + figure->Text + ".";
        if (!figure->Because.empty())
            answer.Sentence += " " + figure->Because + ".";
    }
    answer.Chain = std::move(chain);
    return answer;
}

/// The sentences one below the other.
InsightAnswer InShort(Sheet sheet) {
    for (const auto& row : sheet.Rows)
        sheet.Sentence += (sheet.Sentence.empty() ? "" : "\n\n") + row.front().Text;
    return {.Table = std::move(sheet)};
}

InsightAnswer YearsAnswer(const YearByYear& years, int year, FlowColumns columns) {
    const auto rows = static_cast<int>(years.Years.size());
    const int shown = year >= 1 && year <= rows ? year : 0;
    InsightAnswer answer{.Table =
                             shown == 0 ? YearsSheet(years, columns) : YearMonthsSheet(years, shown, columns),
                         .Picture = MakeYearsChart(years)};
    answer.Sentence = YearsSheet(years).Sentence;
    answer.Years = rows;
    answer.Year = shown;
    return answer;
}

InsightAnswer AnswerFrom(const InsightAsk& ask, InsightViews& views, FlowColumns columns) {
    switch (ask.Question) {
    case InsightQuestion::InShort:
        return InShort(TakeawaySheet(views.TakeawayView()));
    case InsightQuestion::HowFar:
        return {.Table = BreakevenSheet(views.Of(), views.BreakevenView())};
    case InsightQuestion::WhichLoan:
        return {.Table = OptionsSheet(views.OptionsView())};
    case InsightQuestion::WhoQualifies:
        return {.Table = QualifySheet(views.QualifyView())};
    case InsightQuestion::WhatMatters:
        return {.Table = SensitivitySheet(views.Of(), views.SensitivityView()),
                .Picture = MakeSensitivityChart(views.Of(), views.SensitivityView())};
    case InsightQuestion::PriceAndSavings:
        return {.Table = MapSheet(views.MapView()), .Picture = MakeMapChart(views.MapView())};
    case InsightQuestion::YearByYear:
        return YearsAnswer(views.YearsView(), ask.Year, columns);
    case InsightQuestion::EnergyPrices:
        return {.Table = EnergySheet(views.EnergyView()),
                .Picture = MakeEnergyChart(views.YearsView(), views.EnergyView())};
    case InsightQuestion::TaxSaving:
        return {.Table = TaxCheckSheet(views.TaxView())};
    case InsightQuestion::Sale:
        return {.Table = ExitSheet(views.Of(), views.ExitView()), .Picture = MakeSaleChart(views.ExitView())};
    case InsightQuestion::WhereFrom:
        return ExplanationOf(views.Of(), ask.Figure);
    case InsightQuestion::Assumed:
        break; // needs no view
    }
    return {};
}

/// Most answers have the sentence of their table.
InsightAnswer WithSentence(InsightAnswer answer) {
    if (answer.Sentence.empty())
        answer.Sentence = answer.Table.Sentence;
    return answer;
}

InsightAnswer Assumed(const Session& session, const YearSettings& years) {
    return WithSentence({.Table = AssumptionSheet(AllAssumptionKeys(), session, years)});
}

/// The session's rules with other settings of the views over the years.
Rules RulesWith(const Session& session, const YearSettings& years) {
    Rules rules = session;
    rules.Years = years;
    return rules;
}

} // namespace

InsightAnswer AnswerOf(const InsightAsk& ask, const Session& session, const YearSettings& years) {
    if (ask.Question == InsightQuestion::Assumed)
        return Assumed(session, years);
    const Rules rules = RulesWith(session, years);
    const Insight insight(session.Screen, rules);
    if (!insight.Missing().empty())
        return {.Missing = insight.Missing()};
    InsightViews views(insight, UsualBy);
    return WithSentence(AnswerFrom(ask, views, FlowColumns::All));
}

InsightAnswer AnswerOf(const InsightAsk& ask, const Session& session) {
    return AnswerOf(ask, session, session.Years);
}

InsightAnswer AnswerOf(const InsightAsk& ask, const Session& session, const TriedSettings& settings) {
    InsightAnswer answer = AnswerOf(ask, session, settings.InForce());
    if (!answer.Missing.empty())
        return answer;
    answer.Fields = FieldsOf(ask.Question, settings);
    const std::string tried = TriedElsewhere(ask.Question, settings);
    if (!tried.empty())
        answer.Table.Note += (answer.Table.Note.empty() ? "" : " ") + tried;
    return answer;
}

InsightAnswerList AnswersOf(std::span<const InsightAsk> asks, const Session& session,
                            const YearSettings& years, double by) {
    const Rules rules = RulesWith(session, years);
    const Insight insight(session.Screen, rules);
    if (!insight.Missing().empty())
        return {.Missing = insight.Missing()};
    InsightViews views(insight, by);
    InsightAnswerList list;
    for (const InsightAsk& ask : asks)
        list.Answers.push_back(ask.Question == InsightQuestion::Assumed
                                   ? Assumed(session, years)
                                   : WithSentence(AnswerFrom(ask, views, FlowColumns::Main)));
    return list;
}

std::vector<EntryText> EntriesOfCell(const Session& session, const ChartGrid& grid, std::size_t column,
                                     std::size_t row) {
    if (!grid.Nets[row][column])
        return {};
    const Insight insight(session.Screen, session);
    const Lattice price = insight.Steps(Varied::GMHPrice);
    const Lattice bill = insight.Steps(Varied::GMHBill);
    const double basePrice = insight.Steps(Varied::StdPrice).Now();
    const double baseBill = insight.Steps(Varied::StdBill).Now();
    return {{price.Control(), price.TextOf(price.Nearest(basePrice + grid.Columns[column]))},
            {bill.Control(), bill.TextOf(bill.Nearest(baseBill - grid.Rows[row]))}};
}

} // namespace Ledgrove
