#include "base/Text.h"
#include "reports/PrinterWords.h"
#include "reports/SectionParts.h"
#include "reports/modPrint.h"

// The blocks that every report begins with.
namespace Ledgrove::modPrint {

namespace {

constexpr Twips pictureWidth = TwipsPerInch + TwipsPerInch / 8 + TwipsPerInch / 5;
constexpr Twips pictureHeight = TwipsPerInch + TwipsPerInch / 8;
constexpr Twips pictureTop = TwipsPerInch / 2;

void WritePictures(PrintDocument& document, const TitleBlock& title) {
    const PageGeometry& page = document.Geometry;
    if (!title.Emblem.empty())
        document.Picture(title.Emblem, {page.MarginLeft, pictureTop, page.MarginLeft + pictureWidth,
                                        pictureTop + pictureHeight});
    const Twips right = page.PageWidth - page.MarginRight;
    if (!title.Logo.empty())
        document.Picture(title.Logo, {right - pictureWidth, pictureTop, right, pictureTop + pictureHeight});
}

/// What PDF readers show in place of the file's name.
std::string TitleWithNames(std::string_view begin, const std::string& buyer, const std::string& builder) {
    std::string title(begin);
    if (!buyer.empty())
        title += " for " + buyer;
    if (!builder.empty())
        title += ", prepared by " + builder;
    return title;
}

/// A name for the document's properties, which are one line each.
std::string PlainName(const std::string& name) {
    const std::string line = OneLine(name);
    return std::string(Trimmed(line));
}

/// Writes a row of bold labels and, on the same line, its figures in regular weight.
void WriteTwoPasses(PrintDocument& document, std::string_view format, std::string_view labels,
                    std::string_view values) {
    const Twips line = document.CurrentY;
    document.FontBold = true;
    document.AddTable(format, "", labels);
    document.CurrentY = line;
    document.FontBold = false;
    document.AddTable(format, "", values);
}

void BeginPlainTables(PrintDocument& document) {
    document.BrushColor = PrintBlack;
    document.FontSize = 9;
    document.FontName = "Arial";
    document.TextColor = PrintBlack;
    document.TextAlign = 0;
    document.TableBorder = 0;
    document.FontBold = true;
    document.FontUnderline = false;
}

/// Puts figures into the third and fifth of six columns.
std::string InColumns(std::string_view third, std::string_view fifth) {
    std::string row("||");
    return row.append(third).append("||").append(fifth).append("|");
}

} // namespace

void SetPdfNames(PrintDocument& document, std::string_view begin, const ReportHeader& names) {
    const std::string builder = PlainName(names.BuilderName);
    document.PdfTitle = TitleWithNames(begin, PlainName(names.HomeBuyer), builder);
    document.Author = builder.empty() ? "Ledgrove" : builder;
}

void WriteTitleBlock(PrintDocument& document, const TitleBlock& title) {
    WritePictures(document, title);
    document.TextAlign = 1;
    document.TextColor = PrintBlack;
    document.FontSize = 16;
    document.FontBold = false;
    document.Paragraph(title.Heading);
    document.Paragraph("");
    document.FontSize = 12;
    document.FontBold = false;
    document.Text("GREENMARK Qualified Home");
    document.Paragraph(" ");
    document.Text("vs.");
    document.Paragraph("");
    document.Text("Standard Home");
    document.Paragraph(" ");
    document.Paragraph(" ");
    const ReportHeader& header = title.Names;
    SetPdfNames(document, title.PdfTitle, header);
    if (!header.BuilderName.empty()) {
        document.Text("Prepared By:  " + header.BuilderName);
        document.Paragraph("");
    }
    if (!header.HomeBuyer.empty()) {
        document.Text("Prepared For: " + header.HomeBuyer);
        document.Paragraph(" ");
    }
}

void WriteHomeBuyerTable(PrintDocument& document, const ReportContent& content) {
    constexpr std::string_view format = "1000|>2160|>1900|>1800|>1700|2000;";
    const MainScreen& screen = content.State.Screen;
    BeginPlainTables(document);
    document.BeginTable();
    document.AddTable("1800;", "    Home Buyer", "");
    const Field& down = screen.optDownPayment == 0 ? screen.ecPctDown : screen.ecFixedDown;
    WriteTwoPasses(document, format, "|Income||Down Payment|",
                   InColumns(Pictured(screen.ecIncome.Text, MoneyPicture), CellText(down.Text)));
    WriteTwoPasses(document, format, "   |Monthly Debt||Expected Years|",
                   InColumns(Pictured(screen.ecMonthlyDebt.Text, MoneyPicture),
                             Pictured(content.Assumptions.ecYrsInHome.Text, "#,###")));
    document.EndTable();
}

void WriteFinancialTable(PrintDocument& document, const ReportContent& content) {
    constexpr std::string_view format = "1000|>2160|>1900|>1500|>2200|1800;";
    const MainScreen& screen = content.State.Screen;
    BeginPlainTables(document);
    document.Paragraph("");
    document.BeginTable();
    document.AddTable("1800;", "    Financial", "");
    document.FontUnderline = false;
    document.AddTable(format, "||Base Home||GREENMARK Home|", "");
    WriteTwoPasses(document, format, "   |Sticker Price||||",
                   InColumns(Pictured(screen.ecStdHome.Text, MoneyPicture),
                             Pictured(screen.ecGMHHome.Text, MoneyPicture)));
    WriteTwoPasses(document, format, "   |Annual Utility Cost||||",
                   InColumns(Pictured(screen.ecStdUtil.Text, MoneyPicture),
                             Pictured(screen.ecGMHUtil.Text, MoneyPicture)));
    WriteTwoPasses(document, format, "   |Mortgage Type||||",
                   InColumns(screen.cboStdMortOption.Text(), screen.cboGMHMortOption.Text()));
    WriteTwoPasses(document, format, "   |Term||||",
                   InColumns(screen.cboMortTerm.Text(), CellText(screen.ecGMHTerm.Text)));
    WriteTwoPasses(document, format, "   |Interest Rate||||",
                   InColumns(CellText(screen.ecStdRate.Text), CellText(screen.ecGMHRate.Text)));
    document.EndTable();
}

} // namespace Ledgrove::modPrint
