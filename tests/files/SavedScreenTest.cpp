#include "FileDesk.h"
#include "app/files/ComparisonFile.h"
#include "engine/NumberText.h"
#include "tests/engine/RandomComparisons.h"
#include "ui/Entry.h"
#include "ui/HouseScenarios.h"
#include "ui/MainScreenRules.h"

#include <gtest/gtest.h>

// A saved comparison opens as the screen that was saved, whatever was entered before, in whatever order.
namespace Ledgrove {
namespace {

using Testing::Random;

/// Nobody asks for the focus: entries are left without a window.
class NoFocus : public EntryFocus {
public:
    std::string FocusedControl() const override { return "ecIncome"; }
    void ReturnFocusTo(const Field&) override {}
    void SelectFieldText() override {}
    void NextField() override {}
    void PreviousField() override {}
};

/// Everything that the main screen shows, and how it will treat the next entry. The More Home tab shows the
/// features anew each time.
std::vector<std::string> Shown(Session session) {
    Module1::RefreshFeatureCaptions(session);
    const MainScreen& screen = session.Screen;
    std::vector<std::string> shown;
    const auto add = [&shown](std::string_view name, std::string_view text) {
        shown.push_back(std::string(name) + ": " + std::string(text));
    };
    for (const auto& [name, member] : FieldTable())
        add(name, (screen.*member).Text + ((screen.*member).Colour == TextColour::Grey ? " grey" : ""));
    for (const auto& [name, member] : PickListTable())
        add(name, (screen.*member).Text());
    for (const auto& [name, member] : LabelTable()) {
        const Label& label = screen.*member;
        add(name,
            label.Text + (label.Colour == TextColour::Red ? " red" : "") + (label.Visible ? "" : " hidden"));
    }
    add("optDownPayment", std::to_string(screen.optDownPayment));
    add("chkDoTax0", screen.chkDoTax0 ? "on" : "off");
    const bool isAboveHundred = Module1::ParseFieldValue(screen.ecPctDown.Text, 1) > 100;
    add("PctDownConverted", isAboveHundred && screen.PctDownConverted ? "yes" : "no");
    return shown;
}

/// The lines in which two screens differ; empty if they are the same.
std::string Difference(const Session& one, const Session& other) {
    const auto first = Shown(one);
    const auto second = Shown(other);
    std::string text;
    for (std::size_t i = 0; i < first.size(); ++i) {
        if (first[i] != second[i])
            text += first[i] + " | " + second[i] + '\n';
    }
    return text;
}

class SavedScreenTest : public FileTest {
protected:
    Session Reopened(const Session& session) {
        const auto path = Folder() / "screen.ledgrove.json";
        WriteBytes(path, ComparisonText(session.Screen));
        Session opened = m_start;
        EXPECT_EQ(OpenComparison(path, opened, m_start, m_host), std::nullopt);
        return opened;
    }

    void Type(Session& session, const EntryRule& rule, std::string_view text) {
        EntryContext context{session, m_host, m_focus};
        Field& field = session.Screen.*rule.Member;
        const std::string before = field.Text;
        Module1::SetFieldText(session, field, text);
        if (Module1::LeaveField(context, field, rule.Format, rule.After) != Module1::EntryOutcome::Refused)
            return;
        // As a person does after the message.
        Module1::SetFieldText(session, field, before);
        Module1::LeaveField(context, field, rule.Format, rule.After);
    }

    void ChooseAHouse(Session& session, Random& random) {
        HouseScenarios dialog;
        dialog.Houses = {{"The Alder", 200000, 2400, 206000, 1700}, {"Lot 7", 150000, 1800, 155000, 0}};
        Module1::SelectHouse(dialog, random.Below(2));
        Module1::ChooseHouse(dialog, session);
        Module1::Recalculate(session, m_host);
    }

    void ActAtRandom(Session& session, Random& random) {
        static constexpr std::array<std::string_view, 14> texts{"25000",
                                                                "200000",
                                                                "0",
                                                                "10",
                                                                "150%",
                                                                "0.05",
                                                                "99.999",
                                                                "100.004",
                                                                "abc",
                                                                "",
                                                                "-1",
                                                                "72000.567",
                                                                "99999999999999999999999999999999999999",
                                                                "$1,234"};
        const auto rules = MainEntryRules();
        switch (random.Below(8)) {
        case 0:
            return Module1::ClickDownPayment(session, m_host, random.Below(2));
        case 1:
            return Module1::ClickTaxes(session, m_host, random.OneIn(2));
        case 2:
            return Module1::ClickTerm(session, m_host,
                                      TermItems()[static_cast<std::size_t>(random.Below(7))].Text);
        case 3:
            return Module1::ClickBaseOption(
                session, m_host, BaseOptionItems()[static_cast<std::size_t>(random.Below(3))].Text);
        case 4: {
            const auto options = session.Screen.cboGMHMortOption.Items;
            const auto chosen = static_cast<std::size_t>(random.Below(static_cast<int>(options.size())));
            return Module1::ClickLabelledOption(session, m_host, options[chosen].Text);
        }
        case 5:
            if (random.OneIn(4))
                ChooseAHouse(session, random);
            return;
        default:
            Type(session, rules[static_cast<std::size_t>(random.Below(static_cast<int>(rules.size())))],
                 random.OneOf(texts));
        }
    }

    NoFocus m_focus;
};

TEST_F(SavedScreenTest, OpensAsItWasAfterRandomEntries) {
    for (std::uint64_t seed = 0; seed < 1000; ++seed) {
        Random random(seed);
        Session session = m_start;
        for (int entry = random.Below(30); entry > 0; --entry)
            ActAtRandom(session, random);
        Session opened = Reopened(session);
        ASSERT_EQ(Difference(opened, session), "") << "seed " << seed;
        // Both screens also treat the next entry alike.
        Random sameForBoth(seed);
        ActAtRandom(opened, sameForBoth);
        sameForBoth = Random(seed);
        ActAtRandom(session, sameForBoth);
        ASSERT_EQ(Difference(opened, session), "") << "one entry after seed " << seed;
    }
}

// The order of the finding: the percentage before the price, then no price.
TEST_F(SavedScreenTest, OpensWithTheSamePercentageWhateverBecameOfThePrice) {
    Session session = m_start;
    const auto rules = MainEntryRules();
    const auto type = [&](Field MainScreen::*member, std::string_view text) {
        for (const EntryRule& rule : rules) {
            if (rule.Member == member)
                Type(session, rule, text);
        }
    };
    type(&MainScreen::ecPctDown, "25000");
    type(&MainScreen::ecStdHome, "200000");
    EXPECT_EQ(session.Screen.ecPctDown.Text, "25000.00%");
    EXPECT_EQ(Reopened(session).Screen.ecPctDown.Text, "25000.00%");
    type(&MainScreen::ecPctDown, "300000");
    EXPECT_EQ(session.Screen.ecPctDown.Text, "150.00%"); // 300,000 / 200,000
    type(&MainScreen::ecStdHome, "0");
    EXPECT_EQ(session.Screen.ecPctDown.Text, "150.00%");
    EXPECT_EQ(Reopened(session).Screen.ecPctDown.Text, "150.00%");
}

} // namespace
} // namespace Ledgrove
