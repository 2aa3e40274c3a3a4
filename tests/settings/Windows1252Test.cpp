#include "settings/Windows1252.h"

#include <variant>

#include <gtest/gtest.h>

namespace Ledgrove {
namespace {

TEST(Windows1252, DecodesItsOwnRangeToUtf8) {
    EXPECT_EQ(DecodeWindows1252("caf\xE9"), "caf\xC3\xA9");
    EXPECT_EQ(DecodeWindows1252("\x80 \x93x\x94"),
              "\xE2\x82\xAC \xE2\x80\x9Cx\xE2\x80\x9D"); // euro, curly quotes
}

TEST(Windows1252, UndefinedBytesBecomeTheControlCharactersOfTheirCode) {
    EXPECT_EQ(DecodeWindows1252("\x81\x8D\x8F\x90\x9D"), "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D");
}

TEST(Windows1252, EveryByteConvertsBack) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    // Repeated twenty times, the text is longer than one conversion step.
    std::string bytes;
    for (int i = 0; i < 20; ++i)
        bytes += all;

    const auto encoded = EncodeWindows1252(DecodeWindows1252(bytes));

    ASSERT_TRUE(std::holds_alternative<std::string>(encoded));
    EXPECT_EQ(std::get<std::string>(encoded), bytes);
}

struct Refusal {
    const char* Text;
    const char* Character;
    const char* Name;
};

class Windows1252Refusal : public testing::TestWithParam<Refusal> {};

TEST_P(Windows1252Refusal, NamesTheFirstCharacterOutsideWindows1252) {
    const auto encoded = EncodeWindows1252(GetParam().Text);

    const auto* character = std::get_if<UnencodableCharacter>(&encoded);
    ASSERT_NE(character, nullptr);
    EXPECT_EQ(character->Character, GetParam().Character);
    EXPECT_EQ(character->Name, GetParam().Name);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Windows1252Refusal,
    testing::Values(
        Refusal{"caf\xC3\xA9 \xE2\x86\x92 x", "\xE2\x86\x92", "the character \"\xE2\x86\x92\" (U+2192)"},
        Refusal{"\xC4\x80", "\xC4\x80", "the character \"\xC4\x80\" (U+0100)"},
        Refusal{"a\xF0\x9F\x8F\xA0", "\xF0\x9F\x8F\xA0", "the character \"\xF0\x9F\x8F\xA0\" (U+1F3E0)"},
        // U+0080 is not in Windows-1252: the byte 80 is the euro sign.
        Refusal{"\xC2\x80", "\xC2\x80", "the character \"\xC2\x80\" (U+0080)"},
        Refusal{"x\xFFy", "\xFF", "the byte FF (not UTF-8)"},
        Refusal{"\xE0\x80\x80", "\xE0", "the byte E0 (not UTF-8)"}, // an overlong encoding
        Refusal{"\xED\xA0\x80", "\xED", "the byte ED (not UTF-8)"}, // half of a surrogate pair

        Refusal{"cut short \xE2\x86", "\xE2", "the byte E2 (not UTF-8)"}));

} // namespace
} // namespace Ledgrove
