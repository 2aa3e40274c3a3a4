#include "reports/PrinterWords.h"

#include "base/Text.h"

#include <charconv>
#include <cstdint>
#include <optional>

namespace Ledgrove {

namespace {

unsigned ByteAt(std::string_view text, std::size_t at) {
    return at < text.size() ? static_cast<unsigned char>(text[at]) : 0U;
}

/// The length of a line break or control character at the start of the text; 0 for any other character.
std::size_t BreakLength(std::string_view text) {
    const unsigned first = ByteAt(text, 0);
    if (first < 0x20 || first == 0x7F)
        return 1;
    const unsigned second = ByteAt(text, 1);
    if (first == 0xC2 && second >= 0x80 && second < 0xA0) // U+0080 to U+009F
        return 2;
    const unsigned third = ByteAt(text, 2);
    return first == 0xE2 && second == 0x80 && (third == 0xA8 || third == 0xA9) ? 3 : 0; // U+2028, U+2029
}

/// The number of bytes that follow this first byte of a character; nothing if it begins none.
std::optional<int> Following(unsigned first) {
    if (first < 0x80)
        return 0;
    if (first >= 0xC2 && first < 0xE0)
        return 1;
    if (first >= 0xE0 && first < 0xF0)
        return 2;
    return first >= 0xF0 && first < 0xF5 ? std::optional(3) : std::nullopt;
}

bool LooksLikeUtf8(std::string_view text) {
    int following = 0;
    for (const char byte : text) {
        if (BeginsCharacter(byte) != (following == 0))
            return false;
        if (following > 0) {
            --following;
            continue;
        }
        const auto more = Following(static_cast<unsigned char>(byte));
        if (!more)
            return false;
        following = *more;
    }
    return following == 0;
}

/// The byte of a percent code at the start of the text, such as "%2F".
std::optional<char> CodedByte(std::string_view text) {
    if (text.size() < 3 || text[0] != '%')
        return std::nullopt;
    std::uint8_t byte = 0;
    const char* const end = text.data() + 3;
    const auto read = std::from_chars(text.data() + 1, end, byte, 16);
    return read.ptr == end ? std::optional(static_cast<char>(byte)) : std::nullopt;
}

std::string Decoded(std::string_view text) {
    std::string decoded;
    while (!text.empty()) {
        const auto coded = CodedByte(text);
        decoded += coded.value_or(text.front());
        text.remove_prefix(coded ? 3 : 1);
    }
    return decoded;
}

/// The server's words in parentheses, with a blank in front; "" if there are none.
std::string InParentheses(std::string_view reason) {
    const std::string line = OneLine(reason);
    const std::string_view words = Trimmed(line, " .");
    return words.empty() ? std::string() : " (" + std::string(words) + ")";
}

} // namespace

std::string OneLine(std::string_view text) {
    std::string line;
    while (!text.empty()) {
        const std::size_t broken = BreakLength(text);
        line += broken > 0 ? ' ' : text.front();
        text.remove_prefix(broken > 0 ? broken : 1);
    }
    return line;
}

std::string ReadableAddress(std::string_view address) {
    const std::string decoded = Decoded(address);
    return OneLine(LooksLikeUtf8(decoded) ? decoded : address);
}

std::string PausedQuestion(std::string_view what, std::string_view printer, std::string_view reason) {
    return "The printer " + Quoted(OneLine(printer)) + " is paused" + InParentheses(reason) + ". " +
           std::string(what) + " waits there until someone resumes the printer. Print it anyway?";
}

std::string NotPrinted(std::string_view what, std::string_view printer, const PrinterCondition& condition) {
    const std::string start = std::string(what) + " was not printed: ";
    const std::string thePrinter = "the printer " + Quoted(OneLine(printer));
    const std::string reason = InParentheses(condition.Reason);
    switch (condition.State) {
    case PrinterState::NoService:
        return start + thePrinter +
               " cannot be reached, because the print service is not running or does not answer" + reason +
               ". Start the print service and try again. \"Print to PDF\" works without it.";
    case PrinterState::Removed:
        return start + thePrinter + " is no longer there. Choose another printer.";
    case PrinterState::Refusing:
        return start + thePrinter + " does not accept jobs now" + reason +
               ". Choose another printer, or try again when this one accepts jobs.";
    case PrinterState::Ready:
    case PrinterState::Paused:
        break;
    }
    return start + thePrinter + " did not accept it" + reason +
           ". Choose another printer, or try again when this one is ready.";
}

} // namespace Ledgrove
