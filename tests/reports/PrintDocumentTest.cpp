#include "reports/PrintDocument.h"

#include "tests/reports/FixedMeasure.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace Ledgrove {
namespace {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;

/// A letter page with ten-point text: characters are 100 twips wide and lines 200 twips high.
class PrintDocumentTest : public testing::Test {
protected:
    PrintDocumentTest() { m_document.FontSize = 10; }

    std::vector<TextRun> Runs(std::size_t page = 1) const { return ItemsOf<TextRun>(m_document.Page(page)); }

    FixedMeasure m_measure;
    PrintDocument m_document{m_measure};
};

TEST_F(PrintDocumentTest, StartsWithThePenAtTheTopLeftMarginCorner) {
    m_document.Start();
    EXPECT_EQ(m_document.CurrentX, 720);
    EXPECT_EQ(m_document.CurrentY, 720);
    EXPECT_EQ(m_document.PageCount(), 1U);
}

TEST_F(PrintDocumentTest, AcceptsTextOnlyWhileOpen) {
    EXPECT_FALSE(m_document.Text("a"));
    EXPECT_FALSE(m_document.Paragraph("a"));
    EXPECT_FALSE(m_document.NewPage());
    EXPECT_FALSE(m_document.DrawRectangle({0, 0, 1, 1}));
    EXPECT_FALSE(m_document.AddTable("100;", "", "a"));
    EXPECT_FALSE(m_document.Picture("a.bmp", {}));
    EXPECT_FALSE(m_document.BeginTable());
    EXPECT_FALSE(m_document.AddBookmark("a"));
    EXPECT_FALSE(m_document.End());
    m_document.Start();
    EXPECT_TRUE(m_document.Text("a"));
    EXPECT_TRUE(m_document.End());
    EXPECT_FALSE(m_document.Text("b"));
    EXPECT_EQ(TextsOf(m_document.Page(1)), std::vector<std::string>{"a"});
    m_document.Start();
    EXPECT_THAT(m_document.Page(1), IsEmpty());
}

TEST_F(PrintDocumentTest, TextStaysOnItsLineAndMovesThePenRight) {
    m_document.Start();
    m_document.Text("abc");
    EXPECT_EQ(m_document.CurrentX, 1020);
    EXPECT_EQ(m_document.CurrentY, 720);
    m_document.FontBold = true;
    m_document.Text("de");
    EXPECT_EQ(Runs()[1].X, 1020);
    EXPECT_EQ(Runs()[1].Y, Runs()[0].Y);
    EXPECT_TRUE(Runs()[1].Style.Bold);
    EXPECT_FALSE(Runs()[0].Style.Bold);
    EXPECT_EQ(Runs()[0].Baseline, 720 + 150);
}

TEST_F(PrintDocumentTest, AParagraphEndsTheLine) {
    m_document.Start();
    m_document.Text("abc");
    m_document.Paragraph(" ");
    EXPECT_EQ(m_document.CurrentX, 720);
    EXPECT_EQ(m_document.CurrentY, 920);
    m_document.Paragraph("");
    EXPECT_EQ(m_document.CurrentY, 1120);
    m_document.Paragraph("next");
    EXPECT_EQ(Runs()[1].Y, 1120);
    EXPECT_EQ(m_document.CurrentY, 1320);
}

TEST_F(PrintDocumentTest, CentredTextIsInTheMiddleBetweenTheMargins) {
    m_document.TextAlign = 1;
    m_document.Start();
    m_document.Paragraph("abcd");
    EXPECT_EQ(Runs()[0].X, 6120 - 200); // the paper's middle minus half the width
    m_document.Text("ab");
    m_document.Text("cd");
    EXPECT_EQ(Runs()[1].X, 5920);
    EXPECT_EQ(Runs()[2].X, 6120);
}

TEST_F(PrintDocumentTest, TextTooWideForTheLineIsWrapped) {
    m_document.Start();
    // 108 characters fit between the margins, which are 10,800 twips apart
    m_document.Paragraph(std::string(100, 'a') + " " + std::string(20, 'b'));
    ASSERT_EQ(Runs().size(), 2U);
    EXPECT_EQ(Runs()[1].Text, std::string(20, 'b'));
    EXPECT_EQ(Runs()[1].Y, 920);
    EXPECT_EQ(m_document.CurrentY, 1120);
}

TEST_F(PrintDocumentTest, TextDoesNotOverlapThePicturesNextToIt) {
    m_document.TextAlign = 1;
    m_document.Start();
    m_document.Picture("left.png", {720, 720, 2628, 2340});
    m_document.Paragraph(std::string(90, 'a'));
    for (const TextRun& run : Runs()) {
        EXPECT_GE(run.X, 2628);
        EXPECT_LE(run.X + run.Width, 12240 - 2628);
    }
    EXPECT_EQ(Runs().size(), 2U);
}

TEST_F(PrintDocumentTest, TextThatDoesNotFitMovesToTheNextPage) {
    m_document.Start();
    m_document.CurrentY = 15840 - 720 - 200;
    m_document.Paragraph("last");
    m_document.Paragraph("next");
    EXPECT_EQ(m_document.PageCount(), 2U);
    EXPECT_EQ(Runs(2)[0].Y, 720);
}

TEST_F(PrintDocumentTest, BlankParagraphsNeverOpenAPage) {
    m_document.Start();
    m_document.CurrentY = 15840 - 720 - 100;
    m_document.Paragraph("");
    m_document.Paragraph(" ");
    EXPECT_EQ(m_document.PageCount(), 1U);
    EXPECT_EQ(m_document.CurrentY, 15840 - 720 + 300);
}

TEST_F(PrintDocumentTest, MeasuresAHeightWithoutWriting) {
    m_document.Start();
    m_document.CurrentY = 15000;
    const Twips height = m_document.HeightOf([](PrintDocument& trial) {
        trial.Paragraph("");
        trial.AddTable("1000;", "", "a;b;;");
        trial.Paragraph("");
    });
    EXPECT_EQ(height, 200 + 2 * 224); // the empty row and the paragraph at the end do not count
    EXPECT_EQ(m_document.CurrentY, 15000);
    EXPECT_THAT(TextsOf(m_document.Page(1)), IsEmpty());
    EXPECT_EQ(m_document.PageCount(), 1U);
}

TEST_F(PrintDocumentTest, BookmarksNamePageAndPlace) {
    m_document.Start();
    m_document.AddBookmark("one");
    m_document.NewPage();
    m_document.CurrentY = 5000;
    m_document.AddBookmark("two");
    ASSERT_EQ(m_document.Bookmarks().size(), 2U);
    EXPECT_EQ(m_document.Bookmarks()[0].Page, 1U);
    EXPECT_EQ(m_document.Bookmarks()[1].Title, "two");
    EXPECT_EQ(m_document.Bookmarks()[1].Page, 2U);
    EXPECT_EQ(m_document.Bookmarks()[1].Y, 5000);
}

TEST_F(PrintDocumentTest, RectanglesAndPicturesDoNotMoveThePen) {
    m_document.Start();
    m_document.BrushColor = PrintGrey;
    m_document.DrawRectangle({1, 2, 3, 4});
    m_document.Picture("a.png", {5, 6, 7, 8});
    EXPECT_EQ(m_document.CurrentX, 720);
    EXPECT_EQ(m_document.CurrentY, 720);
    const auto rectangle = ItemsOf<FilledRectangle>(m_document.Page(1)).at(0);
    EXPECT_EQ(rectangle.Colour, 0xC0C0C0U);
    EXPECT_EQ(rectangle.Box, (PrintBox{1, 2, 3, 4}));
    EXPECT_EQ(ItemsOf<PlacedPicture>(m_document.Page(1)).at(0).File, "a.png");
}

TEST_F(PrintDocumentTest, TheFooterHasThreePartsAndThePageNumber) {
    m_document.Footer = "Printed on 11/20/2026||Page %d";
    m_document.FooterFont.FontSize = 8;
    m_document.Start();
    m_document.NewPage();
    m_document.End();
    const auto runs = Runs(2);
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_EQ(runs[0].Text, "Printed on 11/20/2026");
    EXPECT_EQ(runs[0].X, 720);
    EXPECT_EQ(runs[1].Text, "Page 2");
    EXPECT_EQ(runs[1].X + runs[1].Width, 12240 - 720);
    EXPECT_GE(runs[0].Y, 15840 - 720);
    EXPECT_EQ(runs[0].Style.FontSize, 8);
}

TEST_F(PrintDocumentTest, LandscapeTurnsThePaper) {
    const PageGeometry turned = Oriented({}, PageOrientation::Landscape);
    EXPECT_EQ(turned.PageWidth, 15840);
    EXPECT_EQ(turned.PageHeight, 12240);
    EXPECT_EQ(turned.MarginLeft, 720);
}

/// Tables of ten-point text: the height of a one-line row is 200 twips plus its padding.
class PrintTableTest : public PrintDocumentTest {
protected:
    PrintTableTest() { m_document.Start(); }

