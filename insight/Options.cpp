#include "insight/Options.h"

#include <algorithm>
#include <map>

#include "insight/Conditions.h"
#include "insight/OptionPairs.h"
#include "insight/Search.h"

namespace Ledgrove {

namespace {

/// From so many equal rows on, a column has no best.
constexpr std::ptrdiff_t tooManyBest = 5;

OptionHome HomeOf(const Results& results, HomeCode home) {
    OptionHome result;
    result.Figures = results.Home(home);
    result.Qualifies = home == HomeCode::GMH ? results.GMHQualifies : results.StdQualifies;
    result.Margin = MarginOf(result.Figures);
    return result;
}

OptionAnswer RowOf(const Insight& insight, const OptionPair& pair) {
    const Inputs inputs = WithOptions(insight.Now(), pair);
    const Results results = insight.At(inputs);
    OptionAnswer row;
    row.Base = pair.Base.Text;
    row.Labelled = pair.Labelled.Text;
    row.Missing = PairFault(results, pair);
    if (!row.Missing.empty())
        return row;
    row.Std = HomeOf(results, HomeCode::Std);
    row.GMH = HomeOf(results, HomeCode::GMH);
    row.GMH.IncomeToQualify =
        LeastStep(insight, insight.Steps(Varied::Income), inputs, QualifiesCondition(HomeCode::GMH));
    row.ShownNet = insight.ShownNet(results);
    row.ExtraCashToday = results.Scenario.ExtraCashToday;
    row.PVSavings = results.GMHCase.PVSavings;
    return row;
}

/// The base home's figures depend on the base option alone, so the rows of a group share its income.
void FindBaseIncomes(const Insight& insight, OptionTable& table) {
    const Lattice income = insight.Steps(Varied::Income);
    std::map<std::string_view, std::optional<Step>> found;
    const auto pairs = OptionPairs();
    for (std::size_t i = 0; i < table.Rows.size(); ++i) {
        OptionAnswer& row = table.Rows[i];
        if (!row.Missing.empty())
            continue;
        if (!found.contains(row.Base))
            found[row.Base] = LeastStep(insight, income, WithOptions(insight.Now(), pairs[i]),
                                        QualifiesCondition(HomeCode::Std));
        row.Std.IncomeToQualify = found[row.Base];
    }
}

/// The first row of each group has its plain option.
void FindLoanGains(OptionTable& table) {
    const OptionAnswer* plain = nullptr;
    for (OptionAnswer& row : table.Rows) {
        if (row.Base == row.Labelled)
            plain = &row;
        if (row.Missing.empty() && plain && plain->Missing.empty())
            row.LoanGain = static_cast<double>(row.GMH.Figures.MaxLoan) -
                           static_cast<double>(plain->GMH.Figures.MaxLoan);
    }
}

/// The figure that competes, so that more is better; empty if the row does not compete.
std::optional<double> Merit(const OptionAnswer& row, BestIn column) {
    if (!row.Missing.empty())
        return std::nullopt;
    switch (column) {
    case BestIn::Payment:
        return -static_cast<double>(row.GMH.Figures.PITIU);
    case BestIn::Cash:
        return -static_cast<double>(row.GMH.Figures.DownPayment);
    case BestIn::Room:
        return row.GMH.Margin;
    case BestIn::Net:
        return static_cast<double>(row.ShownNet);
    case BestIn::Income:
        if (row.GMH.IncomeToQualify)
            return -static_cast<double>(*row.GMH.IncomeToQualify);
        break;
    }
    return std::nullopt;
}

/// std::nullopt is less than every figure.
std::optional<double> BestMerit(const OptionTable& table, BestIn column) {
    std::optional<double> best;
    for (const OptionAnswer& row : table.Rows)
        best = std::max(best, Merit(row, column));
    return best;
}

void MarkBest(OptionTable& table, BestIn column) {
    const auto best = BestMerit(table, column);
    const auto isBest = [&](const OptionAnswer& row) { return best && Merit(row, column) == best; };
    if (std::count_if(table.Rows.begin(), table.Rows.end(), isBest) >= tooManyBest)
        return;
    for (OptionAnswer& row : table.Rows) {
        if (isBest(row))
            row.Best.push_back(column);
    }
}

bool PaymentsTie(const OptionTable& table) {
    std::vector<double> payments;
    for (const OptionAnswer& row : table.Rows) {
        if (const auto payment = Merit(row, BestIn::Payment))
            payments.push_back(*payment);
    }
    std::sort(payments.begin(), payments.end());
    return std::adjacent_find(payments.begin(), payments.end()) != payments.end();
}

std::string SentenceOf(const OptionTable& table) {
    std::string sentence = "The fees and premiums of FHA and VA loans are not in the payment.";
    if (PaymentsTie(table))
        sentence += " Some options show the same payment here; compare those costs as well.";
    return sentence;
}

} // namespace

OptionTable ComputeOptions(const Insight& insight) {
    OptionTable table;
    for (const OptionPair& pair : OptionPairs()) {
        if (WithOptions(insight.Now(), pair) == insight.Now())
            table.Current = static_cast<int>(table.Rows.size());
        table.Rows.push_back(RowOf(insight, pair));
    }
    FindBaseIncomes(insight, table);
    FindLoanGains(table);
    for (const BestIn column : {BestIn::Payment, BestIn::Cash, BestIn::Room, BestIn::Net, BestIn::Income})
        MarkBest(table, column);
    table.Sentence = SentenceOf(table);
    return table;
}

} // namespace Ledgrove
