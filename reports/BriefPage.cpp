#include "reports/Brief.h"
#include "reports/PrinterWords.h"
#include "reports/SectionParts.h"
#include "reports/TableLanguage.h"

#include <algorithm>

// The layout of the brief: a header, the sentences, and below them two columns.
namespace Ledgrove::modPrint {

namespace {

/// The two sizes of type, in points.
struct BriefType {
    int Large;
    int Small;
};

constexpr std::array<BriefType, 5> types{{{18, 10}, {16, 9}, {15, 8}, {13, 7}, {11, 6}}};

constexpr PrintColour ruleColour = 0x808080;
constexpr Twips ruleHeight = 12;
constexpr Twips gap = 110;
constexpr Twips columnGap = 400;
constexpr double firstShare = 0.52; ///< of the width, for the first of two columns
constexpr Twips logoWidth = 2000;
constexpr Twips logoHeight = 1000;
constexpr Twips leastChart = 2300;
constexpr Twips highestChart = 4600;

/// How the page is set: the type, the height of the charts, and how many lines a name may take.
struct BriefSetting {
    BriefType Type;
    Twips ChartHeight = leastChart;
    std::size_t NameLines = 3;
};

void UseType(PrintDocument& document, int size, bool bold = false) {
    document.FontSize = size;
    document.FontBold = bold;
    document.TextAlign = 0;
    document.TextColor = PrintBlack;
    document.TableBorder = 0;
}

void Rule(PrintDocument& document) {
    document.BrushColor = ruleColour;
    const PageGeometry& page = document.Geometry;
    document.DrawRectangle({page.MarginLeft, document.CurrentY, page.PageWidth - page.MarginRight,
                            document.CurrentY + ruleHeight});
    document.CurrentY += ruleHeight;
}

void Heading(PrintDocument& document, const BriefSetting& setting, std::string_view text) {
    UseType(document, setting.Type.Small, true);
    document.Paragraph(text);
    document.CurrentY += gap / 4;
    Rule(document);
    document.CurrentY += gap / 2;
    document.FontBold = false;
}

/// What is written goes between these sides of the page.
class Column {
public:
    Column(PrintDocument& document, Twips left, Twips width)
        : m_document(document)
        , m_geometry(document.Geometry) {
        document.Geometry.MarginLeft = left;
        document.Geometry.MarginRight = document.Geometry.PageWidth - left - width;
        document.CurrentX = left;
    }
    ~Column() {
        m_document.Geometry = m_geometry;
        m_document.CurrentX = m_geometry.MarginLeft;
    }
    Column(const Column&) = delete;
    Column& operator=(const Column&) = delete;

private:
    PrintDocument& m_document;
    PageGeometry m_geometry;
};

/// Writes two blocks side by side; the first takes `share` of the width.
template <typename First, typename Second>
void SideBySide(PrintDocument& document, double share, const First& first, const Second& second) {
    const Twips left = document.Geometry.MarginLeft;
    const Twips room = document.LineWidth() - columnGap;
    const auto width = static_cast<Twips>(room * share);
    const Twips top = document.CurrentY;
    {
        const Column column(document, left, width);
        first();
    }
    const Twips bottom = document.CurrentY;
    document.CurrentY = top;
    {
        const Column column(document, left + width + columnGap, room - width);
        second();
    }
    document.CurrentY = std::max(bottom, document.CurrentY) + gap;
}

/// The words and the name, cut after so many lines.
std::string Cut(const PrintDocument& document, const std::string& text, std::size_t lines) {
    const Twips most = document.LineWidth() - logoWidth - columnGap;
    std::string kept = OneLine(text);
    if (document.WidthOf(kept) <= most * static_cast<Twips>(lines))
        return kept;
    while (!kept.empty() && document.WidthOf(kept + "…") > most * static_cast<Twips>(lines)) {
        do
            kept.pop_back();
        while (!kept.empty() && (static_cast<unsigned char>(kept.back()) & 0xC0U) == 0x80U);
    }
    return kept + "…";
}

void WriteHead(PrintDocument& document, const Brief& brief, const BriefSetting& setting) {
    const PageGeometry& page = document.Geometry;
    const Twips right = page.PageWidth - page.MarginRight;
    const Twips top = document.CurrentY;
    if (!brief.Logo.empty())
        document.Picture(brief.Logo, {right - logoWidth, top, right, top + logoHeight});
    UseType(document, setting.Type.Large, true);
    document.Paragraph("Buyer's Brief");
    UseType(document, setting.Type.Small);
    document.Paragraph("GREENMARK Qualified Home vs. Standard Home");
    document.CurrentY += gap / 2;
    if (!brief.Names.HomeBuyer.empty())
        document.Paragraph(Cut(document, "Prepared For: " + brief.Names.HomeBuyer, setting.NameLines));
    if (!brief.Names.BuilderName.empty())
        document.Paragraph(Cut(document, "Prepared By:  " + brief.Names.BuilderName, setting.NameLines));
    document.Paragraph("Printed on " + brief.Date);
    if (!brief.Logo.empty())
        document.CurrentY = std::max(document.CurrentY, top + logoHeight);
    document.CurrentY += gap;
}

void WriteSentences(PrintDocument& document, const Brief& brief, const BriefSetting& setting) {
    Heading(document, setting, "In short");
    for (const std::string& sentence : brief.Sentences) {
        document.Paragraph(sentence);
        document.CurrentY += gap / 3;
    }
    document.CurrentY += gap;
}

void WriteChart(PrintDocument& document, std::string_view heading,
                const std::shared_ptr<const ChartFigures>& chart, const BriefSetting& setting) {
    Heading(document, setting, heading);
    document.Chart(chart, document.LineWidth(), setting.ChartHeight);
}

std::string Format(std::initializer_list<Twips> widths) {
    std::string format;
    for (const Twips width : widths)
        format += (format.empty() ? "" : "|>") + std::to_string(width);
    return format + ';';
}

/// A table of both homes. Its rows are separated by thin rules.
template <std::size_t Count>
void WriteRows(PrintDocument& document, const std::array<BriefRow, Count>& rows) {
    const Twips room = document.LineWidth();
    const Twips home = room * 28 / 100;
    const std::string format = Format({room - 2 * home, home, home});
    document.FontBold = true;
    document.AddTable(format, "", Row({"", "Base", "GREENMARK"}));
    document.FontBold = false;
    for (const BriefRow& row : rows)
        document.AddTable(format, "", Row({row.Caption, row.Std, row.GMH}));
}

void WriteAssumptions(PrintDocument& document, const Brief& brief) {
    const Twips room = document.LineWidth();
    const Twips value = room * 31 / 100;
    const Twips date = room * 29 / 100;
    const std::string format =
        std::to_string(room - value - date) + '|' + std::to_string(value) + '|' + std::to_string(date) + ';';
    bool isAnyOld = false;
    for (const BriefAssumption& one : brief.Assumptions) {
        document.AddTable(format, "", Row({one.Caption, one.Value, one.Date + (one.IsOld ? " *" : "")}));
        isAnyOld = isAnyOld || one.IsOld;
    }
    if (isAnyOld)
        document.AddTable(std::to_string(room) + ';', "",
                          Row({"* older than two years: ask whether it still holds"}));
}

void WriteColumns(PrintDocument& document, const Brief& brief, const BriefSetting& setting) {
    SideBySide(
        document, firstShare,
        [&] { WriteChart(document, "What both homes cost a month", brief.Cost, setting); },
        [&] { WriteChart(document, brief.SavingsHead, brief.Savings, setting); });
    SideBySide(
        document, firstShare,
        [&] {
            Heading(document, setting, "The figures");
            WriteRows(document, brief.Figures);
            document.CurrentY += gap;
            Heading(document, setting, "Who qualifies");
            WriteRows(document, brief.Qualifying);
        },
        [&] {
            Heading(document, setting, "What is assumed");
            WriteAssumptions(document, brief);
        });
}

void WritePage(PrintDocument& document, const Brief& brief, const BriefSetting& setting) {
    WriteHead(document, brief, setting);
    WriteSentences(document, brief, setting);
    WriteColumns(document, brief, setting);
    UseType(document, setting.Type.Small);
    Rule(document);
    document.CurrentY += gap / 2;
    document.Paragraph(brief.Disclaimer);
}

/// The largest type in which everything fits, with charts that fill the page.
BriefSetting SettingFor(const PrintDocument& document, const Brief& brief) {
    const Twips room = document.PageRoom();
    BriefSetting setting{};
    for (const std::size_t lines : {std::size_t{3}, std::size_t{1}}) {
        for (const BriefType& type : types) {
            setting = {type, leastChart, lines};
            const Twips height =
                document.HeightOf([&](PrintDocument& trial) { WritePage(trial, brief, setting); });
            if (height > room)
                continue;
            setting.ChartHeight = std::min(leastChart + room - height, highestChart);
            return setting;
        }
    }
    return setting;
}

} // namespace

void WriteBrief(PrintDocument& document, const Brief& brief) {
    // The date stands at the top, and a single page needs no number.
    document.Footer.clear();
    SetPdfNames(document, "Buyer's Brief", brief.Names);
    WritePage(document, brief, SettingFor(document, brief));
}

} // namespace Ledgrove::modPrint