    Twips RowHeight() {
        const Twips before = m_document.CurrentY;
        m_document.AddTable("1000;", "", "x");
        const Twips height = m_document.CurrentY - before;
        m_document.Start();
        return height;
    }
};

TEST_F(PrintTableTest, CellsFollowTheColumnMarks) {
    m_document.AddTable("1000|>2000|^1000;", "", "ab|cd|ef");
    const auto runs = Runs();
    EXPECT_EQ(runs[0].X, 720 + 60);
    EXPECT_EQ(runs[1].X + runs[1].Width, 720 + 3000 - 60);
    EXPECT_EQ(runs[2].X, 720 + 3000 + 500 - 100);
    EXPECT_EQ(runs[0].Y, runs[2].Y);
}

TEST_F(PrintTableTest, TheHeaderIsTheFirstRowAndMayBeShaded) {
    const Twips row = RowHeight();
    m_document.AddTable("^7560;", "Title", "", PrintGrey);
    EXPECT_EQ(m_document.CurrentY, 720 + row); // a title bar of one row
    const auto shade = ItemsOf<FilledRectangle>(m_document.Page(1)).at(0);
    EXPECT_EQ(shade.Colour, PrintGrey);
    EXPECT_EQ(shade.Box, (PrintBox{720, 720, 720 + 7560, 720 + row}));
    m_document.AddTable("7560;", "Head", "a;b;;", PrintGrey);
    EXPECT_EQ(m_document.CurrentY, 720 + 5 * row);
    EXPECT_EQ(ItemsOf<FilledRectangle>(m_document.Page(1)).size(), 2U); // only the header row
}

TEST_F(PrintTableTest, AFormatWithoutItsSemicolonIsReadTheSameWay) {
    m_document.AddTable("3060|>2000|2500", "", "a|b|c");
    const auto open = Runs();
    m_document.Start();
    m_document.AddTable("3060|>2000|2500;", "", "a|b|c");
    const auto closed = Runs();
    for (std::size_t cell = 0; cell < 3; ++cell)
        EXPECT_EQ(open[cell].X, closed[cell].X);
}

TEST_F(PrintTableTest, APenMovedBackPrintsOverExistingText) {
    m_document.AddTable("1000|1000;", "", "label|");
    const Twips below = m_document.CurrentY;
    m_document.CurrentY = 720;
    m_document.AddTable("1000|1000;", "", "|value");
    EXPECT_EQ(m_document.CurrentY, below);
    EXPECT_THAT(TextsOf(m_document.Page(1)), ElementsAre("label", "value"));
    EXPECT_EQ(Runs()[0].Y, Runs()[1].Y);
}

TEST_F(PrintTableTest, LongTextWrapsInsideItsColumn) {
    const Twips row = RowHeight();
    m_document.AddTable("720|1000;", "", "aaa bbb|c"); // six characters fit into 720 minus the padding
    EXPECT_THAT(TextsOf(m_document.Page(1)), ElementsAre("aaa", "bbb", "c"));
    EXPECT_EQ(m_document.CurrentY, 720 + row + 200);
}

TEST_F(PrintTableTest, ACaptionMayUseTheFreePartOfTheNextCell) {
    m_document.AddTable("1440|>3780|>2340;", "", " Expected Savings After:   7 Years|$1,399;");
    EXPECT_THAT(TextsOf(m_document.Page(1)), ElementsAre(" Expected Savings After:   7 Years", "$1,399"));
    const auto runs = Runs();
    EXPECT_LE(runs[0].X + runs[0].Width, runs[1].X);
}

TEST_F(PrintTableTest, ATableThatDoesNotFitMovesToTheNextPage) {
    const Twips row = RowHeight();
    m_document.CurrentY = 15840 - 720 - row;
    m_document.AddTable("1000;", "", "a;b");
    EXPECT_EQ(m_document.PageCount(), 2U);
    EXPECT_THAT(TextsOf(m_document.Page(1)), IsEmpty());
    EXPECT_THAT(TextsOf(m_document.Page(2)), ElementsAre("a", "b"));
    EXPECT_EQ(m_document.CurrentY, 720 + 2 * row);
}

TEST_F(PrintTableTest, SeveralCallsMakeOneTable) {
    const Twips row = RowHeight();
    m_document.CurrentY = 15840 - 720 - 2 * row;
    m_document.BeginTable();
    m_document.AddTable("1000;", "head", "", PrintGrey);
    m_document.AddTable("500|500;", "", "a|b");
    m_document.AddTable("500|500;", "", "c|d;;");
    EXPECT_THAT(TextsOf(m_document.Page(1)), IsEmpty());
    m_document.EndTable();
    EXPECT_THAT(TextsOf(m_document.Page(2)), ElementsAre("head", "a", "b", "c", "d"));
    EXPECT_EQ(m_document.CurrentY, 720 + 4 * row); // with the empty row
}

TEST_F(PrintTableTest, APartOfATableMayContinueBelowTheTitleBar) {
    const Twips row = RowHeight();
    m_document.CurrentY = 15840 - 720 - 3 * row;
    m_document.BeginTable();
    m_document.AddTable("1000;", "title", "", PrintGrey);
    m_document.AddTable("1000;", "", "a;b");
    m_document.AllowBreak();
    m_document.AddTable("1000;", "", "c;d");
    m_document.EndTable();
    EXPECT_THAT(TextsOf(m_document.Page(1)), ElementsAre("title", "a", "b"));
    EXPECT_THAT(TextsOf(m_document.Page(2)), ElementsAre("title", "c", "d"));
    EXPECT_EQ(ItemsOf<FilledRectangle>(m_document.Page(2)).at(0).Colour, PrintGrey);
}

TEST_F(PrintTableTest, TheSecondPassOfALineIsReadWithTheFirst) {
    m_document.BeginTable();
    for (const char* number : {"1", "2"}) {
        const Twips line = m_document.CurrentY;
        m_document.FontBold = true;
        m_document.AddTable("1000|1000|1000|1000;", "", std::string("a") + number + "||b" + number);
        m_document.CurrentY = line;
        m_document.FontBold = false;
        m_document.AddTable("1000|1000|1000|1000;", "", std::string("|c") + number + "||d" + number);
    }
    m_document.EndTable();
    EXPECT_THAT(TextsOf(m_document.Page(1)), ElementsAre("a1", "c1", "b1", "d1", "a2", "c2", "b2", "d2"));
    const auto runs = Runs();
    EXPECT_EQ(runs[0].Y, runs[3].Y);
    EXPECT_TRUE(runs[0].Style.Bold);
    EXPECT_FALSE(runs[1].Style.Bold);
}

TEST_F(PrintTableTest, ALineWrittenInTwoPassesMovesAsAWhole) {
    m_document.CurrentY = 15840 - 720 - 10;
    m_document.BeginTable();
    const Twips line = m_document.CurrentY;
    m_document.AddTable("1000|1000;", "", "label|");
    m_document.CurrentY = line;
    m_document.AddTable("1000|1000;", "", "|value");
    m_document.EndTable();
    EXPECT_THAT(TextsOf(m_document.Page(2)), ElementsAre("label", "value"));
    EXPECT_EQ(ItemsOf<TextRun>(m_document.Page(2))[0].Y, ItemsOf<TextRun>(m_document.Page(2))[1].Y);
}

TEST_F(PrintTableTest, EmptyRowsHaveNoRules) {
    m_document.TableBorder = 4;
    m_document.AddTable("1000;", "", "a;;b;;");
    std::vector<Twips> rules;
    for (const RuledLine& line : ItemsOf<RuledLine>(m_document.Page(1)))
        if (line.Ends.Y1 == line.Ends.Y2)
            rules.push_back(line.Ends.Y1);
    const Twips row = 224; // a line of 200 and twice the padding of 12
    // above the first row and below the last one; the frame ends before the empty row at the end
    EXPECT_THAT(rules, ElementsAre(720, 720 + 3 * row));
    EXPECT_EQ(m_document.CurrentY, 720 + 4 * row);
}

TEST_F(PrintTableTest, ARowHigherThanAPageContinuesOnTheNextPages) {
    std::string words;
    for (int word = 0; word < 400; ++word)
        words += "abcdef ";
    m_document.AddTable("720;", "", words); // one word per line: 400 lines of 200 twips
    EXPECT_GT(m_document.PageCount(), 5U);
    std::size_t written = 0;
    for (std::size_t page = 1; page <= m_document.PageCount(); ++page)
        written += Runs(page).size();
    EXPECT_EQ(written, 400U);
}

TEST_F(PrintTableTest, ARowHigherThanHalfAPageFillsThePages) {
    std::string words;
    for (int word = 0; word < 100; ++word)
        words += "abcdef ";
    m_document.TableBorder = 4;
    m_document.BeginTable();
    m_document.AddTable("720;", "title", "", PrintGrey);
    m_document.AddTable("720;", "", words); // 100 lines of 200 twips
    m_document.EndTable();
    const int bottom = 15840 - 720;
    for (std::size_t page = 1; page < m_document.PageCount(); ++page)
        EXPECT_GT(Runs(page).back().Y + 2 * 200, bottom) << page;
    // Rules only above the row and below it, on each page.
    const auto lines = ItemsOf<RuledLine>(m_document.Page(1));
    EXPECT_LE(std::count_if(lines.begin(), lines.end(),
                            [](const RuledLine& line) { return line.Ends.Y1 == line.Ends.Y2; }),
              4);
}

TEST_F(PrintTableTest, AFigureThatIsTooWideBeginsInItsNeighbour) {
    // "$1,234,567" is ten characters, 1000 twips; the column has 600 less its padding of 120.
    m_document.AddTable("2000|>600;", "", "ab|$1,234,567");
    EXPECT_THAT(TextsOf(m_document.Page(1)), ElementsAre("ab", "$1,234,567"));
    EXPECT_EQ(Runs()[1].X + Runs()[1].Width, 720 + 2600 - 60);
    m_document.Start();
    m_document.AddTable("2000|>600;", "", std::string(18, 'x') + "|$1,234,567");
    EXPECT_GT(Runs().size(), 2U); // no room: it wraps in its column
}

TEST_F(PrintTableTest, AFrameIsDrawnOnlyWithBorderFour) {
    m_document.TableBorder = 0;
    m_document.AddTable("1000;", "", "a;b");
    EXPECT_THAT(ItemsOf<RuledLine>(m_document.Page(1)), IsEmpty());
    m_document.TableBorder = 4;
    const Twips top = m_document.CurrentY;
    m_document.AddTable("1000;", "", "a;b");
    const auto lines = ItemsOf<RuledLine>(m_document.Page(1));
    // a rule above each row, a line at each side of each row, and a rule below the table
    ASSERT_EQ(lines.size(), 7U);
    EXPECT_EQ(lines.front().Ends.Y1, top);
    EXPECT_EQ(lines.back().Ends.Y1, m_document.CurrentY);
    EXPECT_NE(lines[3].Colour, lines[0].Colour); // the rules between rows are light
}

} // namespace
} // namespace Ledgrove
