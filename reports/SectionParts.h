#pragma once

#include "reports/modPrint.h"

#include <initializer_list>
#include <string_view>

// Shared by the sections of the report.
namespace Ledgrove::modPrint {

inline constexpr std::string_view MoneyPicture = "$#,##0";
inline constexpr std::string_view ThreeColumns = "2880|>2340|>2340;";

/// Sets what PDF readers show in place of the file's name, `begin` with the names, and the author.
void SetPdfNames(PrintDocument& document, std::string_view begin, const ReportHeader& names);

/// Sets font, colour and border for the body of a section.
void BeginSectionBody(PrintDocument& document);

/// Writes the shaded first line of a section's table.
void WriteTitleBar(PrintDocument& document, std::string_view title);

/// Writes what stands at the top of a page that a section begins.
void WriteContinuedHeading(PrintDocument& document, std::string_view heading);

/// The cells as one complete row of the table language.
std::string Row(std::initializer_list<std::string_view> cells);

/// Writes only the title bar and the first rows of the Financial Assumptions section.
void WriteFirstAssumptions(PrintDocument& document, const ReportContent& content);

/// Writes a small note as a table of one row.
void WriteNote(PrintDocument& document, std::string_view note);

} // namespace Ledgrove::modPrint
