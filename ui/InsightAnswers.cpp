#include "ui/InsightAnswers.h"

#include <utility>

#include "insight/Views.h"
#include "ui/InsightCharts.h"

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

InsightAnswer AnswerFrom(InsightQuestion question, InsightViews& views, std::string_view asked) {
    switch (question) {
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
        return {.Table = YearsSheet(views.YearsView())};
    case InsightQuestion::EnergyPrices:
        return {.Table = EnergySheet(views.EnergyView())};
    case InsightQuestion::TaxSaving:
        return {.Table = TaxCheckSheet(views.TaxView())};
    case InsightQuestion::Sale:
        return {.Table = ExitSheet(views.Of(), views.ExitView())};
    case InsightQuestion::WhereFrom:
        return ExplanationOf(views.Of(), asked);
    }
    return {};
}

/// Most answers have the sentence of their table.
InsightAnswer WithSentence(InsightAnswer answer) {
    if (answer.Sentence.empty())
        answer.Sentence = answer.Table.Sentence;
    return answer;
}

} // namespace

InsightAnswer AnswerOf(InsightQuestion question, const Session& session, std::string_view asked) {
    const Insight insight(session.Screen, session);
    if (!insight.Missing().empty())
        return {.Missing = insight.Missing()};
    InsightViews views(insight, UsualBy);
    return WithSentence(AnswerFrom(question, views, asked));
}

InsightAnswerList AnswersOf(std::span<const InsightQuestion> questions, const Session& session,
                            std::string_view asked, double by) {
    const Insight insight(session.Screen, session);
    if (!insight.Missing().empty())
        return {.Missing = insight.Missing()};
    InsightViews views(insight, by);
    InsightAnswerList list;
    for (const InsightQuestion question : questions)
        list.Answers.push_back(WithSentence(AnswerFrom(question, views, asked)));
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
