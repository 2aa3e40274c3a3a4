#include "reports/modPrint.h"

#include "engine/Recalculate.h"
#include "tests/engine/TestSession.h"
#include "tests/reports/FixedMeasure.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace Ledgrove {
namespace {

using namespace Testing;
using testing::Contains;
using testing::ElementsAre;
using testing::IsSupersetOf;
using testing::Not;

constexpr ReportSections allSections{true, true, true, true, true};

ReportSections Only(bool ReportSections::*section) {
    ReportSections sections;
    sections.*section = true;
    return sections;
}

/// The sample comparison as a report on letter paper.
class ReportTest : public testing::Test {
protected:
    ReportTest() {
        m_session.Screen.ecGMHTerm.Text = "30 years";
        Module1::Recalculate(m_session, m_host);
        EXPECT_FALSE(Module1::FillAssumptions(m_assumptions, m_session));
    }

    void Compose(const ReportSections& sections) {
        m_document.Start();
        modPrint::WriteReport(m_document, {m_session, m_assumptions, sections, m_emblem, m_logo});
        m_document.End();
    }

    std::vector<std::string> Texts() const {
        std::vector<std::string> texts;
        for (std::size_t page = 1; page <= m_document.PageCount(); ++page)
            for (const std::string& text : TextsOf(m_document.Page(page)))
                texts.push_back(text);
        return texts;
    }

    /// The texts from `first` up to but not including `last`, or to the end if there is no `last`.
    std::vector<std::string> TextsBetween(const std::string& first, const std::string& last = "") const {
        const auto texts = Texts();
        const auto from = std::find(texts.begin(), texts.end(), first);
        return {from, last.empty() ? texts.end() : std::find(from, texts.end(), last)};
    }

    /// The page with this text, 0 for none.
    std::size_t PageOf(std::string_view text) const {
        for (std::size_t page = 1; page <= m_document.PageCount(); ++page)
            for (const std::string& found : TextsOf(m_document.Page(page)))
                if (found == text)
                    return page;
        return 0;
    }

