#include "insight/Takeaway.h"

#include <cmath>
#include <regex>

#include <gtest/gtest.h>

#include "insight/OptionPairs.h"
#include "insight/Views.h"
#include "tests/insight/SampleComparisons.h"
#include "tests/insight/SimpleComparison.h"

namespace Ledgrove {
namespace {

using Texts = std::vector<std::string>;

Texts SentencesOf(const Session& session) {
    const Insight insight(session.Screen, session);
    InsightViews views(insight, 10);
    return views.TakeawayView().Sentences;
}

Results ResultsOf(const Session& session) {
    return Insight(session.Screen, session).Record();
}

class TypedIn {
public:
    explicit TypedIn(const Session& session)
        : m_session(session)
        , m_insight(session.Screen, session) {}

    void Check() {
        const Texts sentences = SentencesOf(m_session);
        EXPECT_GE(sentences.size(), 3U);
        EXPECT_LE(sentences.size(), 7U);
        m_all.clear();
        for (const std::string& sentence : sentences)
            m_all += sentence + "\n";
        SCOPED_TRACE(m_all);
        CheckCosts();
        CheckNet(sentences[1]);
        CheckPrice();
        CheckQualifies();
        CheckHelp("base home", HomeCode::Std);
        CheckHelp("GREENMARK home", HomeCode::GMH);
    }

private:
    static double AmountOf(const std::string& text) { return Module1::ReadStrippedNumber(text).value_or(-1); }

    double Typed(const Field& field) const {
        return static_cast<double>(Module1::ParseFieldValue(field.Text, 1));
    }

    /// The first group of the pattern; empty if nothing matches.
    static std::string Found(const std::string& text, const std::string& pattern) {
        std::smatch match;
        return std::regex_search(text, match, std::regex(pattern)) ? match[1].str() : std::string();
    }

    Results With(Field MainScreen::*field, const std::string& text) const {
        Session other = m_session;
        (other.Screen.*field).Text = text;
        return ResultsOf(other);
    }

    float Net(const Results& results) const { return m_insight.ShownNet(results); }

    void CheckCosts() const {
        const MainScreen& s = m_session.Screen;
        const double more = Typed(s.ecGMHHome) - Typed(s.ecStdHome);
        const std::string price = Found(m_all, "GREENMARK home costs (\\$[0-9,]+) (?:more|less)(?:,| and)");
        EXPECT_EQ(price, std::fabs(more) < 0.5 ? "" : Testing::Dollars(std::fabs(more)));
        const double saved = Typed(s.ecStdUtil) - Typed(s.ecGMHUtil);
        EXPECT_EQ(Found(m_all, "saves (\\$[0-9,]+) a year"), saved < 0.5 ? "" : Testing::Dollars(saved));
    }

    void CheckNet(const std::string& sentence) const {
        const auto net = static_cast<double>(Net(m_insight.Record()));
        InsightViews views(m_insight, 10);
        const YearByYear& years = views.YearsView();
        const bool isLost = net > 0 && !years.Ahead && years.ExtraCash > 0.5;
        EXPECT_EQ(sentence.starts_with("Each month"), net > 0 && !isLost);
        EXPECT_EQ(sentence.find("is not earned back") != std::string::npos, isLost);
        const bool isEarned = years.Ahead && years.ExtraCash > 0.5;
        EXPECT_EQ(m_all.find("is earned back after") != std::string::npos, isEarned);
        Earned += isEarned ? 1 : 0;
        Lost += isLost ? 1 : 0;
        const std::string amount = Found(sentence, "(\\$[0-9,]+) more (?:is left|a month)");
        EXPECT_EQ(amount, std::fabs(net) < 0.5 ? "" : Testing::Dollars(std::fabs(net)));
        EXPECT_EQ(sentence.find("with income tax included") != std::string::npos,
                  m_session.Screen.chkDoTax0 && !isLost);
        CheckTax(sentence, views.TaxView(), net);
    }

