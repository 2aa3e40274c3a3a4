#include "ui/EntryHistory.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "engine/Recalculate.h"
#include "tests/ui/EntryDesk.h"
#include "ui/MainScreenRules.h"

namespace Ledgrove {
namespace {

/// Everything that a person sees of the comparison, and what the next entry depends on.
std::string Seen(const Session& session) {
    std::string seen;
    const auto add = [&](const auto& control) {
        seen += control.Text + '/' + std::to_string(static_cast<int>(control.Colour)) + ' ';
    };
    for (const auto& entry : FieldTable())
        add(session.Screen.*entry.Member);
    for (const auto& entry : LabelTable()) {
        add(session.Screen.*entry.Member);
        seen += (session.Screen.*entry.Member).Visible ? '+' : '-';
    }
    for (const auto& entry : PickListTable())
        seen += std::string((session.Screen.*entry.Member).Text()) + ' ';
    seen += std::to_string(session.Screen.optDownPayment) + (session.Screen.chkDoTax0 ? "t" : "f") +
            (session.Screen.PctDownConverted ? "c" : "p");
    return seen + session.ChosenHouse.Name + (session.Scenario.EEMNoticeFlag ? '1' : '0') +
           std::to_string(session.Scenario.EEMAllowance);
}

class EntryHistoryTest : public Testing::EntryDesk {
protected:
    EntryHistoryTest() { m_history.Restart(m_session); }

    void Enter(const EntryRule& rule, const std::string& text) {
        Module1::SetFieldText(m_session, Screen().*rule.Member, text);
        Module1::LeaveField(m_context, Screen().*rule.Member, rule.Format, rule.After);
        m_history.Note(m_session);
    }

    const EntryRule& RuleOf(Field MainScreen::*member) {
        const auto rules = MainEntryRules();
        return *std::find_if(rules.begin(), rules.end(),
                             [member](const EntryRule& rule) { return rule.Member == member; });
    }

    std::size_t Any(std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(m_random);
    }

    /// One entry as a hand makes it.
    void EnterAnything() {
        const std::vector<std::string> amounts{"0", "150000", "212345", "3000", "20", "6.125", "12%", "500"};
        const std::vector<std::string> bases{"Conventional", "FHA", "VA"};
        const auto& labelled = Screen().cboGMHMortOption.Items;
        switch (Any(8)) {
        case 0:
            return Module1::ClickDownPayment(m_session, m_host, Screen().optDownPayment == 0 ? 1 : 0);
        case 1:
            return Module1::ClickTaxes(m_session, m_host, !Screen().chkDoTax0);
        case 2:
            return Module1::ClickBaseOption(m_session, m_host, bases[Any(bases.size())]);
        case 3:
            return Module1::ClickLabelledOption(m_session, m_host, labelled[Any(labelled.size())].Text);
        case 4:
            return Module1::ClickTerm(m_session, m_host, TermItems()[Any(TermItems().size())].Text);
        default:
            const auto rules = MainEntryRules();
            return Enter(rules[Any(rules.size())], amounts[Any(amounts.size())]);
        }
    }

    EntryHistory m_history;
    std::mt19937 m_random{20261122};
};

TEST_F(EntryHistoryTest, AStepIsAnEntryThatChangesAnInput) {
    EXPECT_FALSE(m_history.CanUndo());
    m_history.Note(m_session);
    EXPECT_FALSE(m_history.CanUndo());
    const EntryRule& price = RuleOf(&MainScreen::ecStdHome);
    Enter(price, "210000");
    Enter(price, "210000");
    ASSERT_TRUE(m_history.CanUndo());
    m_history.Undo(m_session);
    EXPECT_EQ(Screen().ecStdHome.Text, "$200,000");
    EXPECT_FALSE(m_history.CanUndo());
    m_history.Redo(m_session);
    EXPECT_EQ(Screen().ecStdHome.Text, "$210,000");
    EXPECT_FALSE(m_history.CanRedo());
    m_history.Redo(m_session);
    EXPECT_EQ(Screen().ecStdHome.Text, "$210,000");
}

TEST_F(EntryHistoryTest, AnEntryAfterAnUndoReplacesWhatWasUndone) {
    const EntryRule& price = RuleOf(&MainScreen::ecStdHome);
    Enter(price, "210000");
    Enter(price, "220000");
    m_history.Undo(m_session);
    m_history.Undo(m_session);
    Enter(price, "230000");
    EXPECT_FALSE(m_history.CanRedo());
    m_history.Undo(m_session);
    EXPECT_EQ(Screen().ecStdHome.Text, "$200,000");
}

TEST_F(EntryHistoryTest, ATabIsNotAStepAndStays) {
    Enter(RuleOf(&MainScreen::ecStdHome), "210000");
    Module1::ClickTab(m_session, m_host, 3);
    m_history.Note(m_session);
    m_history.Undo(m_session);
    EXPECT_EQ(Screen().SSTab1, 3);
    EXPECT_FALSE(m_history.CanUndo());
}

TEST_F(EntryHistoryTest, FiguresGoByTheRulesOfNow) {
    Module1::Recalculate(m_session, m_host);
    m_history.Restart(m_session);
    Enter(RuleOf(&MainScreen::ecIncome), "90000");
    m_session.Assumptions.RealEstateTaxPct *= 2;
    m_session.From.reset();
    const float before = m_session.StdCase.TaxMonthly;
    m_history.Undo(m_session);
    EXPECT_FLOAT_EQ(m_session.StdCase.TaxMonthly, 2 * before);
}

TEST_F(EntryHistoryTest, AnySequenceUndoneIsTheStartAndRedoneTheEnd) {
    Module1::Recalculate(m_session, m_host);
    for (int round = 0; round < 60; ++round) {
        m_history.Restart(m_session);
        const std::string start = Seen(m_session);
        for (int entry = 0; entry < 25; ++entry) {
            EnterAnything();
            m_history.Note(m_session);
        }
        const std::string end = Seen(m_session);
        int steps = 0;
        for (; m_history.CanUndo(); ++steps)
            m_history.Undo(m_session);
        ASSERT_EQ(Seen(m_session), start) << "round " << round;
        ForgetLog();
        for (int step = 0; step < steps; ++step)
            m_history.Redo(m_session);
        ASSERT_EQ(Seen(m_session), end) << "round " << round;
        EXPECT_EQ(m_log, Log{}) << "a message was shown again";
    }
}

} // namespace
} // namespace Ledgrove
