#include "engine/Figures.h"

#include <gtest/gtest.h>

#include <set>

namespace Ledgrove {
namespace {

TEST(FiguresTest, AreInTheOrderOfTheirEnumerators) {
    ASSERT_EQ(FigureTable().size(), 63U); // 21 per record
    for (std::size_t i = 0; i < FigureTable().size(); ++i)
        EXPECT_EQ(static_cast<std::size_t>(FigureTable()[i].Id), i);
}

TEST(FiguresTest, HaveTheirOwnNames) {
    std::set<std::string_view> names;
    for (const FigureEntry& figure : FigureTable())
        EXPECT_TRUE(names.insert(figure.FullName).second) << figure.FullName;
    EXPECT_EQ(EntryOf(Figure::GMHPVSavings).FullName, "GMHCase.PVSavings");
    EXPECT_EQ(EntryOf(Figure::GMHPVSavings).Name, "PVSavings");
}

TEST(FiguresTest, AreGroupedByRecord) {
    for (const FigureRecord record : {FigureRecord::StdCase, FigureRecord::GMHCase, FigureRecord::Scenario}) {
        EXPECT_EQ(FiguresOf(record).size(), 21U);
        for (const FigureEntry& figure : FiguresOf(record))
            EXPECT_EQ(figure.Record, record) << figure.FullName;
    }
}

TEST(FiguresTest, ReadTheirOwnMember) {
    Records records;
    records.StdCase.PITI = 1;
    records.GMHCase.PITI = 2;
    records.Scenario.SavingsAfter30Years = 3;
    EXPECT_EQ(EntryOf(Figure::StdPITI).Value(records), 1);
    EXPECT_EQ(EntryOf(Figure::GMHPITI).Value(records), 2);
    EXPECT_EQ(EntryOf(Figure::SavingsAfter30Years).Value(records), 3);
    float sum = 0;
    for (const FigureEntry& figure : FigureTable())
        sum += figure.Value(records);
    EXPECT_EQ(sum, 6); // no figure reads the member of another
}

TEST(FiguresTest, HaveTheirUnits) {
    EXPECT_EQ(EntryOf(Figure::StdIntRate).Unit, FigureUnit::FractionPerYear);
    EXPECT_EQ(EntryOf(Figure::GMHPITI).Unit, FigureUnit::DollarsPerMonth);
    EXPECT_EQ(EntryOf(Figure::StdIncomeNeeded).Unit, FigureUnit::DollarsPerYear);
    EXPECT_EQ(EntryOf(Figure::PVNetCashFlow).Unit, FigureUnit::Dollars);
    EXPECT_EQ(EntryOf(Figure::MarginalTaxRate).Unit, FigureUnit::Fraction);
}

} // namespace
} // namespace Ledgrove
