#include "engine/MortgageOption.h"

#include <gtest/gtest.h>

namespace Ledgrove {
namespace {

using enum MortgageOption;

struct OptionRow {
    int Code;
    MortgageOption Option;
    MortgageOption Plain;
    EEMBenefit Benefit;
};

TEST(MortgageOptionTest, HasACodeAPlainPartnerAndABenefit) {
    constexpr OptionRow rows[] = {{1, Conventional, Conventional, EEMBenefit::None},
                                  {2, FannieMaeEEM, Conventional, EEMBenefit::StretchedPayment},
                                  {3, FreddieMacEEM, Conventional, EEMBenefit::StretchedPayment},
                                  {4, FHA, FHA, EEMBenefit::None},
                                  {5, FHAEEM, FHA, EEMBenefit::FinancedUpgrade},
                                  {6, VA, VA, EEMBenefit::None},
                                  {7, VAEEM, VA, EEMBenefit::FinancedUpgrade}};
    for (const OptionRow& row : rows) {
        EXPECT_EQ(OptionOfCode(row.Code), row.Option);
        EXPECT_EQ(CodeOf(row.Option), row.Code);
        EXPECT_EQ(PlainPartner(row.Option), row.Plain) << row.Code;
        EXPECT_EQ(BenefitOf(row.Option), row.Benefit) << row.Code;
    }
}

TEST(MortgageOptionTest, NoOtherCodeIsAnOption) {
    for (const int code : {-1, 0, 8, 30})
        EXPECT_EQ(OptionOfCode(code), std::nullopt) << code;
}

} // namespace
} // namespace Ledgrove
