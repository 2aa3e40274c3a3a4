#pragma once

#include <array>
#include <cmath>
#include <string>

#include "engine/Evaluate.h"
#include "engine/NumberText.h"
#include "engine/ReadScreen.h"
#include "engine/Session.h"
#include "tests/engine/RandomComparisons.h"
#include "tests/engine/TestSession.h"

// Random comparisons for the searches, most of them near a place where a rule changes its mind.
namespace Ledgrove::Testing {

inline std::string Dollars(double amount) {
    return Module1::FormatPicture(amount, "$###,##0");
}

inline std::string Percent(double percent, std::string_view picture) {
    return Module1::FormatPicture(percent, picture) + "%";
}

/// Chooses one of the seven pairs of options.
inline void ChooseRandomOptions(Random& random, Session& session) {
    static constexpr std::array<std::array<std::string_view, 2>, 7> pairs{
        {{"Conventional", "Conventional"},
         {"Conventional", "Fannie Mae EEM"},
         {"Conventional", "Freddie Mac EEM"},
         {"FHA", "FHA"},
         {"FHA", "FHA EEM"},
         {"VA", "VA"},
         {"VA", "VA EEM"}}};
    const auto& pair = random.OneOf(pairs);
    ChooseOptions(session, pair[0], pair[1]);
}

/// Puts the labelled price within a few dollars of the base price plus the savings' present value.
inline void PutPriceAtSavings(Random& random, Session& session) {
    Carried carried;
    const Results results = Module1::Evaluate(Module1::ReadInputs(session.Screen), session, carried);
    const double price = static_cast<double>(results.StdCase.Cost) +
                         std::floor(static_cast<double>(results.GMHCase.PVSavings)) + random.Between(-3, 3);
    if (price >= 1)
        session.Screen.ecGMHHome.Text = Dollars(price);
}

/// Mostly small enough to try every step; sometimes so large that single precision rounds dollars.
inline double RandomPrice(Random& random) {
    if (random.OneIn(12))
        return random.Between(1, 400);
    return random.OneIn(12) ? random.Between(8'000'000, 20'000'000) : random.Between(20'000, 160'000);
}

/// Texts that only a file can have, or a field before it is left: between two steps, or beyond the range.
inline void PutOddText(Random& random, MainScreen& s) {
    switch (random.Below(6)) {
    case 0:
        s.ecGMHRate.Text = "6.12345%";
        break;
    case 1:
        s.ecStdRate.Text = "31.5%";
        break;
    case 2:
        s.ecPctDown.Text = "133.333%";
        break;
    case 3:
        s.ecGMHHome.Text = "$61,234.56";
        break;
    case 4:
        s.ecMonthlyDebt.Text = "1200000.5";
        break;
    default:
        s.ecIncome.Text = "12345678.9";
    }
}

/// The texts are those that the fields show after entering, with few exceptions.
inline Session RandomInsightSession(Random& random) {
    static constexpr std::array<int, 7> terms{10, 15, 20, 25, 30, 35, 40};
    static constexpr std::array<double, 8> edges{0, 4.99, 5, 9.99, 10, 15, 20, 100};
    Session session = StartedSession();
    if (random.OneIn(3))
        ChangeTables(random, session);
    MainScreen& s = session.Screen;
    const double price = RandomPrice(random);
    s.ecStdHome.Text = Dollars(price);
    s.ecGMHHome.Text = Dollars(std::fmax(1, std::floor(price * random.Between(900, 1'150, 0.001))));
    s.ecStdUtil.Text = Dollars(random.Between(0, 5'000));
    s.ecGMHUtil.Text = random.OneIn(8) ? s.ecStdUtil.Text : Dollars(random.Between(0, 4'000));
    s.ecIncome.Text = random.OneIn(20) ? "" : Dollars(random.Between(1'000, 90'000));
    s.ecMonthlyDebt.Text = random.OneIn(4) ? "" : Dollars(random.Between(0, 1'500));
    const double percent = random.OneIn(2) ? random.OneOf(edges) : random.Between(0, 6'000, 0.01);
    s.ecPctDown.Text = Percent(percent, "#0.00");
    s.ecFixedDown.Text =
        Dollars(random.OneIn(3) ? std::floor(price * random.OneOf(edges) / 100) : random.Between(0, 50'000));
    s.optDownPayment = random.OneIn(3) ? 1 : 0;
    s.ecStdRate.Text = Percent(random.OneIn(15) ? 0 : random.Between(2'000, 9'000, 0.001), "#0.000");
    s.ecGMHRate.Text =
        random.OneIn(2) ? s.ecStdRate.Text : Percent(random.Between(0, 9'000, 0.001), "#0.000");
    s.chkDoTax0 = !random.OneIn(3);
    ChooseTerm(session, random.OneOf(terms));
    ChooseRandomOptions(random, session);
    if (random.OneIn(3))
        PutPriceAtSavings(random, session);
    if (random.OneIn(10))
        PutOddText(random, s);
    return session;
}

} // namespace Ledgrove::Testing
