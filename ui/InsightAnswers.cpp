#include "ui/InsightAnswers.h"

#include "insight/Views.h"
#include "ui/InsightCharts.h"

namespace Ledgrove {

namespace {

constexpr double by = 10; // percent

InsightAnswer AnswerFrom(InsightQuestion question, InsightViews& views) {
    switch (question) {
    case InsightQuestion::HowFar:
        return {{}, BreakevenSheet(views.Of(), views.BreakevenView()), {}};
    case InsightQuestion::WhichLoan:
        return {{}, OptionsSheet(views.OptionsView()), {}};
    case InsightQuestion::WhoQualifies:
        return {{}, QualifySheet(views.QualifyView()), {}};
    case InsightQuestion::WhatMatters:
        return {{},
                SensitivitySheet(views.Of(), views.SensitivityView()),
                MakeSensitivityChart(views.Of(), views.SensitivityView())};
    case InsightQuestion::PriceAndSavings:
        return {{}, MapSheet(views.MapView()), MakeMapChart(views.MapView())};
    }
    return {};
}

} // namespace

InsightAnswer AnswerOf(InsightQuestion question, const Session& session) {
    const Insight insight(session.Screen, session);
    if (!insight.Missing().empty())
        return {insight.Missing(), {}, {}};
    InsightViews views(insight, by);
    return AnswerFrom(question, views);
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