    /// The tax line as it would really be is named where it differs, and decides whether the home pays.
    void CheckTax(const std::string& sentence, const TaxCheck& tax, double net) const {
        const double differs = std::fabs(tax.Real - static_cast<double>(tax.Shown));
        const bool isNamed = m_session.Screen.chkDoTax0 && differs > 0.5;
        EXPECT_EQ(sentence.find("as it would really be") != std::string::npos, isNamed);
        if (!isNamed)
            return;
        const double real = static_cast<double>(m_insight.Record().Scenario.NetBeforeTax) + tax.Real;
        std::string end = DollarText(real) == DollarText(net) ? " as well." : ".";
        if (net < 0 && real >= 0.5)
            end = " would be left.";
        if (sentence.find("is not earned back") != std::string::npos)
            end = " a month.";
        EXPECT_TRUE(sentence.ends_with("really be, " + DollarText(real) + end)) << sentence;
        if ((real >= 0) != (net >= 0)) {
            EXPECT_EQ(m_all.find("pays each month"), std::string::npos);
        }
        const std::string ahead = Found(m_all, "The buyer is ahead [^.]*, by (\\$[0-9,]+) after");
        if (!ahead.empty()) {
            const double perYear = 12 * (tax.Real - static_cast<double>(tax.Shown));
            EXPECT_GE(AmountOf(ahead) + 0.5 + perYear * InsightViews(m_insight, 10).YearsView().InHome, 0)
                << m_all;
        }
    }

    void CheckPrice() {
        const bool pays = Net(m_insight.Record()) >= 0;
        if (pays) {
            EXPECT_EQ(m_all.find("would pay each month"), std::string::npos);
        } else {
            EXPECT_EQ(m_all.find("still pays"), std::string::npos);
        }
        const std::string price =
            Found(m_all, "pays? each month (?:up to|with) a price of (\\$[0-9,.]+) \\(");
        if (!price.empty()) {
            ++Prices;
            EXPECT_GE(Net(With(&MainScreen::ecGMHHome, price)), 0);
            EXPECT_LT(Net(With(&MainScreen::ecGMHHome, Testing::Dollars(AmountOf(price) + 1))), 0);
            if (!pays) {
                EXPECT_GE(AmountOf(price), 0.9 * Typed(m_session.Screen.ecGMHHome) - 1e-6);
            }
        }
        CheckShare();
    }

    void CheckShare() {
        const std::string share = Found(m_all, "with ([0-9.]+%) of the expected savings");
        if (share.empty())
            return;
        ++Shares;
        const MainScreen& s = m_session.Screen;
        const double saved = Typed(s.ecStdUtil) - Typed(s.ecGMHUtil);
        const double bill = std::floor(Typed(s.ecStdUtil) - saved * AmountOf(share) / 100 + 1e-6);
        EXPECT_GE(Net(With(&MainScreen::ecGMHUtil, Testing::Dollars(bill))), 0);
        // The share is rounded up by less than one percent and the bill down by less than a dollar, so it
        // fails soon after, though not always from there on.
        bool fails = false;
        for (double more = 1; more < saved * 0.01 + 2 && !fails; ++more)
            fails = Net(With(&MainScreen::ecGMHUtil, Testing::Dollars(bill + more))) < 0;
        EXPECT_TRUE(fails);
    }

    void CheckQualifies() const {
        const Results& record = m_insight.Record();
        EXPECT_EQ(m_all.find("qualifies for both homes") != std::string::npos,
                  record.StdQualifies && record.GMHQualifies);
        EXPECT_EQ(m_all.find("qualifies for neither home") != std::string::npos,
                  !record.StdQualifies && !record.GMHQualifies);
        EXPECT_EQ(m_all.find("qualifies for the base home") != std::string::npos,
                  record.StdQualifies && !record.GMHQualifies);
        // The first home that the buyer qualifies for and that needs a mortgage.
        std::string room;
        for (const auto& [qualifies, home] : {std::pair{record.StdQualifies, &record.StdCase},
                                              std::pair{record.GMHQualifies, &record.GMHCase}}) {
            const double margin = static_cast<double>(home->MaxLoan) - static_cast<double>(home->LoanAmount);
            if (room.empty() && qualifies && home->LoanAmount >= 0.5F && margin >= 0.5)
                room = Testing::Dollars(margin);
        }
        EXPECT_EQ(Found(m_all, "room for (\\$[0-9,]+) more loan"), room);
    }

