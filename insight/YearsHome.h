#pragma once

#include <vector>

#include "insight/Insight.h"

// What one home costs month by month, in double precision.
namespace Ledgrove {

/// What a home costs in a month or a year, in dollars.
struct HomeFlow {
    double Interest = 0;
    double Principal = 0;
    double Balance = 0; ///< owed at the end
    double PMI = 0;
    double Tax = 0; ///< real-estate tax
    double Insurance = 0;
    double Utilities = 0;
    double TaxEffect = 0; ///< income tax that the interest saves
    double Cost = 0;      ///< everything that is paid, less the tax effect
};

/// The course of a home's loan and of its first month's costs.
struct HomePlan {
    std::vector<double> Balances; ///< after each month, from month 0 (the loan) to the last payment (0)
    double Payment = 0;           ///< principal and interest per month
    double Rate = 0;              ///< per month
    double PMI = 0;               ///< per month while it runs
    int PMIEnd = 1;               ///< the first month without PMI; 1: never any; months + 1: with the loan
    double Tax = 0;               ///< of the first month, like the next two
    double Insurance = 0;
    double Utilities = 0;
    double TaxRate = 0; ///< share of the interest that the income tax returns

    int Periods() const { return static_cast<int>(Balances.size()) - 1; }
    /// Owed after a month, from month 0 on; 0 after the last payment.
    double BalanceAfter(int month) const {
        return month > Periods() ? 0 : Balances[static_cast<std::size_t>(month)];
    }
};

/// A loan of `dollars`, not below 0, that is paid off in `periods` months at a rate per month; nothing else.
HomePlan PlanOfLoan(double dollars, double rate, int periods);

/// The insight must not be missing.
HomePlan PlanOf(const Insight& insight, HomeCode home);

/// A month, counted from 1. The factors say how far utilities, and property tax and insurance, have grown.
HomeFlow MonthOf(const HomePlan& plan, int month, double utilityFactor, double homeFactor);

/// Adds a month to its year; the balance becomes the month's.
void AddMonth(HomeFlow& year, const HomeFlow& month);

} // namespace Ledgrove
