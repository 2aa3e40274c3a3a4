#include "reports/modPrint.h"

#include "base/Text.h"
#include "engine/Recalculate.h"
#include "reports/PreviewState.h"
#include "tests/engine/TestSession.h"
#include "tests/reports/FixedMeasure.h"
#include "tests/reports/ReportVariants.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

// Every way to print the report, on each paper: no page is blank, no table is torn, and each page has its
// heading.
namespace Ledgrove {
namespace {

using namespace Testing;

constexpr const char* continuedHeading = " Summary Report for Ledgrove (continued)";
constexpr const char* assumptionsTitle = "Financial Assumptions";
constexpr Twips rowPadding = 12;

/// Lines as high as Arial's, about its average width, and its wide letters W and M.
class PaperMeasure : public FixedMeasure {
public:
    PaperMeasure()
        : FixedMeasure(8) {}
    Twips Width(std::string_view text, const TextStyle& style) const override {
        const auto wide =
            std::count_if(text.begin(), text.end(), [](char c) { return c == 'W' || c == 'M'; });
        return FixedMeasure::Width(text, style) + static_cast<Twips>(wide) * 11 * style.FontSize;
    }
    Twips LineHeight(const TextStyle& style) const override { return 23 * style.FontSize; }
};

std::string_view BannerOf(std::string_view text) {
    return text.starts_with("  ") && !text.starts_with("   ") ? text : std::string_view();
}

class ReportPagesTest : public testing::TestWithParam<Paper> {
protected:
    ReportPagesTest() {
        Module1::Recalculate(m_session, m_host);
        EXPECT_FALSE(Module1::FillAssumptions(m_assumptions, m_session));
    }

    void Compose(const ReportVariant& variant) {
        m_session.Header.BuilderName = variant.Builder;
        m_session.Header.HomeBuyer = variant.Buyer;
        m_assumptions.optUsePVVars = variant.PresentValue;
        m_session.Screen.lblPVNote.Visible = variant.PresentValue;
        m_document.Geometry = SheetOf(GetParam(), variant.Orientation);
        Write(variant.Sections);
    }

    void Write(const ReportSections& sections) {
        m_document.Start();
        modPrint::WriteReport(m_document, {m_session, m_assumptions, sections, "emblem.png", {}});
        m_document.End();
    }

    std::vector<std::string> PageTexts(std::size_t page) const { return TextsOf(m_document.Page(page)); }

    std::vector<std::string> AllTexts() const {
        std::vector<std::string> texts;
        for (std::size_t page = 1; page <= m_document.PageCount(); ++page)
            for (std::string& text : PageTexts(page))
                texts.push_back(std::move(text));
        return texts;
    }

    /// The texts of each page without what only a further page adds.
    std::vector<std::string> TextsWithoutHeads() const {
        std::vector<std::string> texts;
        for (std::size_t page = 1; page <= m_document.PageCount(); ++page) {
            auto own = PageTexts(page);
            if (page > 1 && !own.empty() && (own[0] == continuedHeading || own[0] == assumptionsTitle))
                own.erase(own.begin());
            texts.insert(texts.end(), own.begin(), own.end());
        }
        return texts;
    }

    void CheckHeads() const;
    void CheckTables() const;
    void CheckRules() const;

