#include "settings/SettingsCheck.h"

#include <gmock/gmock.h>

#include <initializer_list>

namespace Ledgrove {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

FileLines Lines(std::initializer_list<const char*> texts) {
    FileLines lines;
    for (const char* text : texts)
        lines.push_back({text, "\r\n"});
    return lines;
}

/// "line key: reason. effect" of each unusable line.
std::vector<std::string> Found(std::initializer_list<const char*> texts) {
    std::vector<std::string> found;
    for (const UnusableLine& line : UnusableLines(Lines(texts)))
        found.push_back(std::to_string(line.Line) + " " + line.Key + ": " + line.Reason + ". " + line.Effect);
    return found;
}

TEST(UnusableLines, NoneWhereEveryLineIsRead) {
    EXPECT_THAT(Found({"BUILDERNAME=", "LOGOOPTION=2", "TAXCAT=57000,10", "TAXCAT=-1,35", "ASSUMPTION1=0.90",
                       "PVSAVINGS_RATE=6.24%", "PVSAVINGS_FLAG=FALSE", "YEARS_IN_HOME=7",
                       "LOANTYPE=1,Conventional,,0.280,0.360,,,,FALSE", "HOMELIST=Alder,1,2,3,4", "",
                       "# note", "OTHER=abc"}),
                IsEmpty());
}

TEST(UnusableLines, ReadingTheAssumptionsEndsAtTheFirstTextThatIsNotANumber) {
    EXPECT_THAT(
        Found({"ASSUMPTION1=0.90", "PVSAVINGS_RATE=6.24", "ASSUMPTION2=abc", "OTHER=x", "ASSUMPTION1=1.25",
               "YEARS_IN_HOME=7", "PVSAVINGS_RATE=7"}),
        ElementsAre("3 ASSUMPTION2: is not a number. 0 is in force instead.",
                    "5 ASSUMPTION1: is not read, because reading ends at line 3. 0.9 is in force instead.",
                    "6 YEARS_IN_HOME: is not read, because reading ends at line 3. 0 is in force instead.",
                    "7 PVSAVINGS_RATE: is not read, because reading ends at line 3. 6.24 is in force "
                    "instead."));
}

TEST(UnusableLines, ARateOrAFlagDoesNotEndTheReading) {
    EXPECT_THAT(Found({"PVSAVINGS_RATE=abc", "PVSAVINGS_FLAG=true", "YEARS_IN_HOME=7"}),
                ElementsAre("1 PVSAVINGS_RATE: is not a number. 0 is in force instead.",
                            "2 PVSAVINGS_FLAG: is neither TRUE nor FALSE. FALSE is in force instead."));
}

TEST(UnusableLines, YearsBeyondTheReadersRangeEndTheReading) {
    EXPECT_THAT(Found({"YEARS_IN_HOME=32768"}),
                ElementsAre("1 YEARS_IN_HOME: is not a whole number of years. 0 is in force instead."));
}

TEST(UnusableLines, TaxBracketsEndAtTheFirstBadLine) {
    EXPECT_THAT(
        Found({"TAXCAT=57000,10", "TAXCAT=133000,abc", "TAXCAT=-1,35"}),
        ElementsAre("2 TAXCAT: does not give a high end and a rate as numbers. What is not a number "
                    "counts as 0 in this bracket.",
                    "3 TAXCAT: is not read, because reading ends at line 2. The brackets of the lines "
                    "above are in force."));
}

TEST(UnusableLines, EachBadLineOfAListIsNamed) {
    EXPECT_THAT(Found({"LOANTYPE=x,FHA,,0.3,0.4,,,,TRUE", "LOANTYPE=1,FHA,,0.3,0.4,,,,TRUE",
                       "HOMELIST=Alder,abc,2,3,4", "HOMELIST=Birch,1,x,3,4"}),
                ElementsAre(HasSubstr("1 LOANTYPE: "), HasSubstr("3 HOMELIST: "), HasSubstr("4 HOMELIST: ")));
}

TEST(UnusableLines, OnlyTheLastLogoOptionCounts) {
    EXPECT_THAT(Found({"LOGOOPTION=abc", "LOGOOPTION=1"}), IsEmpty());
    EXPECT_THAT(Found({"LOGOOPTION=1", "LOGOOPTION=7"}),
                ElementsAre("2 LOGOOPTION: is not 0, 1 or 2. 0 (no logo) is in force instead."));
}

TEST(UnusableLines, TheSentenceNamesLineAndText) {
    EXPECT_EQ(
        Sentence(UnusableLines(Lines({"", "ASSUMPTION1=abc"})).at(0)),
        "Line 2 of Ledgrove.ini, \"ASSUMPTION1=abc\", cannot be used: it is not a number. 0 is in force "
        "instead.");
}

TEST(UnusableLines, TheWarningNamesTheFirstLinesAndCountsTheRest) {
    const auto lines = UnusableLines(Lines({"HOMELIST=a,x", "HOMELIST=b,x", "HOMELIST=c,x"}));
    EXPECT_EQ(WarningOf({}, 2), "");
    EXPECT_EQ(WarningOf(lines, 2),
              Sentence(lines[0]) + "\n\n" + Sentence(lines[1]) +
                  "\n\n1 more line cannot be used; \"ledgrove-cli settings check\" lists "
                  "all of them.");
}

} // namespace
} // namespace Ledgrove
