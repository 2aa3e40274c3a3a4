#pragma once

#include <string>
#include <string_view>

// What the windows say about a printer.
namespace Ledgrove {

enum class PrinterState {
    Ready,
    Paused,   ///< it accepts jobs, which wait until someone resumes it
    Refusing, ///< it does not accept jobs
    Removed,
    NoService ///< the print service is not running or cannot be reached
};

struct PrinterCondition {
    PrinterState State = PrinterState::Ready;
    std::string Reason; ///< in the server's words; may be empty
};

/// The text with a blank in place of each control character and line separator. `text` is UTF-8.
std::string OneLine(std::string_view text);

/// A printer's address on one line. Percent codes are decoded, unless the result would not be UTF-8.
///     "ipp://host/My%20Printer" -> "ipp://host/My Printer"    "socket://lab/%FF" -> unchanged
std::string ReadableAddress(std::string_view address);

/// Asks whether `what` ("The report") is to be sent to a printer that is paused.
std::string PausedQuestion(std::string_view what, std::string_view printer, std::string_view reason);

/// Why `what` was not printed, and what to do about it. In the states Ready and Paused, `condition.Reason` is
/// the server's refusal.
std::string NotPrinted(std::string_view what, std::string_view printer, const PrinterCondition& condition);

} // namespace Ledgrove
