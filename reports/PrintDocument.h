#pragma once

#include "reports/PrintItems.h"
#include "reports/TableBands.h"
#include "reports/TableLanguage.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Ledgrove {

enum class PageOrientation { Portrait = 0, Landscape = 1 };

/// The sheet that is printed on, including its margins.
struct PageGeometry {
    Twips PageWidth = 8 * TwipsPerInch + TwipsPerInch / 2;
    Twips PageHeight = 11 * TwipsPerInch;
    Twips MarginLeft = 720;
    Twips MarginRight = 720;
    Twips MarginTop = 720;
    Twips MarginBottom = 720;
};

/// `portrait` in the requested orientation. The margins keep their sides.
PageGeometry Oriented(const PageGeometry& portrait, PageOrientation orientation);

/// The attributes of a print document. They stay in force until they change, and may change at any time.
struct PrintAttributes {
    PageGeometry Geometry; ///< read by Start and by each output operation
    Twips CurrentX = 0;
    Twips CurrentY = 0;
    std::string FontName = "Arial";
    int FontSize = 20; ///< points
    bool FontBold = false;
    bool FontItalic = false;
    bool FontUnderline = false;
    PrintColour TextColor = PrintBlack;
    int TextAlign = 0;   ///< 0: left, 1: text and paragraphs centred between the margins
    int TableBorder = 0; ///< 0: none, 4: a thin frame with light rules between rows
    PrintColour BrushColor = PrintBlack;
    bool KeepTables = true; ///< a table that fits on a page but not on the rest of this one moves to the next
    std::string Footer;     ///< left, centre and right part separated by "|"; "%d" is the page number
    TextStyle FooterFont;
    std::string Title;    ///< of the document, for printers
    std::string PdfTitle; ///< of a PDF file; Title if empty
    std::string Author;   ///< of a PDF file; may be empty
};

/// A place that PDF readers list as the start of a section.
struct Bookmark {
    std::string Title;
    std::size_t Page = 1;
    Twips Y = 0;
};

/// Reports are written to this: text, tables, rectangles and pictures at a moving pen position. A document is
/// not started, open (accepts output) or ended (its pages are final). Outside the open state, each output
/// operation changes nothing and returns false.
class PrintDocument : public PrintAttributes {
public:
    enum class State { NotStarted, Open, Ended };

    /// Writes the heading of every page after the first; none when empty. It leaves the attributes alone.
    std::function<void(PrintDocument&)> Heading;

    /// `measure` must outlive the document.
    explicit PrintDocument(const TextMeasure& measure);

    /// Empties the document and opens its first page with the pen at the top-left margin corner.
    void Start();
    /// Makes the pages final, including their footers.
    bool End();
    State CurrentState() const { return m_state; }

    /// Writes at the pen position without ending the line; the pen moves right.
    bool Text(std::string_view text);
    /// Ends the line after `text`; the pen moves to the left margin of the next line. Text that is too wide
    /// is wrapped, and text that does not fit the page moves to the next. Blank text only moves the pen.
    bool Paragraph(std::string_view text);
    /// The pen is below the heading of the new page.
    bool NewPage();
    /// Fills the box with BrushColor; the pen does not move.
    bool DrawRectangle(const PrintBox& box);
    /// Writes a table in the table language at the left margin and CurrentY, and moves CurrentY below it. It
    /// does not erase what is already there. BreakTable decides what goes on the next page.
    bool AddTable(std::string_view format, std::string_view header, std::string_view body,
                  std::optional<PrintColour> headerShade = std::nullopt);
    /// Until EndTable, the rows of every AddTable belong to one table, which EndTable puts on the page. While
    /// the table is open, nothing else may be written. If CurrentY is set back to the top of the last
    /// AddTable, the next one shares its rows: their texts come out in the order of the columns.
    bool BeginTable();
    /// The open table may continue on the next page from here, below its title bar.
    bool AllowBreak();
    bool EndTable();
    /// Draws the picture file scaled into the box. Lines of text next to it do not overlap it.
    bool Picture(const std::filesystem::path& file, const PrintBox& box);
    /// Draws a chart of this height and at most this width at the left margin and CurrentY, and moves
    /// CurrentY below it. A chart that does not fit the page moves to the next.
    bool Chart(std::shared_ptr<const ChartFigures> figures, Twips width, Twips height);
    /// Makes CurrentY the start of a section.
    bool AddBookmark(std::string_view title);

    /// The height that `write` would use from CurrentY on if the page were endless, up to the last line,
    /// table row or rectangle. Nothing is written to this document.
    Twips HeightOf(const std::function<void(PrintDocument& trial)>& write) const;
    /// The width of the text with the current attributes.
    Twips WidthOf(std::string_view text) const { return m_measure.Width(text, CurrentStyle()); }
    /// What the margins leave of the page's width, in twips.
    Twips LineWidth() const { return Geometry.PageWidth - Geometry.MarginLeft - Geometry.MarginRight; }
    /// What is left of the page, and what a new page offers below its heading, in twips.
    Twips Room() const { return BottomLimit() - CurrentY; }
    Twips PageRoom() const;

    std::size_t PageCount() const { return m_pages.size(); }
    /// `number` is counted from 1 and must be at most PageCount().
    const PrintPage& Page(std::size_t number) const { return m_pages[number - 1]; }
    const std::vector<Bookmark>& Bookmarks() const { return m_bookmarks; }

private:
    struct Limits {
        Twips Left = 0;
        Twips Right = 0;
    };

    TextStyle CurrentStyle() const;
    void WriteHeading();
    PrintPage& CurrentPage() { return m_pages.back(); }
    Twips BottomLimit() const { return Geometry.PageHeight - Geometry.MarginBottom; }
    Limits LineLimits(Twips height) const;
    void MakeRoom(Twips height);
    void PlaceOnLine(std::string_view text);
    void CentreOpenLine();
    void EndLine();
    void AddFooter(PrintPage& page, std::size_t number) const;
    void Covers(Twips bottom);

    std::vector<TableBand> LayOutTable(std::string_view format, std::string_view header,
                                       std::string_view body, std::optional<PrintColour> headerShade) const;
    void AddBands(const TableRow& row, const std::vector<TableColumn>& columns, TableBand like,
                  std::vector<TableBand>& bands) const;
    void AppendBands(std::vector<TableBand> bands);
    void ShareBands(std::vector<TableBand> bands);
    void PlacePage(const std::vector<TableBand>& bands, const BandsOfPage& page);
    void PlaceBand(const TableBand& band, const TableBand* above, const TableBand* below);

    /// The table between BeginTable and EndTable.
    struct OpenTable {
        std::vector<TableBand> Bands;
        Twips Top = 0;
        Twips LastTop = 0;         ///< of the last AddTable
        std::size_t LastFirst = 0; ///< its first band
        bool BreakNext = false;
    };

    const TextMeasure& m_measure;
    State m_state = State::NotStarted;
    std::vector<PrintPage> m_pages;
    std::vector<Bookmark> m_bookmarks;
    std::vector<PrintBox> m_picturesOnPage;
    std::vector<std::size_t> m_openLine; ///< items of the page on the current line
    Twips m_openLineTop = 0;
    std::optional<OpenTable> m_table;
    Twips m_covered = 0; ///< the bottom of the lowest item
};

} // namespace Ledgrove
