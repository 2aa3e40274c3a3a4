#pragma once

#include <string>

#include "engine/Inputs.h"
#include "engine/MainScreen.h"
#include "engine/Results.h"
#include "engine/Rules.h"
#include "insight/Vary.h"

namespace Ledgrove {

/// The comparison that the views answer questions about: its inputs, its rules and its results now. Every
/// answer replaces inputs by texts that the fields can show and evaluates again.
class Insight {
public:
    /// Evaluates the comparison as it would be after entering it. Both arguments must outlive the object.
    Insight(const MainScreen& screen, const Rules& rules);

    /// Why the views cannot answer: a price is missing, or the figures of a home cannot be computed. Empty if
    /// they can.
    const std::string& Missing() const { return m_missing; }

    const MainScreen& Screen() const { return m_screen; }
    const Rules& By() const { return m_rules; }
    const Inputs& Now() const { return m_inputs; }
    const Results& Record() const { return m_record; }

    /// The results with other inputs, as `compare` gives them.
    Results At(const Inputs& inputs) const { return At(inputs, m_rules); }
    static Results At(const Inputs& inputs, const Rules& rules);

    /// The net of a month that the tabs show: with the tax savings while taxes are included.
    float ShownNet(const Results& results) const {
        return m_inputs.IncludeTaxes ? results.Scenario.NetMonthlyCashFlow : results.Scenario.NetBeforeTax;
    }

    Lattice Steps(Varied input) const { return Lattice(input, m_screen, BasePrice()); }
    /// The down payment that is in force. A fixed amount goes up to the home's price.
    Lattice DownSteps(HomeCode home) const;

private:
    double BasePrice() const;

    const MainScreen& m_screen;
    const Rules& m_rules;
    Inputs m_inputs;
    Results m_record;
    std::string m_missing;
};

/// Why the figures of a home with this option are unknown, as a sentence.
std::string FaultSentence(Fault fault, HomeCode home, std::optional<MortgageOption> option);

/// The first fault of the home: of its costs or of the largest loan.
Fault FaultOf(const HomeDecisions& decided);

/// MaxLoan less LoanAmount in dollars, from the singles as stored.
double MarginOf(const HomeCase& home);

} // namespace Ledgrove
