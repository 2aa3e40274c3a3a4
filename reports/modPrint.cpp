#include "reports/modPrint.h"

#include "base/Text.h"
#include "engine/NumberText.h"
#include "reports/SectionParts.h"

#include <functional>

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

constexpr Twips bannerHeight = 360;
constexpr std::string_view continuedHeading = " Summary Report for Ledgrove (continued)";

void BeginBanner(PrintDocument& document, std::string_view title) {
    const PageGeometry& page = document.Geometry;
    document.AddBookmark(Trimmed(title));
    document.FontSize = 12;
    document.BrushColor = PrintGrey;
    document.DrawRectangle({page.MarginLeft, document.CurrentY, page.PageWidth - page.MarginRight,
                            document.CurrentY + bannerHeight});
    document.FontBold = false;
    document.TextAlign = 0;
    document.TextColor = PrintWhite;
    document.Text(title);
}

using Writer = std::function<void(PrintDocument&)>;

/// Starts a new page if `write` fits there but not on the rest of this one.
void MakeRoomFor(PrintDocument& document, const Writer& write) {
    const Twips height = document.HeightOf(write);
    if (height > document.Room() && height <= document.PageRoom())
        document.NewPage();
}

void StartContinuedPage(PrintDocument& document) {
    document.NewPage();
    WriteContinuedHeading(document, continuedHeading);
}

/// Whether the next section goes beyond the paper, of which all counts, also the margin at the bottom.
bool ReachesPaperEdge(const PrintDocument& document, int inches) {
    return document.CurrentY + inches * TwipsPerInch >= document.Geometry.PageHeight;
}

struct Section {
    std::string_view Title;
    int Inches; ///< the least height that it needs
    void (*Write)(PrintDocument&, const ReportContent&);
};

/// Writes a section below its banner. If it does not fit the rest of the page but fits on a new one, it is
/// moved as a whole; a section longer than a page is moved only from the lower half.
void WriteSection(PrintDocument& document, const Section& section, const ReportContent& content) {
    const Writer write = [&](PrintDocument& target) {
        target.Paragraph("");
        WriteBanner(target, section.Title);
        section.Write(target, content);
    };
    const bool fitsHere = document.HeightOf(write) <= document.Room();
    const auto movedHeight = [&] {
        return document.HeightOf([&](PrintDocument& target) {
            WriteContinuedHeading(target, continuedHeading);
            write(target);
        });
    };
    const bool fitsOnePage = fitsHere || movedHeight() <= document.PageRoom();
    const bool moves = fitsOnePage ? !fitsHere : document.Room() < document.PageRoom() / 2;
    if (moves)
        StartContinuedPage(document);
    else
        ContinueHeader(document, section.Inches);
    document.KeepTables = fitsOnePage;
    write(document);
    document.KeepTables = true;
}

constexpr Section sectionCashFlow{"  Cash Flow", 2, WriteCashFlow};
constexpr Section sectionMoreHome{"  More Home", 2, WriteBuyMoreHome};
constexpr Section sectionAffordability{"  Affordability", 3, WriteAffordability};
constexpr Section sectionSummary{"  Summary", 3, WriteSummary};

/// This section is not moved as a whole: its tables may go on different pages.
void WriteAssumptionsSection(PrintDocument& document, const ReportContent& content) {
    const Writer begin = [&](PrintDocument& target) {
        target.Paragraph("");
        WriteBanner(target, "  Financial Assumptions");
    };
    MakeRoomFor(document, [&](PrintDocument& target) {
        begin(target);
        WriteFirstAssumptions(target, content);
    });
    begin(document);
    WriteFinancialAssumptions(document, content);
}

void WriteFirstSection(PrintDocument& document, const ReportContent& content) {
    BeginBanner(document, "  Home Buyer Financial Information");
    document.Paragraph(" ");
    document.Paragraph(" ");
    WriteHomeBuyerTable(document, content);
}

} // namespace

void WriteReport(PrintDocument& document, const ReportContent& content) {
    WriteTitleBlock(document, {"Summary Report for Ledgrove", "Summary Report", content.State.Header,
                               content.Emblem, content.Logo});
    document.Paragraph(" ");
    const Writer first = [&](PrintDocument& target) { WriteFirstSection(target, content); };
    MakeRoomFor(document, first);
    first(document);
    WriteFinancialTable(document, content);
    if (content.Sections.FinancialAssumptions)
        WriteAssumptionsSection(document, content);
    if (content.Sections.CashFlow)
        WriteSection(document, sectionCashFlow, content);
    if (content.Sections.MoreHome)
        WriteSection(document, sectionMoreHome, content);
    if (content.Sections.Affordability)
        WriteSection(document, sectionAffordability, content);
    // The summary intentionally comes last, although the selection lists it earlier.
    if (content.Sections.Summary)
        WriteSection(document, sectionSummary, content);
}

void WriteBanner(PrintDocument& document, std::string_view title) {
    BeginBanner(document, title);
    document.Paragraph(" ");
    document.CurrentY += bannerHeight;
}

void ContinueHeader(PrintDocument& document, int inches) {
    if (ReachesPaperEdge(document, inches))
        StartContinuedPage(document);
}

std::string Pictured(std::string_view text, std::string_view picture) {
    const auto number = Module1::ReadNumber(text);
    return number ? Module1::FormatPicture(*number, picture) : CellText(text);
}

} // namespace Ledgrove::modPrint
