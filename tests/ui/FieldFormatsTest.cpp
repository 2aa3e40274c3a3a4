#include "ui/FieldFormats.h"

#include <gtest/gtest.h>

namespace Ledgrove::Module1 {

namespace {

struct FormatRow {
    const char *Type, *Typed, *Shown;
};

void PrintTo(const FormatRow& row, std::ostream* out) {
    *out << row.Type << " \"" << row.Typed << '"';
}

class FieldFormats : public testing::TestWithParam<FormatRow> {};

TEST_P(FieldFormats, ShowTypedValues) {
    EXPECT_EQ(FormatFieldText(GetParam().Typed, GetParam().Type), GetParam().Shown);
}

INSTANTIATE_TEST_SUITE_P(Dollar, FieldFormats,
                         testing::Values(FormatRow{"Dollar", "150000", "$150,000"},
                                         FormatRow{"Dollar", "$150,000", "$150,000"},
                                         FormatRow{"Dollar", "0", "$0"}, FormatRow{"Dollar", "999.4", "$999"},
                                         FormatRow{"Dollar", "999.5", "$1,000"},
                                         FormatRow{"Dollar", "1234567", "$1,234,567"},
                                         FormatRow{"Dollar", "5%", "$5"}, FormatRow{"Dollar", "-5", "-$5"}));

INSTANTIATE_TEST_SUITE_P(
    IntRate, FieldFormats,
    testing::Values(FormatRow{"IntRate", "6.5", "6.500%"}, FormatRow{"IntRate", "6.5%", "6.500%"},
                    FormatRow{"IntRate", "0.065", "0.065%"}, FormatRow{"IntRate", ".5", "0.500%"},
                    FormatRow{"IntRate", "6.1235", "6.124%"}, FormatRow{"IntRate", "12", "12.000%"},
                    FormatRow{"IntRate", "6%.5%", "6.500%"}));

INSTANTIATE_TEST_SUITE_P(
    Percent, FieldFormats,
    testing::Values(FormatRow{"Percent", "0.05", "5.00%"}, FormatRow{"Percent", "5", "5.00%"},
                    FormatRow{"Percent", "0.5%", "0.50%"}, FormatRow{"Percent", "7", "7.00%"},
                    FormatRow{"Percent", "0.07", "7.00%"}, FormatRow{"Percent", "0.07%", "0.07%"},
                    FormatRow{"Percent", "0.9999", "99.99%"}, FormatRow{"Percent", "1", "1.00%"},
                    FormatRow{"Percent", "%0.5", "0.50%"}, FormatRow{"Percent", "0", "0.00%"},
                    FormatRow{"Percent", "20000", "20000.00%"}));

INSTANTIATE_TEST_SUITE_P(
    Percent2, FieldFormats,
    testing::Values(FormatRow{"Percent2", "0.005", "0.50%"}, FormatRow{"Percent2", "0.5", "0.50%"},
                    FormatRow{"Percent2", "0.25", "0.25%"}, FormatRow{"Percent2", "0.0025", "0.25%"},
                    FormatRow{"Percent2", "0.01", "0.01%"}, FormatRow{"Percent2", "0.0099", "0.99%"},
                    FormatRow{"Percent2", "0.005%", "0.50%"}, FormatRow{"Percent2", "12", "12.00%"},
                    FormatRow{"Percent2", "0", "0.00%"}));

INSTANTIATE_TEST_SUITE_P(Either, FieldFormats,
                         testing::Values(FormatRow{"Either", "0.1", "10.0%"},
                                         FormatRow{"Either", "2500", "$2,500"},
                                         FormatRow{"Either", "0.999", "99.9%"},
                                         FormatRow{"Either", "1", "$1"}, FormatRow{"Either", "0.1%", "10.0%"},
                                         FormatRow{"Either", "10.0%", "$10"},
                                         FormatRow{"Either", "0", "0.0%"}));

INSTANTIATE_TEST_SUITE_P(
    Either2, FieldFormats,
    testing::Values(FormatRow{"Either2", "0.005", "0.50%"}, FormatRow{"Either2", "0.5", "0.50%"},
                    FormatRow{"Either2", "2500", "$2,500"}, FormatRow{"Either2", "0.0099", "0.99%"},
                    FormatRow{"Either2", "0.01", "0.01%"}, FormatRow{"Either2", "0.99", "0.99%"},
                    FormatRow{"Either2", "1", "$1"}, FormatRow{"Either2", "0.005%", "0.50%"},
                    FormatRow{"Either2", "0", "0.00%"}));

INSTANTIATE_TEST_SUITE_P(Whole, FieldFormats,
                         testing::Values(FormatRow{"Whole", "1200", "1,200"},
                                         FormatRow{"Whole", "1,200", "1,200"}, FormatRow{"Whole", "7.5", "8"},
                                         FormatRow{"Whole", "12%", "0"}, FormatRow{"Whole", "0", "0"}));

INSTANTIATE_TEST_SUITE_P(WholePercent, FieldFormats,
                         testing::Values(FormatRow{"WholePercent", "28", "28.00%"},
                                         FormatRow{"WholePercent", "28.00%", "28.00%"},
                                         FormatRow{"WholePercent", "0.28", "0.28%"},
                                         FormatRow{"WholePercent", "150", "150.00%"}));

INSTANTIATE_TEST_SUITE_P(TextLeftAsTyped, FieldFormats,
                         testing::Values(FormatRow{"String", " Larger deck % ", " Larger deck % "},
                                         FormatRow{"String", "", ""},
                                         FormatRow{"SmallPercent", "0.25", "0.25"},
                                         FormatRow{"SmallPercent", "1%", "1%"}, FormatRow{"dollar", "5", "5"},
                                         FormatRow{"", "5", "5"}, FormatRow{"Dollar ", "5", "5"}));

INSTANTIATE_TEST_SUITE_P(NoNumberIsZero, FieldFormats,
                         testing::Values(FormatRow{"Dollar", "abc", "$0"}, FormatRow{"Dollar", "", "$0"},
                                         FormatRow{"IntRate", "1e3", "0.000%"},
                                         FormatRow{"Percent", "(5)", "0.00%"},
                                         FormatRow{"Percent2", "x", "0.00%"},
                                         FormatRow{"Either", "x", "0.0%"}, FormatRow{"Either2", "x", "0.00%"},
                                         FormatRow{"Whole", "5 000", "0"},
                                         FormatRow{"WholePercent", "%", "0.00%"}));

// A field accepts the text that a picture format makes and keeps it unchanged. Exceptions are "Either" and
// "Either2", where a shown percentage is read as a small amount.
TEST(FieldFormats, ShowTheirOwnTextsUnchanged) {
    for (const char* type : {"Dollar", "IntRate", "Percent", "Percent2", "Whole", "WholePercent"})
        for (const char* typed : {"0", "0.5", "7", "1234.5", "150000"}) {
            const std::string shown = FormatFieldText(typed, type);
            EXPECT_EQ(FormatFieldText(shown, type), shown) << type << ' ' << typed;
        }
}

} // namespace

} // namespace Ledgrove::Module1
