#include "settings/SettingsFault.h"

#include <algorithm>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Ledgrove {
namespace {

using namespace std::string_literals;
using Kind = SettingsFault::Kind;

TEST(SettingsFaultSentence, EveryKindNamesTheFullPathAndEndsWithARemedy) {
    const std::string path = "/home/ann/ledgrove/Ledgrove.ini";
    for (const Kind kind :
         {Kind::Missing, Kind::InterruptedSave, Kind::Unreadable, Kind::Unwritable, Kind::Unconfirmed,
          Kind::Busy, Kind::BadLine, Kind::MissingKey, Kind::RefusedText}) {
        const std::string sentence = Sentence({kind, path, "the reason", 3, "TEXT"});
        EXPECT_THAT(sentence, testing::HasSubstr('"' + path + '"'));
        EXPECT_EQ(sentence.back(), '.');
        EXPECT_GT(std::count(sentence.begin(), sentence.end(), ' '), 8) << sentence;
    }
}

TEST(SettingsFaultSentence, AMissingFileSaysWhereTheFileGoes) {
    EXPECT_EQ(Sentence({Kind::Missing, "/x/Ledgrove.ini", "No such file or directory", 0, {}}),
              "The settings file \"/x/Ledgrove.ini\" is missing. Copy the \"Ledgrove.ini\" that came with "
              "the program "
              "into that folder.");
}

TEST(SettingsFaultSentence, AnInterruptedSaveSaysWhereTheSettingsAre) {
    EXPECT_EQ(Sentence({Kind::InterruptedSave, "/x/Pennaro2.INI", {}, 0, {}}),
              "The last save was interrupted. Your settings are in \"/x/Pennaro2.INI\". Rename that file to "
              "\"Ledgrove.ini\".");
    EXPECT_THAT(
        Sentence({Kind::InterruptedSave, "/x/Pennaro2.INI", "Permission denied", 0, {}}),
        testing::AllOf(testing::HasSubstr("Permission denied"), testing::HasSubstr("/x/Pennaro2.INI")));
}

TEST(SettingsFaultSentence, ABadLineIsNamedWithItsNumberAndText) {
    EXPECT_EQ(
        Sentence({Kind::BadLine, "/x/Ledgrove.ini", "not a number", 12, "LOANTYPE=1,x"}),
        "Line 12 of the settings file \"/x/Ledgrove.ini\" cannot be used (not a number): \"LOANTYPE=1,x\". "
        "Correct that line.");
}

TEST(SettingsFaultSentence, ALongOrUnprintableLineIsShownAsAnExcerpt) {
    // 79 letters and a two-byte character: a cut at 80 bytes would split the character.
    const std::string text = std::string(79, 'x') + "\xC3\xA9 and more";
    EXPECT_THAT(Sentence({Kind::BadLine, "/x/Ledgrove.ini", "r", 1, text}),
                testing::HasSubstr('"' + std::string(79, 'x') + "...\""));
    EXPECT_THAT(Sentence({Kind::BadLine, "/x/Ledgrove.ini", "r", 1, "a\0b\x1B"s}),
                testing::HasSubstr("\"a?b?\""));
}

} // namespace
} // namespace Ledgrove
