// Fills the labels and fields that the report prints with any texts, and prints any table.

#include "Fuzz.h"

#include "engine/MainScreen.h"
#include "reports/TableLanguage.h"
#include "reports/modPrint.h"
#include "tests/reports/FixedMeasure.h"

namespace {

using namespace Ledgrove;
using Fuzz::Require;

void CheckTables(std::string_view format, std::string_view header, std::string_view body) {
    for (const TableColumn& column : ReadTableFormat(format))
        Require(column.Width >= 0 && column.Width <= 144000, "a column has a sensible width");
    const Testing::FixedMeasure measure;
    PrintDocument document(measure);
    document.Start();
    document.AddTable(format, header, body, 0xC0C0C0);
    document.Paragraph(body);
    document.End();
    // A row needs at least one line, and a line at least one character.
    Require(document.PageCount() <= 1 + (header.size() + body.size()) * 2, "a table ends");
}

void CheckCell(std::string_view text) {
    const auto rows = ReadTableRows(CellText(text));
    Require(rows.empty() || (rows.size() == 1 && rows.front().size() == 1), "a cell's text is one cell");
}

/// Fills everything that the report prints with the pieces.
void FillScreen(Session& session, AssumptionsScreen& dialog, Fuzz::Pieces& pieces) {
    session.Header.BuilderName = pieces.Until('\n');
    session.Header.HomeBuyer = pieces.Until('\n');
    session.Features.Feature1 = pieces.Until('\n');
    for (const auto& entry : FieldTable())
        (session.Screen.*entry.Member).Text = pieces.Until('\n');
    for (const auto& entry : LabelTable())
        (session.Screen.*entry.Member).Text = pieces.Until('\n');
    for (Field* field : {&dialog.ecRealEstateTaxPct, &dialog.ecInsurancePct, &dialog.ecPV_Rate,
                         &dialog.ecPV_Term, &dialog.ecYrsInHome, &dialog.ecExpUpgrValue})
        field->Text = pieces.Until('\n');
    for (auto* rows : {&dialog.ecLowEnd, &dialog.ecHighEnd, &dialog.ecRate})
        for (Field& field : *rows)
            field.Text = pieces.Until('\n');
    for (std::string& name : dialog.lblLoanType)
        name = pieces.Until('\n');
    dialog.RatioRows = RatioRowCount;
}

void CheckReport(std::uint8_t choice, std::string_view input) {
    const ReportSections sections{(choice & 2) != 0, (choice & 4) != 0, (choice & 8) != 0, (choice & 16) != 0,
                                  (choice & 32) != 0};
    Fuzz::Pieces pieces(input);
    Session session;
    AssumptionsScreen dialog;
    FillScreen(session, dialog, pieces);
    const Testing::FixedMeasure measure;
    PrintDocument document(measure);
    document.Start();
    modPrint::WriteReport(document, {session, dialog, sections, "emblem.png", ""});
    document.End();
    Require(document.PageCount() >= 1 && document.PageCount() <= 20 + input.size(), "a report ends");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Fuzz::Pieces pieces(Fuzz::TextOf(data, size));
    const std::uint8_t choice = pieces.Byte();
    if (choice % 2 == 0) {
        const std::string_view format = pieces.Until('\n');
        const std::string_view header = pieces.Until('\n');
        CheckTables(format, header, pieces.Rest());
        CheckCell(header);
    } else {
        CheckReport(choice, pieces.Rest());
    }
    return 0;
}
