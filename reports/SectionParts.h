#pragma once

#include "reports/PrintDocument.h"

#include <initializer_list>
#include <string_view>

// What the sections of the report have in common.
namespace Ledgrove::modPrint {

inline constexpr std::string_view MoneyPicture = "$#,##0";
inline constexpr std::string_view ThreeColumns = "2880|>2340|>2340;";

/// Font, colour and border of every section's body.
void BeginSectionBody(PrintDocument& document);

/// The shaded first line of a section's table.
void WriteTitleBar(PrintDocument& document, std::string_view title);

/// The cells as one row of the table language, ended.
std::string Row(std::initializer_list<std::string_view> cells);

/// A table of one row that holds a small note.
void WriteNote(PrintDocument& document, std::string_view note);

} // namespace Ledgrove::modPrint