    Session m_session = SampleSession();
    ScriptedHost m_host;
    AssumptionsScreen m_assumptions;
    PaperMeasure m_measure;
    PrintDocument m_document{m_measure};
};

/// Each further page begins with a moved section below the "continued" heading, or with the title bar of the
/// assumptions; neither stands anywhere else.
void ReportPagesTest::CheckHeads() const {
    for (std::size_t page = 1; page <= m_document.PageCount(); ++page) {
        const auto texts = PageTexts(page);
        ASSERT_FALSE(texts.empty()) << "page " << page << " is blank";
        EXPECT_FALSE(BannerOf(texts.back()).size()) << "a banner stands alone: " << texts.back();
        if (page == 1) {
            EXPECT_EQ(texts[0], "Summary Report for Ledgrove");
        } else if (texts[0] == continuedHeading) {
            ASSERT_GT(texts.size(), 1U);
            EXPECT_NE(BannerOf(texts[1]), "") << texts[1];
            EXPECT_NE(BannerOf(texts[1]), "  Financial Assumptions");
        } else {
            EXPECT_EQ(texts[0], assumptionsTitle) << "page " << page;
        }
        for (std::size_t at = 1; at < texts.size(); ++at)
            EXPECT_NE(texts[at], continuedHeading) << "not at the top of page " << page;
    }
}

/// What follows a banner, up to the next one, is on the banner's page; in the assumptions, this holds for
/// each of the tables.
void ReportPagesTest::CheckTables() const {
    const std::set<std::string> assumptionTables = {
        "Real Estate Taxes (% of price/year)", "Variables used to calculate the PV of the energy savings",
        "If Percent Down is less than:", "Mortgage"};
    std::string table;
    std::size_t tablePage = 1;
    for (std::size_t page = 1; page <= m_document.PageCount(); ++page)
        for (const std::string& text : PageTexts(page)) {
            if (text == continuedHeading || text == assumptionsTitle)
                continue;
            if (BannerOf(text).size() || assumptionTables.contains(text)) {
                table = text;
                tablePage = page;
            }
            EXPECT_EQ(page, tablePage) << text << " is torn from " << table;
        }
}

/// A rule is the top or the bottom of a row that has text, and nothing is below the margin.
void ReportPagesTest::CheckRules() const {
    for (std::size_t page = 1; page <= m_document.PageCount(); ++page) {
        std::set<Twips> edges;
        for (const TextRun& run : ItemsOf<TextRun>(m_document.Page(page))) {
            const Twips bottom = run.Y + m_measure.LineHeight(run.Style);
            EXPECT_LE(bottom, m_document.Geometry.PageHeight - m_document.Geometry.MarginBottom) << run.Text;
            EXPECT_LE(run.X + run.Width, m_document.Geometry.PageWidth - 720) << run.Text;
            edges.insert(run.Y - rowPadding);
            edges.insert(bottom + rowPadding);
        }
        for (const RuledLine& line : ItemsOf<RuledLine>(m_document.Page(page))) {
            if (line.Ends.Y1 == line.Ends.Y2) {
                EXPECT_TRUE(edges.contains(line.Ends.Y1)) << "a rule at an empty row";
            }
        }
    }
}

TEST_P(ReportPagesTest, NoPageIsBlankAndNoTableIsTorn) {
    for (const ReportVariant& variant : AllReportVariants()) {
        SCOPED_TRACE(variant.Name());
        Compose(variant);
        CheckHeads();
        CheckTables();
        CheckRules();
        const auto texts = TextsWithoutHeads();
        // On an endless page nothing is repeated, and nothing may be missing from the others.
        m_document.Geometry.PageHeight = 1'000'000;
        Write(variant.Sections);
        EXPECT_EQ(m_document.PageCount(), 1U);
        EXPECT_EQ(texts, AllTexts());
        if (HasFailure())
            break;
    }
}

TEST_P(ReportPagesTest, EachSectionHasABookmarkAtItsBanner) {
    Compose({{true, true, true, true, true}, PageOrientation::Landscape, true, "Acme Homes", "Pat Doe"});
    std::vector<std::string> titles;
    for (const Bookmark& bookmark : m_document.Bookmarks()) {
        titles.push_back(bookmark.Title);
        const auto runs = ItemsOf<TextRun>(m_document.Page(bookmark.Page));
        EXPECT_TRUE(std::any_of(runs.begin(), runs.end(), [&](const TextRun& run) {
            return run.Text == "  " + bookmark.Title && run.Y == bookmark.Y;
        })) << bookmark.Title;
    }
    EXPECT_THAT(titles, testing::ElementsAre("Home Buyer Financial Information", "Financial Assumptions",
                                             "Cash Flow", "More Home", "Affordability", "Summary"));
}

/// A feature text of many lines makes the section higher than any page.
TEST_P(ReportPagesTest, ASectionLongerThanAPageRepeatsItsTitleBar) {
    std::string feature;
    for (int word = 0; word < 800; ++word)
        feature += "basement ";
    m_session.Screen.lblfeature1.Text = feature;
    for (const auto orientation : {PageOrientation::Portrait, PageOrientation::Landscape}) {
        Compose({{false, true, false, true, true}, orientation, false, "Acme Homes", "Pat Doe"});
        std::size_t pagesWithTitle = 0;
        for (std::size_t page = 1; page <= m_document.PageCount(); ++page) {
            const auto texts = PageTexts(page);
            EXPECT_FALSE(texts.empty()) << page;
            if (std::find(texts.begin(), texts.end(), "basement basement basement") != texts.end()) {
                EXPECT_THAT(texts, testing::Contains("Buy More Home")) << page;
                ++pagesWithTitle;
            }
        }
        EXPECT_GE(pagesWithTitle, 2U);
    }
}

INSTANTIATE_TEST_SUITE_P(Papers, ReportPagesTest,
                         testing::Values(Paper{"letter", 12240, 15840}, Paper{"a4", 11906, 16838},
                                         Paper{"legal", 12240, 20160}),
                         [](const auto& paper) { return paper.param.Name; });

} // namespace
} // namespace Ledgrove
