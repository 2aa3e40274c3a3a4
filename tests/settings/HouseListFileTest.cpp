#include "settings/HouseListFile.h"

#include "TemporaryFolder.h"

namespace Ledgrove::Module1 {
namespace {

class HouseListFileTest : public SettingsTest {};

TEST_F(HouseListFileTest, ReadsNameAndAmountsInFileOrder) {
    Given("HOMELIST=Lot 7,200000,2400,206000,1700\r\nX=1\r\nHOMELIST= lot 7 ,$1,.5,2.5,0\r\n");
    HouseList houses(1);
    ASSERT_EQ(LoadHomeList(File(), houses), std::nullopt);
    ASSERT_EQ(houses.size(), 3u); // appended to the existing house
    EXPECT_EQ(houses[1].Name, "Lot 7");
    EXPECT_EQ(houses[1].StdCost, 200000.0f);
    EXPECT_EQ(houses[1].StdUtil, 2400.0f);
    EXPECT_EQ(houses[1].GMHCost, 206000.0f);
    EXPECT_EQ(houses[1].GMHUtil, 1700.0f);
    EXPECT_EQ(houses[2].Name, " lot 7 ");
    EXPECT_EQ(houses[2].StdUtil, 0.5f);
}

TEST_F(HouseListFileTest, AShortLineRepeatsItsLastFieldOrKeepsZeros) {
    Given("HOMELIST=A,100\r\nHOMELIST=B,100,\r\nHOMELIST=\r\n");
    HouseList houses;
    ASSERT_EQ(LoadHomeList(File(), houses), std::nullopt);
    ASSERT_EQ(houses.size(), 3u);
    EXPECT_EQ(houses[0].GMHUtil, 100.0f);
    EXPECT_EQ(houses[1].StdCost, 100.0f);
    EXPECT_EQ(houses[1].StdUtil, 0.0f);
    EXPECT_EQ(houses[2].Name, "");
}

TEST_F(HouseListFileTest, AnAmountThatIsNotANumberIsAFaultThatNamesItsLine) {
    Given("HOMELIST=A,1,2,3,4\r\nHOMELIST=only a name\r\n");
    HouseList houses;
    const auto fault = LoadHomeList(File(), houses);
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->What, SettingsFault::Kind::BadLine);
    EXPECT_EQ(fault->Line, 2u);
    EXPECT_EQ(fault->Text, "HOMELIST=only a name");
}

TEST_F(HouseListFileTest, AMissingFileIsReported) {
    HouseList houses;
    const auto fault = LoadHomeList(File(), houses);
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->What, SettingsFault::Kind::Missing);
    EXPECT_FALSE(Exists(File().Path()));
}

TEST_F(HouseListFileTest, WritingReplacesTheListAndClosesTheDialog) {
    Given("HOMELIST=old,1,1,1,1\r\nHOMESELECTIONDIALOG=OPEN\r\nX=1\r\nHOMELIST=old,2,2,2,2\r\n");
    // Halves round away from zero: 2400.5 is written as 2401.
    const HouseList houses = {{"Caf\xC3\xA9", 200000.0f, 2400.5f, 1206000.0f, 1700.4f}, {"B", 0, 0, 0, 0}};
    EXPECT_EQ(WriteHomeList(File(), houses), std::nullopt);
    EXPECT_EQ(Bytes(), "HOMESELECTIONDIALOG=CLOSED\r\nX=1\r\nHOMELIST=Caf\xE9,200000,2401,1206000,1700\r\n"
                       "HOMELIST=B,0,0,0,0\r\n");
}

TEST_F(HouseListFileTest, WithoutADialogLineItIsAppendedBeforeTheHouses) {
    Given("X=1\r\n");
    EXPECT_EQ(WriteHomeList(File(), {{"A", 1, 2, 3, 4}}), std::nullopt);
    EXPECT_EQ(Bytes(), "X=1\r\nHOMESELECTIONDIALOG=CLOSED\r\nHOMELIST=A,1,2,3,4\r\n");
}

TEST_F(HouseListFileTest, AnEmptyListLeavesNoLine) {
    Given("HOMELIST=old,1,1,1,1\r\nHOMESELECTIONDIALOG=OPEN\r\n");
    EXPECT_EQ(WriteHomeList(File(), {}), std::nullopt);
    EXPECT_EQ(Bytes(), "HOMESELECTIONDIALOG=CLOSED\r\n");
}

TEST_F(HouseListFileTest, ANameThatCannotBeEncodedIsRefusedAndNothingIsWritten) {
    Given("HOMELIST=old,1,1,1,1\r\n");
    const auto fault = WriteHomeList(File(), {{"A\xE2\x86\x92", 1, 2, 3, 4}});
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->What, SettingsFault::Kind::RefusedText);
    EXPECT_NE(fault->Reason.find("U+2192"), std::string::npos);
    EXPECT_EQ(Bytes(), "HOMELIST=old,1,1,1,1\r\n");
}

TEST_F(HouseListFileTest, TenThousandHousesReadBackUnchanged) {
    HouseList houses;
    for (int i = 0; i < 10000; ++i)
        houses.push_back(
            {"Caf\xC3\xA9 " + std::to_string(i), 200000.0f + static_cast<float>(i), 2400, 206000, 1700});
    Given("");
    ASSERT_EQ(WriteHomeList(File(), houses), std::nullopt);
    HouseList read;
    ASSERT_EQ(LoadHomeList(File(), read), std::nullopt);
    ASSERT_EQ(read.size(), houses.size());
    EXPECT_EQ(read.back().Name, "Caf\xC3\xA9 9999");
    EXPECT_EQ(read.back().StdCost, 209999.0f);
}

} // namespace
} // namespace Ledgrove::Module1
