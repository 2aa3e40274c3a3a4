#include "ui/FieldFormats.h"

#include <gtest/gtest.h>

#include "ui/Entry.h"

namespace Ledgrove::Module1 {

namespace {

struct FormatRow {
    FieldFormat Format;
    const char *Typed, *Shown;
};

void PrintTo(const FormatRow& row, std::ostream* out) {
    *out << "format " << static_cast<int>(row.Format) << " \"" << row.Typed << '"';
}

class FieldFormats : public testing::TestWithParam<FormatRow> {};

TEST_P(FieldFormats, ShowTypedValues) {
    EXPECT_EQ(FormatFieldText(GetParam().Typed, GetParam().Format), GetParam().Shown);
}

INSTANTIATE_TEST_SUITE_P(Dollar, FieldFormats,
                         testing::Values(FormatRow{FieldFormat::Dollar, "150000", "$150,000"},
                                         FormatRow{FieldFormat::Dollar, "$150,000", "$150,000"},
                                         FormatRow{FieldFormat::Dollar, "0", "$0"},
                                         FormatRow{FieldFormat::Dollar, "999.4", "$999"},
                                         FormatRow{FieldFormat::Dollar, "999.5", "$1,000"},
                                         FormatRow{FieldFormat::Dollar, "1234567", "$1,234,567"},
                                         FormatRow{FieldFormat::Dollar, "5%", "$5"},
                                         FormatRow{FieldFormat::Dollar, "-5", "-$5"}));

INSTANTIATE_TEST_SUITE_P(IntRate, FieldFormats,
                         testing::Values(FormatRow{FieldFormat::IntRate, "6.5", "6.500%"},
                                         FormatRow{FieldFormat::IntRate, "6.5%", "6.500%"},
                                         FormatRow{FieldFormat::IntRate, "0.065", "0.065%"},
                                         FormatRow{FieldFormat::IntRate, ".5", "0.500%"},
                                         FormatRow{FieldFormat::IntRate, "6.1235", "6.124%"},
                                         FormatRow{FieldFormat::IntRate, "12", "12.000%"},
                                         FormatRow{FieldFormat::IntRate, "6%.5%", "6.500%"}));

INSTANTIATE_TEST_SUITE_P(Percent, FieldFormats,
                         testing::Values(FormatRow{FieldFormat::Percent, "0.05", "5.00%"},
                                         FormatRow{FieldFormat::Percent, "5", "5.00%"},
                                         FormatRow{FieldFormat::Percent, "0.5%", "0.50%"},
                                         FormatRow{FieldFormat::Percent, "7", "7.00%"},
                                         FormatRow{FieldFormat::Percent, "0.07", "7.00%"},
                                         FormatRow{FieldFormat::Percent, "0.07%", "0.07%"},
                                         FormatRow{FieldFormat::Percent, "0.9999", "99.99%"},
                                         FormatRow{FieldFormat::Percent, "1", "1.00%"},
                                         FormatRow{FieldFormat::Percent, "%0.5", "0.50%"},
                                         FormatRow{FieldFormat::Percent, "0", "0.00%"},
                                         FormatRow{FieldFormat::Percent, "20000", "20000.00%"}));

INSTANTIATE_TEST_SUITE_P(Percent2, FieldFormats,
                         testing::Values(FormatRow{FieldFormat::Percent2, "0.005", "0.50%"},
                                         FormatRow{FieldFormat::Percent2, "0.5", "0.50%"},
                                         FormatRow{FieldFormat::Percent2, "0.25", "0.25%"},
                                         FormatRow{FieldFormat::Percent2, "0.0025", "0.25%"},
                                         FormatRow{FieldFormat::Percent2, "0.01", "0.01%"},
                                         FormatRow{FieldFormat::Percent2, "0.0099", "0.99%"},
                                         FormatRow{FieldFormat::Percent2, "0.005%", "0.50%"},
                                         FormatRow{FieldFormat::Percent2, "12", "12.00%"},
                                         FormatRow{FieldFormat::Percent2, "0", "0.00%"}));

INSTANTIATE_TEST_SUITE_P(Either, FieldFormats,
                         testing::Values(FormatRow{FieldFormat::Either, "0.1", "10.0%"},
                                         FormatRow{FieldFormat::Either, "2500", "$2,500"},
                                         FormatRow{FieldFormat::Either, "0.999", "99.9%"},
                                         FormatRow{FieldFormat::Either, "1", "$1"},
                                         FormatRow{FieldFormat::Either, "0.1%", "10.0%"},
                                         FormatRow{FieldFormat::Either, "10.0%", "$10"},
                                         FormatRow{FieldFormat::Either, "0", "0.0%"}));

INSTANTIATE_TEST_SUITE_P(Either2, FieldFormats,
                         testing::Values(FormatRow{FieldFormat::Either2, "0.005", "0.50%"},
                                         FormatRow{FieldFormat::Either2, "0.5", "0.50%"},
                                         FormatRow{FieldFormat::Either2, "2500", "$2,500"},
                                         FormatRow{FieldFormat::Either2, "0.0099", "0.99%"},
                                         FormatRow{FieldFormat::Either2, "0.01", "0.01%"},
                                         FormatRow{FieldFormat::Either2, "0.99", "0.99%"},
                                         FormatRow{FieldFormat::Either2, "1", "$1"},
                                         FormatRow{FieldFormat::Either2, "0.005%", "0.50%"},
                                         FormatRow{FieldFormat::Either2, "0", "0.00%"}));

INSTANTIATE_TEST_SUITE_P(Whole, FieldFormats,
                         testing::Values(FormatRow{FieldFormat::Whole, "1200", "1,200"},
                                         FormatRow{FieldFormat::Whole, "1,200", "1,200"},
                                         FormatRow{FieldFormat::Whole, "7.5", "8"},
                                         FormatRow{FieldFormat::Whole, "12%", "0"},
                                         FormatRow{FieldFormat::Whole, "0", "0"}));

INSTANTIATE_TEST_SUITE_P(WholePercent, FieldFormats,
                         testing::Values(FormatRow{FieldFormat::WholePercent, "28", "28.00%"},
                                         FormatRow{FieldFormat::WholePercent, "28.00%", "28.00%"},
                                         FormatRow{FieldFormat::WholePercent, "0.28", "0.28%"},
                                         FormatRow{FieldFormat::WholePercent, "150", "150.00%"}));

INSTANTIATE_TEST_SUITE_P(TextLeftAsTyped, FieldFormats,
                         testing::Values(FormatRow{FieldFormat::String, " Larger deck % ", " Larger deck % "},
                                         FormatRow{FieldFormat::String, "", ""},
                                         FormatRow{FieldFormat::SmallPercent, "0.25", "0.25"},
                                         FormatRow{FieldFormat::SmallPercent, "1%", "1%"}));

INSTANTIATE_TEST_SUITE_P(NoNumberIsZero, FieldFormats,
                         testing::Values(FormatRow{FieldFormat::Dollar, "abc", "$0"},
                                         FormatRow{FieldFormat::Dollar, "", "$0"},
                                         FormatRow{FieldFormat::IntRate, "1e3", "0.000%"},
                                         FormatRow{FieldFormat::Percent, "(5)", "0.00%"},
                                         FormatRow{FieldFormat::Percent2, "x", "0.00%"},
                                         FormatRow{FieldFormat::Either, "x", "0.0%"},
                                         FormatRow{FieldFormat::Either2, "x", "0.00%"},
                                         FormatRow{FieldFormat::Whole, "5 000", "0"},
                                         FormatRow{FieldFormat::WholePercent, "%", "0.00%"}));

// A field accepts the text that a picture format makes and keeps it unchanged. Exceptions are "Either" and
// "Either2", where a shown percentage is read as a small amount.
TEST(FieldFormats, ShowTheirOwnTextsUnchanged) {
    for (const FieldFormat format : {FieldFormat::Dollar, FieldFormat::IntRate, FieldFormat::Percent,
                                     FieldFormat::Percent2, FieldFormat::Whole, FieldFormat::WholePercent})
        for (const char* typed : {"0", "0.5", "7", "1234.5", "150000"}) {
            const std::string shown = FormatFieldText(typed, format);
            EXPECT_EQ(FormatFieldText(shown, format), shown) << static_cast<int>(format) << ' ' << typed;
        }
}

// The price list enters texts with one call for both.
TEST(FieldFormats, OneReadingGivesTheComplaintOrTheText) {
    for (const FieldFormat format :
         {FieldFormat::Dollar, FieldFormat::IntRate, FieldFormat::Percent, FieldFormat::Percent2,
          FieldFormat::Either, FieldFormat::Either2, FieldFormat::Whole, FieldFormat::WholePercent,
          FieldFormat::String, FieldFormat::SmallPercent}) {
        for (const char* typed : {"0", "12.5", "$1,234.50", "0.5%", "%", "-3", "-3%", "abc", " 7 ", "1e5"}) {
            const FieldReading reading = ReadFieldText(typed, format);
            EXPECT_EQ(reading.Complaint, FieldComplaint(typed, format)) << typed;
            EXPECT_EQ(reading.Text, reading.Complaint.empty() ? FormatFieldText(typed, format) : "") << typed;
        }
    }
}

} // namespace

} // namespace Ledgrove::Module1