    Session m_session = SampleSession();
    ScriptedHost m_host;
    AssumptionsScreen m_assumptions;
    std::filesystem::path m_emblem = "emblem.png";
    std::filesystem::path m_logo;
    FixedMeasure m_measure{8}; // about Arial's average
    PrintDocument m_document{m_measure};
};

TEST_F(ReportTest, WithoutSectionsHasTitleBannerAndTwoTablesOnOnePage) {
    m_session.Header.BuilderName = "Acme Homes";
    m_session.Header.HomeBuyer = "Pat Doe";
    Compose({});
    EXPECT_EQ(m_document.PageCount(), 1U);
    const MainScreen& screen = m_session.Screen;
    EXPECT_THAT(Texts(),
                ElementsAre("Summary Report for Ledgrove", "GREENMARK Qualified Home", "vs.", "Standard Home",
                            "Prepared By:  Acme Homes", "Prepared For: Pat Doe",
                            "  Home Buyer Financial Information", "    Home Buyer", "Income",
                            screen.ecIncome.Text, "Down Payment", screen.ecPctDown.Text, "Monthly Debt",
                            screen.ecMonthlyDebt.Text, "Expected Years", "7", "    Financial", "Base Home",
                            "GREENMARK Home", "Sticker Price", screen.ecStdHome.Text, screen.ecGMHHome.Text,
                            "Annual Utility Cost", screen.ecStdUtil.Text, screen.ecGMHUtil.Text,
                            "Mortgage Type", std::string(screen.cboStdMortOption.Text()),
                            std::string(screen.cboGMHMortOption.Text()), "Term", "30 years", "30 years",
                            "Interest Rate", screen.ecStdRate.Text, screen.ecGMHRate.Text));
}

TEST_F(ReportTest, EmptyNamesOmitTheirLines) {
    Compose({});
    for (const std::string& text : Texts()) {
        EXPECT_FALSE(text.starts_with("Prepared By:")) << text;
        EXPECT_FALSE(text.starts_with("Prepared For:")) << text;
    }
}

TEST_F(ReportTest, SectionsHaveAFixedOrderWithTheSummaryLast) {
    Compose(allSections);
    std::vector<std::string> banners;
    for (const std::string& text : Texts())
        if (text.starts_with("  ") && !text.starts_with("    "))
            banners.push_back(text);
    EXPECT_THAT(banners, ElementsAre("  Home Buyer Financial Information", "  Financial Assumptions",
                                     "  Cash Flow", "  More Home", "  Affordability", "  Summary"));
}

TEST_F(ReportTest, BannersAreWhiteOnGreyBarsFromMarginToMargin) {
    Compose(Only(&ReportSections::CashFlow));
    const auto bars = ItemsOf<FilledRectangle>(m_document.Page(1));
    ASSERT_GE(bars.size(), 2U);
    EXPECT_EQ(bars[0].Colour, 0xC0C0C0U);
    EXPECT_EQ(bars[0].Box.X1, 720);
    EXPECT_EQ(bars[0].Box.X2, 12240 - 720);
    EXPECT_EQ(bars[0].Box.Y2 - bars[0].Box.Y1, 360);
    const TextRun banner = FindText(m_document, "  Cash Flow");
    EXPECT_EQ(banner.Style.Colour, 0xFFFFFFU);
    EXPECT_EQ(banner.Style.FontSize, 12);
    EXPECT_FALSE(banner.Style.Bold);
    EXPECT_EQ(banner.X, 720);
    // The title bar is below the banner's top by a line of 12 points and the bar's height.
    EXPECT_EQ(bars[2].Box.Y1, bars[1].Box.Y1 + 240 + 360);
}

TEST_F(ReportTest, BoldLabelsAndPlainFiguresShareALine) {
    Compose({});
    const TextRun label = FindText(m_document, "Income");
    const TextRun value = FindText(m_document, m_session.Screen.ecIncome.Text);
    EXPECT_EQ(label.Y, value.Y);
    EXPECT_TRUE(label.Style.Bold);
    EXPECT_FALSE(value.Style.Bold);
    EXPECT_EQ(value.Style.FontSize, 9);
    EXPECT_EQ(value.X + value.Width, 720 + 1000 + 2160 + 1900 - 60); // right-aligned in the third column
}

TEST_F(ReportTest, TheDownPaymentIsShownAsEntered) {
    m_session.Screen.optDownPayment = 1;
    m_session.Screen.ecFixedDown.Text = "$30,000";
    Compose({});
    EXPECT_THAT(Texts(), Contains("$30,000"));
    EXPECT_THAT(Texts(), Not(Contains(m_session.Screen.ecPctDown.Text)));
}

TEST_F(ReportTest, TheCashFlowSectionShowsTheTabsCaptionsAndFigures) {
    Compose(Only(&ReportSections::CashFlow));
    const MainScreen& s = m_session.Screen;
    EXPECT_THAT(TextsBetween("  Cash Flow"),
                ElementsAre("  Cash Flow", "GREENMARK - More Value For Less Cost", "Monthly", "Yearly",
                            s.lbladditionalmortgagetext.Text, s.lblAddMortMo.Text, s.lblAddMortYr.Text,
                            s.lblutilitysavingstext.Text, s.lblUtilSavMo.Text, s.lblUtilSavYr.Text,
                            s.lbltaxsavingstext.Text, s.lblTaxSavMo.Text, s.lblTaxSavYr.Text,
                            s.lblnetcashflowtext.Text, s.lblNetCashMo.Text, s.lblNetCashYr.Text));
    EXPECT_TRUE(FindText(m_document, "Net Monthly Cash Flow").Style.Bold);
    EXPECT_FALSE(FindText(m_document, s.lblutilitysavingstext.Text).Style.Bold);
}

TEST_F(ReportTest, TheMoreHomeSectionShowsTheValueOfTheDifference) {
    m_session.Screen.lblfeature1.Text = "Deck; large|wide";
    m_session.Screen.lblfeature2.Text = "2500";
    Compose(Only(&ReportSections::MoreHome));
    const MainScreen& s = m_session.Screen;
    EXPECT_THAT(TextsBetween("Buy More Home"),
                ElementsAre("Buy More Home", "A Monthly Net Cash Flow of", s.lblNetCashMoTx.Text,
                            "Can Purchase Options up to", s.lblExtrasTx.Text,
                            "For the same monthly cost, consider these:", "Option 1", "Deck; large|wide",
                            "Option 2", "$2,500"));
}

TEST_F(ReportTest, TheAffordabilitySectionEndsWithItsFootnote) {
    Compose(Only(&ReportSections::Affordability));
    const MainScreen& s = m_session.Screen;
    EXPECT_THAT(
        TextsBetween("GREENMARK Qualified Homes are Affordable"),
        ElementsAre("GREENMARK Qualified Homes are Affordable", "Base Home", "GREENMARK Home",
                    "Mortgage Amount", s.lblStdMort.Text, s.lblGMHMort.Text, "Down Payment",
                    s.lblstddown2.Text, s.lblgmhdown2.Text, "Mortgage Payment", s.lblStdMortPayment.Text,
                    s.lblGMHMortPayment.Text, "Maximum Loan Value", s.lblStdMaxHome.Text,
                    s.lblGMHMaxHome.Text, "Maximum Payment", s.lblStdInc.Text, s.lblGMHInc.Text,
                    "Buyer Qualifies", s.lblStdQual.Text, s.lblGMHQual.Text,
                    "*Ledgrove only provides estimates & does not account for LTV - check with your bank"));
}

TEST_F(ReportTest, TheSummarySectionShowsNoneForTheBaseHomesTaxSavings) {
    m_session.Screen.lblStdQual.Text = "*NO";
    Compose(Only(&ReportSections::Summary));
    const MainScreen& s = m_session.Screen;
    EXPECT_THAT(TextsBetween("Summary"),
                ElementsAre("Summary", "Base Home", "GREENMARK Home", "Sticker Price", s.lblStdHome.Text,
                            s.lblGMHHome.Text, "Down Payment", s.lblStdDown.Text, s.lblgmhDown.Text,
                            "Mortgage Amount", s.lblStdMortgage.Text, s.lblgmhMortgage.Text,
                            "Mortgage Payment", s.lblStdPITI.Text, s.lblGMHPITI.Text, "Monthly Utility Bills",
                            s.lblStdUtilMo.Text, s.lblGMHUtilMo.Text, s.lblTaxSavmo2Text.Text, "NONE",
                            s.lbltaxsavmo2.Text, "Net Monthly Payment", s.lblStdPITIU.Text,
                            s.lblGMHPITIU.Text, "Net Monthly Cash Flow", s.lblNetCashMo2.Text,
                            s.lblYrsIn.Text, s.lblExpYrPre.Text, "30 Years", s.lbl30YrPre.Text,
                            "PV of Savings", s.lblPVofSavings.Text));
}

TEST_F(ReportTest, TheVisiblePresentValueNoteIsAddedInSmallPrint) {
    m_session.Screen.lblPVNote.Visible = true;
    Compose(Only(&ReportSections::Summary));
    const TextRun note = FindText(m_document, "* Fannie Mae refers to this as the Energy Savings Value");
    EXPECT_EQ(note.Style.FontSize, 8);
    EXPECT_GT(note.Y, FindText(m_document, "PV of Savings").Y);
}

TEST_F(ReportTest, TheAssumptionsShowTheDialogsTexts) {
    Compose(Only(&ReportSections::FinancialAssumptions));
    EXPECT_THAT(TextsBetween("Financial Assumptions"),
                IsSupersetOf({"Real Estate Taxes (% of price/year)",
                              "0.90%",
                              "Homeowner's Insurance (% of price/year)",
                              "0.65%",
                              "Anticipated Years in Home",
                              "7",
                              "Calculated Value of Energy Efficiency Upgrade",
                              "$6,000",
                              "If Percent Down is less than:",
                              "Use PMI Multiplier:",
                              "5%",
                              "0.0087",
                              "20%",
                              "0.0023",
                              "Mortgage",
                              "Front End Ratio",
                              "Back End Ratio",
                              "Conventional",
                              "28.00%",
                              "36.00%",
                              "VA EEM",
                              "41.00%"}));
    EXPECT_THAT(Texts(), Not(Contains("Variables used to calculate the PV of the energy savings")));
    EXPECT_TRUE(FindText(m_document, "Front End Ratio").Style.Bold);
    EXPECT_FALSE(FindText(m_document, "VA EEM").Style.Bold);
}

TEST_F(ReportTest, ThePresentValueVariablesAppearOnlyWhenUsed) {
    m_assumptions.optUsePVVars = true;
    Compose(Only(&ReportSections::FinancialAssumptions));
    EXPECT_THAT(TextsBetween("Variables used to calculate the PV of the energy savings",
                             "If Percent Down is less than:"),
                ElementsAre("Variables used to calculate the PV of the energy savings", "Rate", "6.24%",
                            "Term", "30"));
}

TEST_F(ReportTest, ASectionThatDoesNotFitStartsAContinuedPage) {
    m_document.Start();
    m_document.CurrentY = 15840 - 2 * 1440 - 1;
    modPrint::ContinueHeader(m_document, 2);
    EXPECT_EQ(m_document.PageCount(), 1U);
    ++m_document.CurrentY; // now the next two inches end exactly at the paper's edge
    modPrint::ContinueHeader(m_document, 2);
    EXPECT_EQ(m_document.PageCount(), 2U);
    const TextRun header = FindText(m_document, " Summary Report for Ledgrove (continued)");
    EXPECT_TRUE(header.Style.Bold);
    EXPECT_TRUE(header.Style.Italic);
    EXPECT_EQ(header.Style.FontSize, 12);
    EXPECT_EQ(m_document.TableBorder, 4);
    EXPECT_FALSE(m_document.FontBold);
    EXPECT_FALSE(m_document.FontItalic);
}

TEST_F(ReportTest, TheAssumptionsNeverStartAContinuedPage) {
    m_document.Geometry.PageHeight = 8000; // the two tables end about 6,000 twips down
    Compose(Only(&ReportSections::FinancialAssumptions));
    EXPECT_EQ(PageOf("  Financial Assumptions"), 1U);
    EXPECT_EQ(PageOf(" Summary Report for Ledgrove (continued)"), 0U);
    Compose(Only(&ReportSections::Affordability));
    EXPECT_EQ(PageOf(" Summary Report for Ledgrove (continued)"), 2U);
    EXPECT_EQ(PageOf("  Affordability"), 2U);
}

TEST_F(ReportTest, ThePicturesAreInTheirBoxes) {
    m_logo = "logo.bmp";
    Compose({});
    const auto pictures = ItemsOf<PlacedPicture>(m_document.Page(1));
    ASSERT_EQ(pictures.size(), 2U);
    EXPECT_EQ(pictures[0].File, "emblem.png");
    EXPECT_EQ(pictures[0].Box, (PrintBox{720, 720, 720 + 1908, 720 + 1620}));
    EXPECT_EQ(pictures[1].File, "logo.bmp");
    EXPECT_EQ(pictures[1].Box, (PrintBox{12240 - 720 - 1908, 720, 12240 - 720, 720 + 1620}));
}

TEST_F(ReportTest, TheLogoMatchesTheOption) {
    m_session.Folder = "/program";
    EXPECT_EQ(LogoPicture(m_session, 0), "");
    EXPECT_EQ(LogoPicture(m_session, 1), "/program/GenericHouseLogo.bmp");
    EXPECT_EQ(LogoPicture(m_session, 2), ""); // the logo file has no name
    m_session.Header.LogoFile = "/home/acme.bmp";
    EXPECT_EQ(LogoPicture(m_session, 2), "/home/acme.bmp");
    m_session.Header.LogoFile = "acme.bmp";
    EXPECT_EQ(LogoPicture(m_session, 2), "/program/acme.bmp");
    m_session.Header.LogoFile = "";
    EXPECT_EQ(LogoPicture(m_session, 2), "");
    EXPECT_EQ(LogoPicture(m_session, 3), "");
    EXPECT_EQ(LogoPicture(m_session, -1), "");
}

TEST_F(ReportTest, EverythingFitsOnThePaper) {
    m_session.Header.BuilderName = std::string(300, 'B');
    m_session.Header.HomeBuyer =
        "a rather long name of a home buyer and all of the family that lives there with them";
    m_session.Screen.lblfeature1.Text = std::string(500, 'f');
    m_session.Screen.ecStdHome.Text = "$340,000,000,000,000,000,000,000,000,000,000,000,000";
    m_logo = "logo.bmp";
    for (const PageOrientation orientation : {PageOrientation::Portrait, PageOrientation::Landscape}) {
        m_document.Geometry = Oriented({}, orientation);
        Compose(allSections);
        for (std::size_t page = 1; page <= m_document.PageCount(); ++page)
            for (const TextRun& run : ItemsOf<TextRun>(m_document.Page(page))) {
                EXPECT_GE(run.X, 720) << run.Text;
                EXPECT_LE(run.X + run.Width, m_document.Geometry.PageWidth - 720) << run.Text;
                EXPECT_LE(run.Y + 20 * run.Style.FontSize, m_document.Geometry.PageHeight) << run.Text;
            }
    }
}

TEST(Pictured, KeepsTextsThatAreNotNumbers) {
    EXPECT_EQ(modPrint::Pictured("-$1234.5", "$#,##0"), "-$1,235");
    EXPECT_EQ(modPrint::Pictured("*NO", "$#,##0"), "*NO");
    EXPECT_EQ(modPrint::Pictured("10.00%", "$#,##0"), "10.00%");
    EXPECT_EQ(modPrint::Pictured("", "$#,##0"), "");
}

} // namespace
} // namespace Ledgrove
