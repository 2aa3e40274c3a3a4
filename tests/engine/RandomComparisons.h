#pragma once

#include "engine/MainScreen.h"
#include "tests/engine/TestSession.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

// Random comparisons, the same in every run, and a digest of everything that a recalculation changes.
namespace Ledgrove::Testing {

/// A random number generator with the same sequence on every machine (splitmix64).
class Random {
public:
    explicit Random(std::uint64_t seed)
        : m_state(seed) {}

    std::uint64_t Next() {
        std::uint64_t z = (m_state += 0x9e3779b97f4a7c15U);
        z = (z ^ (z >> 30U)) * 0xbf58476d1ce4e5b9U;
        z = (z ^ (z >> 27U)) * 0x94d049bb133111ebU;
        return z ^ (z >> 31U);
    }
    /// 0 to `count` - 1.
    int Below(int count) { return static_cast<int>(Next() % static_cast<std::uint64_t>(count)); }
    bool OneIn(int chances) { return Below(chances) == 0; }
    /// A whole number of `step`s from `least` to `most`.
    double Between(int least, int most, double step = 1) { return (least + Below(most - least + 1)) * step; }
    template <typename Item, std::size_t Count>
    const Item& OneOf(const std::array<Item, Count>& items) {
        return items[static_cast<std::size_t>(Below(static_cast<int>(Count)))];
    }

private:
    std::uint64_t m_state;
};

/// `value` with two decimals, or sometimes an extreme or invalid text.
inline std::string RandomText(Random& random, double value) {
    static constexpr std::array<std::string_view, 14> odd{
        "",        "0",        "-250",  "abc", "$",     "99999999999999999999999999999999999999",  "0.01",
        "1000000", "16777217", "1,2,3", "+5",  "3.4e5", "340282346638528859811704183484516925440", "%"};
    if (random.OneIn(40))
        return std::string(random.OneOf(odd));
    std::string text = std::to_string(value);
    text.erase(text.find('.') + 3);
    return random.OneIn(3) ? "$" + text : text;
}

inline std::string RandomPercent(Random& random, double value) {
    return RandomText(random, value) + (random.OneIn(2) ? "%" : "");
}

/// Changes one or a few of the inputs.
inline void ChangeInputs(Random& random, Session& session, int changes) {
    static constexpr std::array<std::string_view, 3> bases{"Conventional", "FHA", "VA"};
    static constexpr std::array<int, 7> terms{10, 15, 20, 25, 30, 35, 40};
    MainScreen& s = session.Screen;
    for (int change = 0; change < changes; ++change) {
        switch (random.Below(15)) {
        case 0:
            s.ecIncome.Text = RandomText(random, random.Between(0, 6'000, 100));
            break;
        case 1:
            s.ecMonthlyDebt.Text = RandomText(random, random.Between(0, 4'000, 0.5));
            break;
        case 2:
            s.ecPctDown.Text = RandomPercent(random, random.Between(0, 60, 0.5));
            break;
        case 3:
            s.ecFixedDown.Text = RandomText(random, random.Between(0, 900, 100));
            break;
        case 4:
            s.ecStdHome.Text = RandomText(random, random.Between(0, 8'000, 100));
            break;
        case 5:
            s.ecGMHHome.Text = RandomText(random, random.Between(0, 8'000, 100));
            break;
        case 6:
            s.ecStdUtil.Text = RandomText(random, random.Between(0, 6'000, 1.25));
            break;
        case 7:
            s.ecGMHUtil.Text = RandomText(random, random.Between(0, 6'000, 1.25));
            break;
        case 8:
            s.ecStdRate.Text = RandomPercent(random, random.Between(0, 96, 0.125));
            break;
        case 9:
            s.ecGMHRate.Text = RandomPercent(random, random.Between(0, 96, 0.125));
            break;
        case 10: {
            const std::string_view base = random.OneOf(bases);
            ChooseOptions(session, base, base);
            s.cboGMHMortOption.Selected =
                random.OneIn(50) ? -1 : random.Below(static_cast<int>(s.cboGMHMortOption.Items.size()));
            session.Scenario.EEMNoticeFlag = true;
            break;
        }
        case 11:
            ChooseTerm(session, random.OneOf(terms));
            session.Scenario.EEMNoticeFlag = true;
            break;
        case 12:
            s.optDownPayment = random.Below(2);
            session.Scenario.DownAsPercent = s.optDownPayment == 0;
            break;
        case 13:
            s.chkDoTax0 = !s.chkDoTax0;
            break;
        default:
            s.SSTab1 = random.Below(TabCount);
        }
    }
}

/// Changes assumptions, ratios, EEM flags and brackets, rarely to values that cause a fault.
inline void ChangeTables(Random& random, Session& session) {
    AssumptionSet& a = session.Assumptions;
    a.RealEstateTaxPct = static_cast<float>(random.Between(0, 3'000, 0.001));
    a.InsurancePct = static_cast<float>(random.Between(0, 2'000, 0.001));
    a.PVRate = static_cast<float>(random.Between(0, 1'200, 0.0001));
    a.PVTerm = static_cast<float>(random.Between(random.OneIn(20) ? 0 : 1, 40));
    a.UsePVVars = random.OneIn(2);
    a.YearsInHome = static_cast<std::int16_t>(random.Below(45));
    for (float* multiplier : {&a.PMIMult1, &a.PMIMult2, &a.PMIMult3, &a.PMIMult4})
        *multiplier = static_cast<float>(random.Between(0, 120, 0.0001));
    session.LoanTypes = ShippedLoanTypes();
    for (LoanType& loanType : session.LoanTypes) {
        loanType.FrontRatio = random.OneIn(60) ? 0 : static_cast<float>(random.Between(150, 550, 0.001));
        loanType.BackRatio = random.OneIn(60) ? 0 : static_cast<float>(random.Between(200, 700, 0.001));
        loanType.IsEEM = loanType.IsEEM != random.OneIn(10);
    }
    if (random.OneIn(25))
        session.LoanTypes.resize(static_cast<std::size_t>(random.Below(7)));
    session.TaxBrackets = ShippedTaxSchedule();
    if (random.OneIn(25))
        session.TaxBrackets.clear();
    for (TaxBracket& bracket : session.TaxBrackets)
        bracket.Rate = static_cast<float>(random.Between(0, 4'500, 0.01));
}

/// A session in which every input and table was changed.
inline Session RandomSession(Random& random) {
    Session session = StartedSession();
    FillSample(session.Screen);
    session.Features = {random.OneIn(4) ? " " : "Sunroom", "Deck"};
    if (random.OneIn(2))
        ChangeTables(random, session);
    ChangeInputs(random, session, 40);
    session.Scenario.EEMNoticeFlag = random.OneIn(2);
    return session;
}

/// The FNV-1a hash of all added data.
class Digest {
public:
    void Add(std::string_view bytes) {
        for (const char byte : bytes)
            m_value = (m_value ^ static_cast<unsigned char>(byte)) * 0x100000001b3U;
        m_value = (m_value ^ 0xffU) * 0x100000001b3U;
    }
    void Add(int value) { Add(std::to_string(value)); }
    void Add(float value) {
        std::array<char, sizeof value> bytes{};
        std::memcpy(bytes.data(), &value, sizeof value);
        Add(std::string_view(bytes.data(), bytes.size()));
    }
    std::uint64_t Value() const { return m_value; }

private:
    std::uint64_t m_value = 0xcbf29ce484222325U;
};

inline void AddHome(Digest& digest, const HomeCase& h) {
    for (const float figure :
         {h.Cost,      h.DownPayment,  h.LoanAmount, h.UtilAnnual, h.UtilMonthly, h.IntRate,
          h.Stretch,   h.MortPayment,  h.InsMonthly, h.TaxMonthly, h.PMIMonthly,  h.PITI,
          h.PITIU,     h.IncomeNeeded, h.MaxPayment, h.MaxLoan,    h.MaxHome,     h.TIPMonthly,
          h.PVSavings, h.FrontRatio,   h.BackRatio})
        digest.Add(figure);
}

inline void AddScenario(Digest& digest, const Scenario& s) {
    for (const float figure :
         {s.AnnualIncome,       s.MarginalTaxRate,    s.MonthlyDebt,        s.PctDown,
          s.FixedDown,          s.CostDifference,     s.ClosingCostAdjust,  s.EEMAllowance,
          s.MortgageSavings,    s.UtilitySavings,     s.TaxSavings,         s.ShownTaxSavings,
          s.NetBeforeTax,       s.NetMonthlyCashFlow, s.ExtraCashToday,     s.PriceDifference,
          s.PVNetBeforeTax,     s.PVNetCashFlow,      s.SavingsAfter7Years, s.SavingsAfterYearsInHome,
          s.SavingsAfter30Years})
        digest.Add(figure);
    digest.Add(s.DownAsPercent ? 1 : 0);
    digest.Add(s.EEMNoticeFlag ? 1 : 0);
}

/// Adds the records, every label and the messages of a recalculation.
inline void AddOutcome(Digest& digest, const Session& session, const ScriptedHost& host) {
    AddHome(digest, session.StdCase);
    AddHome(digest, session.GMHCase);
    AddScenario(digest, session.Scenario);
    for (const auto& [name, member] : LabelTable()) {
        const Label& label = session.Screen.*member;
        digest.Add(label.Text);
        digest.Add(static_cast<int>(label.Colour) * 2 + (label.Visible ? 1 : 0));
    }
    for (const bool visible : session.Screen.DetlFrame)
        digest.Add(visible ? 1 : 0);
    for (const Message& message : host.Messages)
        digest.Add(message.Text);
}

} // namespace Ledgrove::Testing
