#include "settings/NotesFile.h"

#include "settings/SettingsCheck.h"
#include "settings/SettingsText.h"

#include "TemporaryFolder.h"

#include <gmock/gmock.h>

namespace Ledgrove {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr auto today = 2026y / 11 / 22;

std::vector<AssumptionNote> NotesIn(std::string_view bytes, std::chrono::year_month_day on = today) {
    return ReadNotes(SplitLines(bytes), on);
}

/// The note of a file with one key.
AssumptionNote NoteOf(const std::string& bytes, std::chrono::year_month_day on = today) {
    const auto notes = NotesIn(bytes, on);
    EXPECT_EQ(notes.size(), 1U) << bytes;
    return notes.empty() ? AssumptionNote() : notes.front();
}

TEST(Notes, GiveDateAndSourceOfAValue) {
    const AssumptionNote note =
        NoteOf("PMI_MULT1=0.0087\r\nNOTE_PMI_MULT1=0.0087|2018-07-09|a card | caf\xE9\r\n");
    EXPECT_EQ(note.Key, "PMI_MULT1");
    EXPECT_EQ(note.Value, "0.0087");
    EXPECT_EQ(note.Date, "2018-07-09");
    EXPECT_EQ(note.Source, "a card | caf\xC3\xA9");
    EXPECT_FALSE(note.IsOwn);
    EXPECT_TRUE(note.IsOld);
}

TEST(Notes, AnotherValueIsTheUsersOwn) {
    const AssumptionNote note = NoteOf("PMI_MULT1=0.005\nNOTE_PMI_MULT1=0.0087|2018-07-09|a card\n");
    EXPECT_EQ(note.Value, "0.005");
    EXPECT_TRUE(note.IsOwn);
    EXPECT_FALSE(note.IsOld); // the date is not that of the user's value
}

TEST(Notes, ANumberMayBeWrittenInAnotherWay) {
    EXPECT_FALSE(NoteOf("ASSUMPTION1= 0.9%\nNOTE_ASSUMPTION1=0.90||s\n").IsOwn);
    EXPECT_FALSE(NoteOf("PVSAVINGS_FLAG=FALSE\nNOTE_PVSAVINGS_FLAG=FALSE||s\n").IsOwn);
    EXPECT_TRUE(NoteOf("PVSAVINGS_FLAG=TRUE\nNOTE_PVSAVINGS_FLAG=FALSE||s\n").IsOwn);
}

TEST(Notes, AllKeysAreListedAlsoWithoutANote) {
    const auto notes = ReadAllNotes(SplitLines("ASSUMPTION1=0.9\nNOTE_ASSUMPTION1=0.90|2024|s\n"), today);
    ASSERT_EQ(notes.size(), NotedKeys.size());
    for (const AssumptionNote& note : notes)
        EXPECT_EQ(note.IsNoted, note.Key == "ASSUMPTION1") << note.Key;
    EXPECT_EQ(notes.back().Value, "750000"); // in force without a line
}

TEST(Notes, AListIsOneValue) {
    const std::string list = "TAXCAT=57000,10\nTAXCAT=-1,35.00%\n";
    const AssumptionNote note = NoteOf(list + "NOTE_TAXCAT=57000,10;-1,35|2026|s\n");
    EXPECT_EQ(note.Value, "57000,10;-1,35.00%");
    EXPECT_FALSE(note.IsOwn);
    for (const char* other :
         {"57000,10;-1,36", "57000,10", "57000,10;-1,35;0,1", "57000,10,-1,35", "57000;10;-1,35"})
        EXPECT_TRUE(NoteOf(list + "NOTE_TAXCAT=" + other + "|2026|s\n").IsOwn) << other;
}

TEST(Notes, AMissingSettingHasItsInitialValue) {
    EXPECT_FALSE(NoteOf("NOTE_EXIT_SELLING_COST=6.00||s\n").IsOwn);
    EXPECT_TRUE(NoteOf("NOTE_EXIT_SELLING_COST=7.00||s\n").IsOwn);
    EXPECT_TRUE(NoteOf("NOTE_ASSUMPTION1=0.90||s\n").IsOwn);
}

TEST(Notes, AreOldMoreThanTwoYearsAfterTheirLastDay) {
    const auto isOld = [](const char* date, std::chrono::year_month_day on) {
        return NoteOf(std::string("YEARS_IN_HOME=7\nNOTE_YEARS_IN_HOME=7|") + date + "|s\n", on).IsOld;
    };
    EXPECT_FALSE(isOld("2024-11-22", 2026y / 11 / 22));
    EXPECT_TRUE(isOld("2024-11-21", 2026y / 11 / 22));
    EXPECT_FALSE(isOld("2024-02", 2026y / 2 / 28)); // up to 29 February
    EXPECT_TRUE(isOld("2024-02", 2026y / 3 / 1));
    EXPECT_FALSE(isOld("2024", 2026y / 12 / 31));
    EXPECT_TRUE(isOld("2024", 2027y / 1 / 1));
    EXPECT_FALSE(isOld("", 2099y / 1 / 1));
}

TEST(Notes, WhatIsNotANoteIsLeftOutAndReported) {
    for (const char* bad : {"7", "7|2024", "7|soon|s", "7|2024-13|s", "7|2023-02-29|s", "7|24|s",
                            "7|2024/05|s", "7|2024-5-01|s"}) {
        const std::string line = std::string("NOTE_YEARS_IN_HOME=") + bad + "\n";
        EXPECT_THAT(NotesIn(line), IsEmpty()) << bad;
        EXPECT_EQ(UnusableLines(SplitLines(line)).size(), 1U) << bad;
        EXPECT_THAT(CheckSetRequest("NOTE_YEARS_IN_HOME", bad).value_or(""), HasSubstr("separated by \"|\""))
            << bad;
    }
    EXPECT_EQ(CheckSetRequest("NOTE_YEARS_IN_HOME", "7|2026-01-31|asked"), std::nullopt);
    EXPECT_THAT(NotesIn("NOTE_OTHER=1|2024|s\n"), IsEmpty());
}

TEST(Notes, OfEveryShippedAssumptionCount) {
    const auto bytes = ReadBytes(std::filesystem::path(LEDGROVE_SOURCE_DIR) / "data/Ledgrove.ini");
    ASSERT_TRUE(bytes);
    const auto notes = NotesIn(*bytes);
    EXPECT_EQ(notes.size(), NotedKeys.size());
    for (const AssumptionNote& note : notes) {
        EXPECT_FALSE(note.IsOwn) << note.Key;
        EXPECT_NE(note.Source, "") << note.Key;
    }
}

} // namespace
} // namespace Ledgrove
