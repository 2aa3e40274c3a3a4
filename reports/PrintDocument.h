#pragma once

#include "reports/PrintItems.h"
#include "reports/TableLanguage.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Ledgrove {

struct RowLayout;

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

/// Reports are written to this: text, tables, rectangles and pictures at a moving pen position. A document is
/// not started, open (accepts output) or ended (its pages are final). Outside the open state, each output
/// operation changes nothing and returns false.
class PrintDocument {
public:
    enum class State { NotStarted, Open, Ended };

    /// `measure` must outlive the document.
    explicit PrintDocument(const TextMeasure& measure);

    // Attributes stay in force until they change, and may change at any time.

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
    std::string Footer; ///< left, centre and right part separated by "|"; "%d" is the page number
    TextStyle FooterFont;
    std::string Title; ///< of the document, for printers and PDF readers

    /// Empties the document and opens its first page with the pen at the top-left margin corner.
    void Start();
    /// Makes the pages final, including their footers.
    bool End();
    State CurrentState() const { return m_state; }

    /// Writes at the pen position without ending the line; the pen moves right.
    bool Text(std::string_view text);
    /// Ends the line after `text`; the pen moves to the left margin of the next line. Text that is too wide
    /// is wrapped.
    bool Paragraph(std::string_view text);
    bool NewPage();
    /// Fills the box with BrushColor; the pen does not move.
    bool DrawRectangle(const PrintBox& box);
    /// Writes a table in the table language at the left margin and CurrentY, and moves CurrentY below it. It
    /// does not erase what is already there. A row that does not fit the page moves to the next.
    bool AddTable(std::string_view format, std::string_view header, std::string_view body,
                  std::optional<PrintColour> headerShade = std::nullopt);
    /// Draws the picture file scaled into the box. Lines of text next to it do not overlap it.
    bool Picture(const std::filesystem::path& file, const PrintBox& box);

    std::size_t PageCount() const { return m_pages.size(); }
    /// `number` is counted from 1 and must be at most PageCount().
    const PrintPage& Page(std::size_t number) const { return m_pages[number - 1]; }

private:
    struct TableShape {
        std::vector<TableColumn> Columns;
        Twips Width = 0;
    };

    struct Limits {
        Twips Left = 0;
        Twips Right = 0;
    };

    TextStyle CurrentStyle() const;
    PrintPage& CurrentPage() { return m_pages.back(); }
    Twips BottomLimit() const { return Geometry.PageHeight - Geometry.MarginBottom; }
    Limits LineLimits(Twips height) const;
    void MakeRoom(Twips height);
    void PlaceOnLine(std::string_view text);
    void CentreOpenLine();
    void EndLine();
    void AddTableRow(const TableShape& table, const TableRow& row, std::optional<PrintColour> shade);
    std::size_t LinesThatFit(const RowLayout& row, std::size_t firstLine) const;
    void PlaceRowLines(const RowLayout& row, std::size_t firstLine, std::size_t lineCount);
    void RuleRow(const TableShape& table, Twips height);
    void CloseFrame(const TableShape& table);
    void AddFooter(PrintPage& page, std::size_t number) const;

    const TextMeasure& m_measure;
    State m_state = State::NotStarted;
    std::vector<PrintPage> m_pages;
    std::vector<PrintBox> m_picturesOnPage;
    std::vector<std::size_t> m_openLine; ///< items of the page on the current line
    Twips m_openLineTop = 0;
    bool m_frameOpen = false; ///< a framed table has rows on this page and still needs its bottom rule
};

} // namespace Ledgrove
