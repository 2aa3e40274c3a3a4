#include "ui/AssumptionList.h"

#include "settings/NotesFile.h"
#include "tests/settings/TemporaryFolder.h"
#include "tests/ui/EntryDesk.h"
#include "ui/StartUp.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace Ledgrove {
namespace {

using namespace std::chrono_literals;
using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

/// A program with the shipped settings.
class AssumptionListTest : public SettingsTest {
protected:
    AssumptionListTest() { Start(*ReadBytes(LEDGROVE_SOURCE_DIR "/data/Ledgrove.ini")); }

    void Start(std::string_view settings) {
        Given(settings);
        EXPECT_FALSE(Module1::LoadMainScreen(m_session, m_host, Folder()));
    }

    void Changed(std::string_view line, std::string_view by) {
        std::string bytes = Bytes();
        Start(bytes.replace(bytes.find(line), line.size(), by));
    }

    Sheet All() const {
        return AssumptionSheet(AllAssumptionKeys(), m_session, m_years.value_or(m_session.Years),
                               *File().ReadLines(), 2026y / 11 / 22);
    }

    /// The row's texts: name, value, date, source, remark.
    std::vector<std::string> Row(const std::string& name) const {
        std::vector<std::string> texts;
        for (const auto& row : All().Rows)
            if (row.front().Text == name)
                for (const SheetCell& cell : row)
                    texts.push_back(cell.Text);
        EXPECT_THAT(texts, SizeIs(5)) << name;
        texts.resize(5);
        return texts;
    }

    Session m_session;
    std::optional<YearSettings> m_years;
    Testing::ScriptedHost m_host;
};

TEST_F(AssumptionListTest, EveryAssumptionIsThereInWords) {
    const Sheet sheet = All();
    ASSERT_THAT(sheet.Rows, SizeIs(NotedKeys.size()));
    for (const auto& row : sheet.Rows) {
        EXPECT_FALSE(row[0].Text.empty());
        EXPECT_FALSE(row[1].Text.empty()) << row[0].Text;
        EXPECT_FALSE(row[3].Text.empty()) << row[0].Text;
        // No settings key: people read it.
        for (const SheetCell& cell : row)
            EXPECT_THAT(cell.Text, Not(HasSubstr("_")));
    }
}

TEST_F(AssumptionListTest, AValueHasDateSourceAndAge) {
    EXPECT_THAT(Row("PMI a year, less than 5% down"),
                testing::ElementsAre("PMI a year, less than 5% down", "0.87% of the loan", "2018-07-09",
                                     "a published rate card, for a credit score of 720 to 739",
                                     "older than two years"));
    EXPECT_EQ(Row("Standard deduction")[1], "$32,200");
    EXPECT_EQ(Row("Standard deduction")[2], "2026");
    EXPECT_EQ(Row("Standard deduction")[4], "");
    EXPECT_EQ(Row("Real estate tax a year")[1], "0.90% of the price");
    EXPECT_EQ(Row("Years in the home")[1], "7");
    EXPECT_THAT(Row("Income tax rates")[1], AllOf(HasSubstr("10% to $57,000"), HasSubstr("35% above")));
    EXPECT_THAT(Row("Qualifying ratios of the loan types")[1], HasSubstr("FHA EEM 33% and 45%"));
}

TEST_F(AssumptionListTest, TheUsersOwnHasNeitherDateNorSource) {
    Changed("PMI_MULT1=0.0087", "PMI_MULT1=0.0050");
    EXPECT_THAT(
        Row("PMI a year, less than 5% down"),
        testing::ElementsAre("PMI a year, less than 5% down", "0.50% of the loan", "", "", "your own"));
}

TEST_F(AssumptionListTest, WhatIsTriedIsNotKept) {
    m_years = m_session.Years;
    m_years->Appreciation = 0.03;
    EXPECT_THAT(Row("Growth of home prices, a year"),
                testing::ElementsAre("Growth of home prices, a year", "3.00%", "", "",
                                     "your own, tried and not kept"));
}

TEST_F(AssumptionListTest, WithoutANoteNoSourceIsKnown) {
    Start("PMI_MULT1=0.01\r\n");
    EXPECT_THAT(Row("PMI a year, less than 5% down"),
                testing::ElementsAre("PMI a year, less than 5% down", "1.00% of the loan", "", "",
                                     "no source is noted"));
}

TEST_F(AssumptionListTest, AnAnswerUsesOnlySome) {
    EXPECT_THAT(KeysUsedBy(InsightQuestion::HowFar), Not(Contains("GROWTH_UTILITIES")));
    EXPECT_THAT(KeysUsedBy(InsightQuestion::TaxSaving),
                AllOf(Contains("DEDUCTION_OTHER"), Contains("TAXCAT")));
    EXPECT_THAT(
        KeysUsedBy(InsightQuestion::Sale),
        AllOf(Contains("EXIT_SELLING_COST"), Contains("GROWTH_HOME"), Not(Contains("DEDUCTION_OTHER"))));
    EXPECT_THAT(KeysUsedBy(InsightQuestion::Assumed), SizeIs(NotedKeys.size()));
    m_session.Assumptions.UsePVVars = false;
    EXPECT_THAT(KeysUsedBy({InsightQuestion::HowFar}, m_session), Not(Contains("PVSAVINGS_RATE")));
    m_session.Assumptions.UsePVVars = true;
    EXPECT_THAT(KeysUsedBy({InsightQuestion::HowFar}, m_session), Contains("PVSAVINGS_RATE"));
}

} // namespace
} // namespace Ledgrove
