#include "insight/Insight.h"

#include "engine/Evaluate.h"
#include "engine/NumberText.h"
#include "engine/ReadScreen.h"

namespace Ledgrove {

namespace {

std::string NameOfHome(HomeCode home) {
    return home == HomeCode::GMH ? "the GREENMARK home" : "the base home";
}

std::string MissingFrom(const Inputs& inputs, const Results& results) {
    for (const HomeCode home : {HomeCode::Std, HomeCode::GMH}) {
        const HomeInputs& own = home == HomeCode::GMH ? inputs.GMH : inputs.Std;
        if (!(own.Cost > 0))
            return "Enter the price of " + NameOfHome(home) + ".";
        const HomeDecisions& decided = home == HomeCode::GMH ? results.Decisions.GMH : results.Decisions.Std;
        if (const Fault fault = FaultOf(decided); fault != Fault::None)
            return FaultSentence(fault, home, own.Option);
    }
    return {};
}

} // namespace

Insight::Insight(const MainScreen& screen, const Rules& rules)
    : m_screen(screen)
    , m_rules(rules)
    , m_inputs(Module1::ReadInputs(screen))
    , m_record(At(m_inputs))
    , m_missing(MissingFrom(m_inputs, m_record)) {}

Results Insight::At(const Inputs& inputs, const Rules& rules) {
    Carried carried;
    return Module1::Evaluate(inputs, rules, carried);
}

double Insight::BasePrice() const {
    return Module1::ReadStrippedNumber(m_screen.ecStdHome.Text).value_or(0);
}

Lattice Insight::DownSteps(HomeCode home) const {
    if (m_inputs.DownAsPercent)
        return Steps(Varied::PctDown);
    const Field& price = home == HomeCode::GMH ? m_screen.ecGMHHome : m_screen.ecStdHome;
    return Lattice(Varied::FixedDown, m_screen, Module1::ReadStrippedNumber(price.Text).value_or(0));
}

std::string FaultSentence(Fault fault, HomeCode home, std::optional<MortgageOption> option) {
    switch (fault) {
    case Fault::MissingLoanType:
        return option
                   ? "The settings file has no loan type for the mortgage option of " + NameOfHome(home) + "."
                   : "Choose a mortgage option for " + NameOfHome(home) + ".";
    case Fault::ZeroRatio:
        return "A qualifying ratio of the mortgage option of " + NameOfHome(home) +
               " is 0. Correct the loan type in the settings file.";
    case Fault::ZeroBasePrice:
        return "Enter the price of the base home.";
    case Fault::OutOfRange:
        return "An amount of " + NameOfHome(home) + " is too large to compute with.";
    case Fault::None:
        break;
    }
    return {};
}

Fault FaultOf(const HomeDecisions& decided) {
    return decided.CaseFault != Fault::None ? decided.CaseFault : decided.AffordabilityFault;
}

double MarginOf(const HomeCase& home) {
    return static_cast<double>(home.MaxLoan) - static_cast<double>(home.LoanAmount);
}

} // namespace Ledgrove
