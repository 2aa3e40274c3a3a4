#include "app/files/ComparisonFile.h"

#include "FileDesk.h"
#include "app/batch/InputRecord.h"
#include "ui/Entry.h"
#include "ui/InputWords.h"
#include "ui/MainScreenRules.h"

#include <gmock/gmock.h>

#include <sys/stat.h>

namespace Ledgrove {
namespace {

using testing::HasSubstr;
using testing::Not;

class ComparisonFileTest : public FileTest {
protected:
    std::filesystem::path Write(std::string_view text) const {
        const auto path = Folder() / "test.ledgrove.json";
        WriteBytes(path, text);
        return path;
    }

    /// The session with the sample typed as a person would type it.
    Session Typed() {
        Session session = m_start;
        const Session sample = Testing::SampleSession();
        for (const EntryRule& rule : MainEntryRules())
            session.Screen.*rule.Member = sample.Screen.*rule.Member;
        Module1::ClickBaseOption(session, m_host, "FHA");
        Module1::ClickLabelledOption(session, m_host, "FHA EEM");
        Module1::ClickTerm(session, m_host, "15 years");
        Module1::ClickTaxes(session, m_host, false);
        Module1::RefreshFeatureCaptions(session);
        return session;
    }

    std::optional<std::string> Open(std::string_view text, Session& session) {
        return OpenComparison(Write(text), session, m_start, m_host);
    }
};

std::vector<std::string> LabelTexts(const MainScreen& screen) {
    std::vector<std::string> texts;
    for (const auto& [name, member] : LabelTable())
        texts.push_back(std::string(name) + ' ' + (screen.*member).Text);
    return texts;
}

TEST_F(ComparisonFileTest, TheTextNamesEveryInputThatIsFilled) {
    EXPECT_EQ(ComparisonText(Typed().Screen), R"({
  "ecIncome": "$72,000",
  "ecMonthlyDebt": "$350",
  "optDownPayment": 0,
  "ecPctDown": "10.00%",
  "ecStdHome": "$200,000",
  "ecGMHHome": "$206,000",
  "ecStdUtil": "$2,400",
  "ecGMHUtil": "$1,700",
  "ecStdRate": "6.5",
  "ecGMHRate": "6.500%",
  "cboMortTerm": "15 years",
  "cboStdMortOption": "FHA",
  "cboGMHMortOption": "FHA EEM",
  "chkDoTax0": false
}
)");
}

TEST_F(ComparisonFileTest, ASavedComparisonOpensWithTheSameFigures) {
    const Session typed = Typed();
    Session opened = m_start;
    ASSERT_EQ(Open(ComparisonText(typed.Screen), opened), std::nullopt);
    EXPECT_EQ(LabelTexts(opened.Screen), LabelTexts(typed.Screen));
    EXPECT_EQ(opened.Scenario.NetMonthlyCashFlow, typed.Scenario.NetMonthlyCashFlow);
    EXPECT_EQ(opened.GMHCase.MaxLoan, typed.GMHCase.MaxLoan);
    EXPECT_EQ(opened.Screen.cboMortTerm.Text(), "15 years");
    EXPECT_FALSE(opened.Screen.chkDoTax0);
}

// $300,000 on a home of $200,000 is 150 %. Entered again, 150 % would be read as $150.
TEST_F(ComparisonFileTest, APercentageMadeFromDollarsIsNotConvertedAgain) {
    Session session = Typed();
    session.Screen.ecPctDown.Text = "300000";
    Module1::ConvertPercentDown(session);
    ASSERT_EQ(session.Screen.ecPctDown.Text, "150.00%");
    Session opened = m_start;
    ASSERT_EQ(Open(ComparisonText(session.Screen), opened), std::nullopt);
    EXPECT_EQ(opened.Screen.ecPctDown.Text, "150.00%");
    EXPECT_TRUE(opened.Screen.PctDownConverted);
}

// Without a price, 25000 cannot be converted. A price that is entered later does not change the percentage.
TEST_F(ComparisonFileTest, APercentageEnteredBeforeThePriceStaysAsItIsShown) {
    Session session = m_start;
    session.Screen.ecPctDown.Text = "25000.00%";
    session.Screen.ecStdHome.Text = "$200,000";
    Session opened = m_start;
    ASSERT_EQ(Open(ComparisonText(session.Screen), opened), std::nullopt);
    EXPECT_EQ(opened.Screen.ecPctDown.Text, "25000.00%");
    EXPECT_FALSE(opened.Screen.PctDownConverted);
}

TEST_F(ComparisonFileTest, DollarsInAWrittenFileAreConverted) {
    Session opened = m_start;
    ASSERT_EQ(Open(R"({"ecPctDown": "25000", "ecStdHome": 200000})", opened), std::nullopt);
    EXPECT_EQ(opened.Screen.ecPctDown.Text, "12.50%"); // 25,000 / 200,000
}

TEST_F(ComparisonFileTest, TheChosenHouseKeepsItsName) {
    Session session = Typed();
    session.Screen.lblHomeName.Text = "The Alder";
    Session opened = m_start;
    ASSERT_EQ(Open(ComparisonText(session.Screen), opened), std::nullopt);
    EXPECT_EQ(opened.Screen.lblHomeName.Text, "The Alder");
    Module1::CheckCustomHouse(opened);
    EXPECT_EQ(opened.Screen.lblHomeName.Text, "The Alder");
    Module1::SetFieldText(opened, opened.Screen.ecStdHome, "$200,001");
    Module1::CheckCustomHouse(opened);
    EXPECT_EQ(opened.Screen.lblHomeName.Text, "Custom");
}

TEST_F(ComparisonFileTest, EmptyFieldsStayEmpty) {
    Session opened = Typed();
    ASSERT_EQ(Open(R"({"ecIncome": "50000"})", opened), std::nullopt);
    EXPECT_EQ(opened.Screen.ecIncome.Text, "$50,000");
    EXPECT_EQ(opened.Screen.ecStdHome.Text, "");
    EXPECT_EQ(opened.Screen.cboStdMortOption.Text(), "Conventional");
    EXPECT_THAT(ComparisonText(opened.Screen), Not(HasSubstr("ecStdHome")));
}

TEST_F(ComparisonFileTest, OpeningAFileKeepsTheTabAndTheTables) {
    Session session = m_start;
    Module1::ClickTab(session, m_host, 4);
    session.Assumptions.RealEstateTaxPct = 1.8F;
    session.Header.HomeBuyer = "Pat Doe";
    ASSERT_EQ(Open(R"({"ecStdHome": "200000"})", session), std::nullopt);
    EXPECT_EQ(session.Screen.SSTab1, 4);
    EXPECT_TRUE(session.Screen.DetlFrame[4]);
    EXPECT_FALSE(session.Screen.DetlFrame[0]);
    EXPECT_EQ(session.Header.HomeBuyer, "Pat Doe");
    EXPECT_FLOAT_EQ(session.StdCase.TaxMonthly, 300); // 1.8 % of $200,000 a year
}

TEST_F(ComparisonFileTest, AFaultyFileChangesNothing) {
    Session session = Typed();
    const std::string before = ComparisonText(session.Screen);
    const std::pair<const char*, const char*> faults[] = {
        {R"({"ecIncome": "abc"})", "Annual Income \"abc\": You must enter a number here. Correct this in the "
                                   "file, or enter the comparison "
                                   "again and save it."},
        {R"({"ecGMHHome": true})", "Sticker Price, GREENMARK Home \"true\": You must enter a number here."},
        {R"({"ecHouse": "1"})", "It holds \"ecHouse\", which is not an input of Ledgrove."},
        {"[1]", "It holds something else, or it is damaged. Choose a file that Ledgrove saved."},
        {"\x89PNG", "It holds something else, or it is damaged."},
        {"", "It is empty. Choose a file that Ledgrove saved."},
        {R"({"cboGMHMortOption": "VA EEM"})",
         "Mortgage Option, GREENMARK Home \"VA EEM\": This is not in the list."}};
    for (const auto& [text, complaint] : faults) {
        const auto fault = Open(text, session);
        ASSERT_TRUE(fault) << text;
        EXPECT_THAT(*fault, HasSubstr(complaint));
        EXPECT_THAT(*fault, HasSubstr("test.ledgrove.json\" is not a comparison that Ledgrove can open. "));
        EXPECT_THAT(*fault, Not(HasSubstr("JSON")));
        EXPECT_EQ(ComparisonText(session.Screen), before);
    }
}

TEST_F(ComparisonFileTest, EveryInputHasWords) {
    for (const NamedInput& input : InputTable)
        EXPECT_NE(InputWords(input.Name), "") << input.Name;
}

TEST_F(ComparisonFileTest, ALongValueIsShortened) {
    Session session = m_start;
    const auto fault = Open(R"({"ecIncome": ")" + std::string(5000, 'x') + R"("})", session);
    ASSERT_TRUE(fault);
    EXPECT_THAT(*fault, HasSubstr("Annual Income \"" + std::string(80, 'x') + "...\": "));
}

TEST_F(ComparisonFileTest, APipeOrADeviceIsNotRead) {
    Session session = m_start;
    const auto pipe = Folder() / "pipe.ledgrove.json";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0); // without a writer, opening it would wait
    for (const std::filesystem::path& file : {pipe, std::filesystem::path("/dev/null")}) {
        const auto fault = OpenComparison(file, session, m_start, m_host);
        ASSERT_TRUE(fault);
        EXPECT_THAT(*fault,
                    HasSubstr('"' + file.string() + "\" cannot be read: it is not an ordinary file. "));
    }
}

