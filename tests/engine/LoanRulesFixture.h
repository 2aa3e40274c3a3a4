#pragma once

#include "engine/LoanRules.h"
#include "engine/ReadScreen.h"
#include "tests/engine/TestSession.h"

#include <gtest/gtest.h>

namespace Ledgrove::Testing {

inline constexpr float noInterest = 0;

/// Both homes at 6.5 % with a base price of $200,000, without utilities, down payment or debt.
class LoanRules : public testing::Test {
protected:
    LoanRules() {
        m_session.StdCase.Cost = 200000;
        m_session.GMHCase.Cost = 206000;
        m_session.StdCase.IntRate = m_session.GMHCase.IntRate = 0.065F;
        m_session.Scenario.CostDifference = 6000;
    }

    void Compute(HomeCode code) {
        m_session.NoticeApplies = false;
        Module1::ComputeHomeCase(Module1::ReadInputs(m_session.Screen), m_session, code, m_session);
        m_notices += m_session.NoticeApplies ? 1 : 0;
    }
    void SetSavings(float monthly) {
        m_session.StdCase.UtilMonthly = monthly;
        m_session.Scenario.UtilitySavings = monthly;
    }
    /// Without interest, the present value of a saving is 360 times the monthly amount.
    void SetSavingsWorth(float amount) {
        m_session.GMHCase.IntRate = noInterest;
        SetSavings(amount / 360);
    }
    void NoTaxesAndInsurance() {
        m_session.Assumptions.InsurancePct = m_session.Assumptions.RealEstateTaxPct = 0;
        m_session.Assumptions.PMIMult1 = 0;
    }

    Session m_session = StartedSession();
    int m_notices = 0; ///< how often the notice was due
};

} // namespace Ledgrove::Testing
