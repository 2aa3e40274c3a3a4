#include "reports/RangeReport.h"

#include "engine/Recalculate.h"
#include "reports/ReportChoices.h"
#include "tests/engine/TestSession.h"
#include "tests/reports/FixedMeasure.h"
#include "ui/HouseRange.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace Ledgrove {
namespace {

using namespace Testing;
using testing::Contains;
using testing::HasSubstr;

class RangeReportTest : public testing::TestWithParam<PaperSize> {
protected:
    RangeReportTest() {
        for (int lot = 1; lot <= 40; ++lot)
            m_houses.push_back({"Lot " + std::to_string(lot), 200'000, 2'400, 206'000, 1'700});
        m_houses[20].Name =
            "A house whose name is much longer than a column of the table can be, even in landscape";
    }

    void Write() {
        const auto range = ComputeHouseRange(m_session, m_houses);
        ASSERT_TRUE(range);
        m_document.Geometry = GeometryOf({GetParam(), PageOrientation::Landscape});
        m_document.Footer = "||Page %d";
        m_document.FooterFont = {"Arial", 8};
        m_document.Start();
        modPrint::WriteRange(m_document, MakeRangeReport(m_session, *range, 0));
        m_document.End();
    }

    std::string PageText(std::size_t page) const {
        std::string text;
        for (const std::string& one : TextsOf(m_document.Page(page)))
            text += one + " ";
        return text;
    }

    Session m_session = SampleSession();
    HouseList m_houses;
    FixedMeasure m_measure;
    PrintDocument m_document{m_measure};
};

INSTANTIATE_TEST_SUITE_P(Papers, RangeReportTest, testing::Values(PaperSize::Letter, PaperSize::A4));

TEST_P(RangeReportTest, EveryPageHasTheHeadingsAndItsNumber) {
    Write();
    ASSERT_GT(m_document.PageCount(), 1U);
    for (std::size_t page = 1; page <= m_document.PageCount(); ++page) {
        EXPECT_THAT(TextsOf(m_document.Page(page)), Contains("House")) << page;
        EXPECT_THAT(PageText(page), HasSubstr("Page " + std::to_string(page))) << page;
    }
}

TEST_P(RangeReportTest, EveryHouseStandsOnThePagesOnce) {
    Write();
    std::vector<std::string> texts;
    for (std::size_t page = 1; page <= m_document.PageCount(); ++page)
        for (std::string& text : TextsOf(m_document.Page(page)))
            texts.push_back(std::move(text));
    for (int lot = 1; lot <= 40; ++lot)
        EXPECT_EQ(std::count(texts.begin(), texts.end(), "Lot " + std::to_string(lot)), lot == 21 ? 0 : 1);
}

TEST_P(RangeReportTest, ALongNameIsWrappedInsideItsColumn) {
    Write();
    std::size_t lines = 0;
    for (std::size_t page = 1; page <= m_document.PageCount(); ++page) {
        for (const std::string& text : TextsOf(m_document.Page(page)))
            lines += m_houses[20].Name.find(text) != std::string::npos && text.size() > 8 ? 1 : 0;
    }
    EXPECT_GT(lines, 1U);
}

TEST_P(RangeReportTest, SaysWhatTheBuyerHasAndWhoPreparedIt) {
    m_session.Header.BuilderName = "Acme Homes";
    m_session.Header.HomeBuyer = "Pat Doe";
    Write();
    const std::string text = PageText(1);
    EXPECT_THAT(text, HasSubstr("Prepared By:  Acme Homes"));
    EXPECT_THAT(text, HasSubstr("Prepared For: Pat Doe"));
    EXPECT_EQ(
        MakeRangeReport(m_session, {}, 0).Buyer,
        "For an income of $72,000 a year, a debt of $350 a month, 10.00% down, over 30 years at 6.500%. "
        "Income tax is included.");
    EXPECT_EQ(m_document.PdfTitle, "House range for Pat Doe, prepared by Acme Homes");
}

TEST_P(RangeReportTest, WithoutHousesThereIsOnlyTheSentence) {
    m_houses.clear();
    Write();
    EXPECT_EQ(m_document.PageCount(), 1U);
    EXPECT_THAT(PageText(1), HasSubstr("No houses are saved."));
}

} // namespace
} // namespace Ledgrove