TEST_F(ComparisonFileTest, AMissingFileIsReported) {
    Session session = m_start;
    const auto fault = OpenComparison(Folder() / "gone.ledgrove.json", session, m_start, m_host);
    ASSERT_TRUE(fault);
    EXPECT_THAT(*fault, HasSubstr("gone.ledgrove.json"));
    EXPECT_THAT(*fault, HasSubstr("cannot be read: No such file or directory. "));
    const auto folder = OpenComparison(Folder(), session, m_start, m_host);
    ASSERT_TRUE(folder);
    EXPECT_THAT(*folder, HasSubstr("cannot be read: it is a folder. "));
}

TEST_F(ComparisonFileTest, OpeningDoesNotCountAsChoosingTheOption) {
    Session session = m_start;
    ASSERT_EQ(Open(R"({"cboGMHMortOption": "Fannie Mae EEM"})", session), std::nullopt);
    EXPECT_TRUE(m_host.Messages.empty());
    EXPECT_EQ(session.Screen.cboGMHMortOption.Text(), "Fannie Mae EEM");
}

TEST_F(ComparisonFileTest, TheSampleOpens) {
    Session session = m_start;
    const auto sample = std::filesystem::path(LEDGROVE_SOURCE_DIR) / "data/samples/first-home.ledgrove.json";
    EXPECT_EQ(OpenComparison(sample, session, m_start, m_host), std::nullopt);
    EXPECT_EQ(session.Screen.lblStdPITIU.Text, "$1,665");
}

TEST_F(ComparisonFileTest, ANewComparisonHasTheStartValues) {
    Session session = Typed();
    session.Screen.lblHomeName.Text = "The Alder";
    NewComparison(session, m_start, m_host);
    EXPECT_EQ(ComparisonText(session.Screen), ComparisonText(m_start.Screen));
    EXPECT_EQ(LabelTexts(session.Screen), LabelTexts(m_start.Screen));
    EXPECT_EQ(session.Screen.lblHomeName.Text, "Custom");
}

TEST_F(ComparisonFileTest, ANewComparisonFollowsChangedAssumptions) {
    Session session = Typed();
    session.Assumptions.YearsInHome = 12;
    NewComparison(session, m_start, m_host);
    EXPECT_THAT(session.Screen.lblYrsIn.Text, HasSubstr("12 Years"));
}

} // namespace
} // namespace Ledgrove