    static bool Qualifies(const Results& results, HomeCode home) {
        return home == HomeCode::GMH ? results.GMHQualifies : results.StdQualifies;
    }

    void CheckHelp(const std::string& name, HomeCode home) {
        const std::string help = Found(m_all, "would qualify for the " + name + " with (.*)\\.\n");
        if (help.empty())
            return;
        EXPECT_FALSE(Qualifies(m_insight.Record(), home));
        const bool labelled = home == HomeCode::GMH;
        const MainScreen& s = m_session.Screen;
        const auto tried = [&](const char* what, Field MainScreen::*field, double most) {
            const std::string to = Found(help, std::string("an? ") + what + " of (\\$?[0-9,.]+%?) \\(");
            if (to.empty())
                return;
            ++Goals;
            EXPECT_TRUE(Qualifies(With(field, to), home)) << what;
            const double now = Module1::ReadStrippedNumber((s.*field).Text).value_or(0);
            EXPECT_LE(std::fabs(AmountOf(to) - now), most + 1e-6) << what;
        };
        const double price = Typed(labelled ? s.ecGMHHome : s.ecStdHome);
        tried("down payment", s.optDownPayment == 0 ? &MainScreen::ecPctDown : &MainScreen::ecFixedDown,
              s.optDownPayment == 0 ? 10 : price / 10);
        tried("price", labelled ? &MainScreen::ecGMHHome : &MainScreen::ecStdHome, price / 10);
        tried("income", &MainScreen::ecIncome, Typed(s.ecIncome) / 5);
        tried("monthly debt", &MainScreen::ecMonthlyDebt, Typed(s.ecMonthlyDebt) / 5);
        tried("interest rate", labelled ? &MainScreen::ecGMHRate : &MainScreen::ecStdRate, 1);
        CheckOption(Found(help, "the mortgage option ([A-Za-z ]+?)(?: or |$)"), home);
    }

    void CheckOption(const std::string& option, HomeCode home) const {
        if (option.empty())
            return;
        bool qualifies = false;
        for (const OptionPair& pair : OptionPairs()) {
            const std::string_view own = home == HomeCode::GMH ? pair.Labelled.Text : pair.Base.Text;
            if (own == option)
                qualifies = qualifies || Qualifies(m_insight.At(WithOptions(m_insight.Now(), pair)), home);
        }
        EXPECT_TRUE(qualifies) << option;
    }

public:
    static inline int Prices = 0, Shares = 0, Goals = 0, Earned = 0, Lost = 0;

private:
    const Session& m_session;
    Insight m_insight;
    std::string m_all;
};

TEST(Takeaway, EveryAmountDoesWhatItsSentenceSays) {
    Testing::Random random(30);
    int compared = 0;
    for (int i = 0; i < 900 && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        const Session session = Testing::RandomInsightSession(random);
        if (!Insight(session.Screen, session).Missing().empty())
            continue;
        TypedIn(session).Check();
        ++compared;
    }
    EXPECT_GT(compared, 300);
    EXPECT_GT(TypedIn::Prices, 100);
    EXPECT_GT(TypedIn::Shares, 50);
    EXPECT_GT(TypedIn::Goals, 100);
    EXPECT_GT(TypedIn::Earned, 20);
    EXPECT_GT(TypedIn::Lost, 20);
}

} // namespace
} // namespace Ledgrove
