#include "engine/NumberText.h"

#include "tests/ReferenceTable.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

namespace {

using namespace Ledgrove::Module1;

struct Reading {
    const char* Text;
    std::optional<double> Value;
};

class ReadNumberRows : public testing::TestWithParam<Reading> {};

TEST_P(ReadNumberRows, ReadsTypedNumbers) {
    EXPECT_EQ(ReadNumber(GetParam().Text), GetParam().Value);
}

INSTANTIATE_TEST_SUITE_P(Numbers, ReadNumberRows,
                         testing::Values(Reading{"0", 0.0}, Reading{"72000", 72000.0},
                                         Reading{"$150,000", 150000.0}, Reading{" 5 ", 5.0},
                                         Reading{"\t5", 5.0}, Reading{".5", 0.5}, Reading{"5.", 5.0},
                                         Reading{"+5", 5.0}, Reading{"-5", -5.0}, Reading{"-$5", -5.0},
                                         Reading{"$-5", -5.0}, Reading{"+$5", 5.0}, Reading{"$+5", 5.0},
                                         Reading{"1,2,3", 123.0}, Reading{"1,", 1.0}, Reading{"1,,0", 10.0},
                                         Reading{"1,234.56", 1234.56}, Reading{"1,.5", 1.5},
                                         Reading{"0.0000001", 1e-7}, Reading{"007", 7.0},
                                         Reading{"340000000000000000000000000000000000000", 3.4e38}));

INSTANTIATE_TEST_SUITE_P(
    NoNumbers, ReadNumberRows,
    testing::Values(Reading{"", std::nullopt}, Reading{" ", std::nullopt}, Reading{"abc", std::nullopt},
                    Reading{"1e3", std::nullopt}, Reading{"1E3", std::nullopt}, Reading{"1d3", std::nullopt},
                    Reading{"0x10", std::nullopt}, Reading{"&H10", std::nullopt},
                    Reading{"inf", std::nullopt}, Reading{"nan", std::nullopt}, Reading{"(5)", std::nullopt},
                    Reading{"5-", std::nullopt}, Reading{"5$", std::nullopt}, Reading{"5 000", std::nullopt},
                    Reading{"$ 5", std::nullopt}, Reading{"- 5", std::nullopt},
                    Reading{"1.2.3", std::nullopt}, Reading{"5..", std::nullopt},
                    Reading{"--5", std::nullopt}, Reading{"-+5", std::nullopt}, Reading{"$$5", std::nullopt},
                    Reading{",5", std::nullopt}, Reading{"$,5", std::nullopt}, Reading{".5,0", std::nullopt},
                    Reading{".", std::nullopt}, Reading{"$", std::nullopt}, Reading{"-", std::nullopt},
                    Reading{"5%", std::nullopt}, Reading{"5\xC2\xA0", std::nullopt},
                    Reading{"350000000000000000000000000000000000000", std::nullopt}));

TEST(ReadNumber, AcceptsManyDecimalPlaces) {
    EXPECT_EQ(ReadNumber("0." + std::string(400, '0') + "1"), 0.0);
    EXPECT_EQ(ReadNumber(std::string(400, '0') + "7"), 7.0);
    EXPECT_EQ(ReadNumber(std::string(400, '9')), std::nullopt);
}

TEST(StripPercent, RemovesEveryPercentAndKeepsTheRestInOrder) {
    EXPECT_EQ(StripPercent("%1%2 3%"), "12 3");
    EXPECT_EQ(StripPercent(""), "");
}

TEST(ParseFieldValue, DividesAndRoundsToSingle) {
    EXPECT_EQ(ParseFieldValue("6.5%", 100), 0.065F);
    EXPECT_EQ(ParseFieldValue("$206,000", 1), 206000.0F);
    EXPECT_EQ(ParseFieldValue("5 %", 100), 0.05F);
    EXPECT_EQ(ParseFieldValue("-5", 1), -5.0F);
}

TEST(ParseFieldValue, AnUnreadableTextIsZero) {
    EXPECT_EQ(ParseFieldValue("", 1), 0.0F);
    EXPECT_EQ(ParseFieldValue("abc", 100), 0.0F);
    EXPECT_EQ(ParseFieldValue(std::string(60, '9'), 1), 0.0F);
}

TEST(PlainText, HasSevenDigitsAtMostAndNoExponent) {
    EXPECT_EQ(PlainText(1.5F), "1.5");
    EXPECT_EQ(PlainText(0.0F), "0");
    EXPECT_EQ(PlainText(0.0087F), "0.0087");
    EXPECT_EQ(PlainText(-1.0F), "-1");
    EXPECT_EQ(PlainText(0.12345678F), "0.1234568");
    EXPECT_EQ(PlainText(123456792.0F), "123456800");
    EXPECT_EQ(PlainText(0.00001F), "0.00001");
}

TEST(ShortestText, ReadsBackAsTheSameSingle) {
    EXPECT_EQ(ShortestText(45200.0F), "45200");
    EXPECT_EQ(ShortestText(39.6F), "39.6");
    EXPECT_EQ(ShortestText(-1.0F), "-1");
    EXPECT_EQ(ShortestText(16777216.0F), "16777216");
    EXPECT_EQ(ShortestText(0.0F), "0");
}

// 5,440 rows on which two independent programs agree.
TEST(FormatPicture, AgreesWithIndependentImplementations) {
    const auto rows = Ledgrove::Testing::ReadReferenceTable("pictures.csv");
    ASSERT_EQ(rows.size(), 5440U);
    for (const auto& row : rows)
        ASSERT_EQ(FormatPicture(std::stod(row[1]), std::string_view(row[0])), row[2])
            << row[1] << " with the format " << row[0];
}

TEST(FormatPicture, RoundsTheDecimalValueWithFifteenDigits) {
    EXPECT_EQ(FormatPicture(1.005, "#0.00"), "1.01"); // the double is 1.00499999999999989...
    EXPECT_EQ(FormatPicture(0.5, "#0"), "1");
    EXPECT_EQ(FormatPicture(-0.5, "$#,##0"), "-$1");
    EXPECT_EQ(FormatPicture(-0.49, "$#,##0"), "$0");
}

TEST(FormatPicture, UsesTheShortestDecimalTextOfASingle) {
    EXPECT_EQ(FormatPicture(0.2825F, "##0.000"), "0.283"); // as a double, 0.28249999880790710
    EXPECT_EQ(FormatPicture(8.5F, ".0"), "8.5");
}

TEST(FormatPicture, ShowsALargeSingleWithItsOwnDigits) {
    EXPECT_EQ(FormatPicture(133666432.0F, "$##,###,##0"), "$133,666,432");
    EXPECT_EQ(FormatPicture(16777216.0F, "$##,###,##0"), "$16,777,216");
}

TEST(FormatPicture, IsEmptyForNonFiniteNumbers) {
    EXPECT_EQ(FormatPicture(std::numeric_limits<double>::infinity(), "#0"), "");
    EXPECT_EQ(FormatPicture(std::numeric_limits<float>::quiet_NaN(), "#0"), "");
}

TEST(MoneyText, ShowsWholeDollarsWithGrouping) {
    EXPECT_EQ(MoneyText(0), "$0");
    EXPECT_EQ(MoneyText(1465.4F), "$1,465");
    EXPECT_EQ(MoneyText(999.5F), "$1,000");
    EXPECT_EQ(MoneyText(-48.0F), "-$48");
    EXPECT_EQ(MoneyText(-0.4F), "$0");
    EXPECT_EQ(MoneyText(-0.5F), "-$1");
    EXPECT_EQ(MoneyText(4194303.5F), "$4,194,304");
    EXPECT_EQ(MoneyText(4194304.0F), "$4,194,304");
    EXPECT_EQ(MoneyText(12345678.0F), "$12,345,678");
}

TEST(MoneyText, NeverFails) {
    EXPECT_EQ(MoneyText(std::numeric_limits<float>::infinity()), "FormatError");
    EXPECT_EQ(MoneyText(std::numeric_limits<float>::quiet_NaN()), "FormatError");
}

std::string Cents(float amount) {
    std::string text = "x";
    AppendCents(amount, text);
    return text.substr(1);
}

TEST(NumberTextTest, CentsAreAppended) {
    EXPECT_EQ(Cents(0.0F), "0.00");
    EXPECT_EQ(Cents(1137.7224F), "1137.72");
    EXPECT_EQ(Cents(-48.005F), "-48.01"); // the decimal text counts, and half a cent rounds away from zero
    EXPECT_EQ(Cents(1.005F), "1.01");
    EXPECT_EQ(Cents(-0.004F), "0.00");
    EXPECT_EQ(Cents(0.125F), "0.13");
    EXPECT_EQ(Cents(999.995F), "1000.00");
    EXPECT_EQ(Cents(180000.0F), "180000.00");
    EXPECT_EQ(Cents(200000.1F), "200000.10"); // the single-precision value is 200000.09375
    EXPECT_EQ(Cents(3e20F), FormatPicture(3e20F, "0.00"));
}

/// The fast path must give the same result as the general path.
TEST(NumberTextTest, CentsMatchThePictureFormat) {
    std::uint32_t bits = 1;
    for (int round = 0; round < 200000; ++round) {
        bits = bits * 1664525U + 1013904223U;
        const float share = static_cast<float>(bits >> 8U) / 16777216.0F;
        for (const float top : {1.0F, 300.0F, 20000.0F, 140000.0F, 900000.0F}) {
            const float amount = (share - 0.5F) * top;
            ASSERT_EQ(Cents(amount), FormatPicture(amount, "0.00")) << amount;
            const float halfCent = std::round(amount * 100) / 100 + 0.005F;
            ASSERT_EQ(Cents(halfCent), FormatPicture(halfCent, "0.00")) << halfCent;
        }
    }
}

// The pairs that the header promises and that no row above holds.
TEST(NumberText, KeepsThePairsOfItsContract) {
    EXPECT_EQ(ReadNumber("$1,234.50"), 1234.5);
    EXPECT_EQ(ReadNumber(" -$5 "), -5.0);
    EXPECT_EQ(ReadNumber("$-5"), -5.0);
    EXPECT_EQ(ReadNumber("+5"), 5.0);
    EXPECT_EQ(ReadNumber("$"), std::nullopt);
    EXPECT_EQ(StripPercent("6%.5%"), "6.5");
    EXPECT_EQ(ReadStrippedNumber("6.5%"), 6.5);
    EXPECT_EQ(ReadStrippedNumber("%"), std::nullopt);
    EXPECT_EQ(ParseFieldValue("6.5%", 100), 0.065F);
    EXPECT_EQ(ParseFieldValue("$72,000", 1), 72000);
    EXPECT_EQ(ParseFieldValue("abc", 1), 0);
    EXPECT_EQ(PlainText(16777216), "16777220");
    EXPECT_EQ(ShortestText(-2.5F), "-2.5");
    EXPECT_EQ(FormatPicture(1234.5, "$#,##0"), "$1,235");
    EXPECT_EQ(FormatPicture(-0.4, "$#,##0"), "$0");
    EXPECT_EQ(FormatPicture(0.0, "#"), "");
    EXPECT_EQ(FormatPicture(-1234.0, "###,##0"), "-1,234");
    EXPECT_EQ(FormatPicture(0.125, "0.00"), "0.13");
    EXPECT_EQ(FormatPicture(0.145F, "0.00"), "0.15"); // 0.144999996 as a double
    EXPECT_EQ(MoneyText(1465.06F), "$1,465");
    EXPECT_EQ(MoneyText(-47.97F), "-$48");
}

} // namespace
