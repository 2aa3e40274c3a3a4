#include "reports/modPrint.h"

#include "engine/NumberText.h"
#include "reports/SectionParts.h"

namespace Ledgrove {

std::filesystem::path LogoPicture(const std::filesystem::path& folder, int logoOption,
                                  const std::string& logoFile) {
    if (logoOption == 1)
        return folder / "GenericHouseLogo.bmp";
    // A relative path starts in the program's folder, not in the current folder.
    if (logoOption == 2 && !logoFile.empty() && logoFile != ReportHeader{}.LogoFile)
        return folder / logoFile;
    return {};
}

std::filesystem::path LogoPicture(const Session& session, int logoOption) {
    return LogoPicture(session.Folder, logoOption, session.Header.LogoFile);
}

} // namespace Ledgrove

namespace Ledgrove::modPrint {

namespace {

constexpr Twips pictureWidth = TwipsPerInch + TwipsPerInch / 8 + TwipsPerInch / 5;
constexpr Twips pictureHeight = TwipsPerInch + TwipsPerInch / 8;
constexpr Twips pictureTop = TwipsPerInch / 2;
constexpr Twips bannerHeight = 360;

void WritePictures(PrintDocument& document, const ReportContent& content) {
    const PageGeometry& page = document.Geometry;
    if (!content.Emblem.empty())
        document.Picture(content.Emblem, {page.MarginLeft, pictureTop, page.MarginLeft + pictureWidth,
                                          pictureTop + pictureHeight});
    const Twips right = page.PageWidth - page.MarginRight;
    if (!content.Logo.empty())
        document.Picture(content.Logo, {right - pictureWidth, pictureTop, right, pictureTop + pictureHeight});
}

void BeginBanner(PrintDocument& document, std::string_view title) {
    const PageGeometry& page = document.Geometry;
    document.FontSize = 12;
    document.BrushColor = PrintGrey;
    document.DrawRectangle({page.MarginLeft, document.CurrentY, page.PageWidth - page.MarginRight,
                            document.CurrentY + bannerHeight});
    document.FontBold = false;
    document.TextAlign = 0;
    document.TextColor = PrintWhite;
    document.Text(title);
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

void BeginLaterSection(PrintDocument& document, std::string_view title) {
    document.Paragraph("");
    WriteBanner(document, title);
}

} // namespace

void WriteReport(PrintDocument& document, const ReportContent& content) {
    WriteTitleBlock(document, content);
    document.Paragraph(" ");
    BeginBanner(document, "  Home Buyer Financial Information");
    document.Paragraph(" ");
    document.Paragraph(" ");
    WriteHomeBuyerTable(document, content);
    WriteFinancialTable(document, content);
    if (content.Sections.FinancialAssumptions) {
        // Intentionally no check for space: this section may continue on more pages.
        BeginLaterSection(document, "  Financial Assumptions");
        WriteFinancialAssumptions(document, content);
    }
    if (content.Sections.CashFlow) {
        ContinueHeader(document, 2);
        BeginLaterSection(document, "  Cash Flow");
        WriteCashFlow(document, content);
    }
    if (content.Sections.MoreHome) {
        ContinueHeader(document, 2);
        BeginLaterSection(document, "  More Home");
        WriteBuyMoreHome(document, content);
    }
    if (content.Sections.Affordability) {
        ContinueHeader(document, 3);
        BeginLaterSection(document, "  Affordability");
        WriteAffordability(document, content);
    }
    // The summary intentionally comes last, although the selection lists it earlier.
    if (content.Sections.Summary) {
        ContinueHeader(document, 3);
        BeginLaterSection(document, "  Summary");
        WriteSummary(document, content);
    }
}

void WriteTitleBlock(PrintDocument& document, const ReportContent& content) {
    WritePictures(document, content);
    document.TextAlign = 1;
    document.TextColor = PrintBlack;
    document.FontSize = 16;
    document.FontBold = false;
    document.Paragraph("Summary Report for Ledgrove");
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
    const ReportHeader& header = content.State.Header;
    if (!header.BuilderName.empty()) {
        document.Text("Prepared By:  " + header.BuilderName);
        document.Paragraph("");
    }
    if (!header.HomeBuyer.empty()) {
        document.Text("Prepared For: " + header.HomeBuyer);
        document.Paragraph(" ");
    }
}

void WriteBanner(PrintDocument& document, std::string_view title) {
    BeginBanner(document, title);
    document.Paragraph(" ");
    document.CurrentY += bannerHeight;
}

void ContinueHeader(PrintDocument& document, int inches) {
    if (document.CurrentY + inches * TwipsPerInch < document.Geometry.PageHeight)
        return;
    document.NewPage();
    document.TableBorder = 0;
    document.TextAlign = 0;
    document.FontSize = 12;
    document.FontBold = true;
    document.FontItalic = true;
    document.AddTable("7560;", "", " Summary Report for Ledgrove (continued)");
    document.FontItalic = false;
    document.FontBold = false;
    document.TableBorder = 4;
}

void WriteHomeBuyerTable(PrintDocument& document, const ReportContent& content) {
    constexpr std::string_view format = "1000|>2160|>1900|>1800|>1700|2000;";
    const MainScreen& screen = content.State.Screen;
    BeginPlainTables(document);
    document.AddTable("1800;", "    Home Buyer", "");
    const Field& down = screen.optDownPayment == 0 ? screen.ecPctDown : screen.ecFixedDown;
    WriteTwoPasses(document, format, "|Income||Down Payment|",
                   InColumns(Pictured(screen.ecIncome.Text, MoneyPicture), CellText(down.Text)));
    WriteTwoPasses(document, format, "   |Monthly Debt||Expected Years|",
                   InColumns(Pictured(screen.ecMonthlyDebt.Text, MoneyPicture),
                             Pictured(content.Assumptions.ecYrsInHome.Text, "#,###")));
}

void WriteFinancialTable(PrintDocument& document, const ReportContent& content) {
    constexpr std::string_view format = "1000|>2160|>1900|>1500|>2200|1800;";
    const MainScreen& screen = content.State.Screen;
    BeginPlainTables(document);
    document.Paragraph("");
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
}

std::string Pictured(std::string_view text, std::string_view picture) {
    const auto number = Module1::ReadNumber(text);
    return number ? Module1::FormatPicture(*number, picture) : CellText(text);
}

} // namespace Ledgrove::modPrint
