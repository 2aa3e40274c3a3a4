// Reads any text as a number in any field format, and shows any number in any picture format.

#include "Fuzz.h"

#include "engine/NumberText.h"
#include "ui/FieldFormats.h"

#include <array>
#include <cmath>
#include <cstring>

namespace {

using namespace Ledgrove;
using Fuzz::Require;

constexpr std::array formats = {FieldFormat::Dollar,      FieldFormat::IntRate, FieldFormat::Percent,
                                FieldFormat::Percent2,    FieldFormat::Either,  FieldFormat::Either2,
                                FieldFormat::String,      FieldFormat::Whole,   FieldFormat::WholePercent,
                                FieldFormat::SmallPercent};

void CheckText(std::string_view text) {
    for (const FieldFormat format : formats) {
        const std::string shown = Module1::FormatFieldText(text, format);
        // When a field loses the focus again, its shown text must be readable. Numbers below 0 are refused
        // before they are shown.
        if (Module1::ReadStrippedNumber(text).value_or(-1) >= 0)
            Require(Module1::ReadStrippedNumber(shown).has_value(), "a shown number is a number");
    }
    const float value = Module1::ParseFieldValue(text, 100);
    Require(std::isfinite(value), "a field's value is finite");
}

void CheckSingle(float value) {
    if (!std::isfinite(value))
        return;
    const auto read = Module1::ReadNumber(Module1::ShortestText(value));
    Require(read && static_cast<float>(*read) == value, "the shortest text reads back as the same single");
    Module1::PlainText(value);
    Module1::MoneyText(value);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::array<char, sizeof(double)> bytes{};
    Fuzz::Pieces pieces(Fuzz::TextOf(data, size));
    for (char& byte : bytes)
        byte = static_cast<char>(pieces.Byte());
    double number = 0;
    std::memcpy(&number, bytes.data(), sizeof number);
    float single = 0;
    std::memcpy(&single, bytes.data(), sizeof single);

    const std::string_view picture = pieces.Until('\0');
    if (std::isfinite(number))
        Require(Module1::FormatPicture(number, picture).size() <= 2 * picture.size() + 500,
                "a shown number is no longer than its digits and its picture");
    Module1::FormatPicture(single, picture);
    CheckSingle(single);
    CheckText(pieces.Rest());
    return 0;
}
