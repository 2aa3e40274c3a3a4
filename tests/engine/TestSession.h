#pragma once

#include "engine/Host.h"
#include "engine/Session.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

// A session built in memory, without a settings file, and a scripted host.
namespace Ledgrove::Testing {

/// Records what the core requests from its host. Questions get the answers of `Answers` in order, then Ok.
class ScriptedHost : public Host {
public:
    std::vector<Message> Messages;
    std::deque<MessageAnswer> Answers;
    int PendingEventRuns = 0;
    std::function<void(const Message&)> OnMessage; ///< called while the message box would be open
    std::function<void()> OnPendingEvents;

    MessageAnswer ShowMessage(const Message& message) override {
        Messages.push_back(message);
        if (OnMessage)
            OnMessage(message);
        if (Answers.empty())
            return MessageAnswer::Ok;
        const MessageAnswer answer = Answers.front();
        Answers.pop_front();
        return answer;
    }

    void RunPendingEvents() override {
        ++PendingEventRuns;
        if (OnPendingEvents)
            OnPendingEvents();
    }
};

/// The seven shipped loan types; pick-list code k is the k-th.
inline LoanTypeList ShippedLoanTypes() {
    struct Row {
        const char* Name;
        float Front, Back;
        bool IsEEM;
    };
    constexpr Row rows[] = {
        {"Conventional", 0.280F, 0.360F, false},   {"Fannie Mae EEM", 0.300F, 0.380F, true},
        {"Freddie Mac EEM", 0.300F, 0.380F, true}, {"FHA", 0.310F, 0.430F, false},
        {"FHA EEM", 0.330F, 0.450F, true},         {"VA", 0.410F, 0.410F, false},
        {"VA EEM", 0.410F, 0.410F, true}};
    LoanTypeList loanTypes;
    for (const Row& row : rows) {
        LoanType loanType;
        loanType.Number = static_cast<std::int16_t>(loanTypes.size() + 1);
        loanType.Name = row.Name;
        loanType.FrontRatio = row.Front;
        loanType.BackRatio = row.Back;
        loanType.IsEEM = row.IsEEM;
        loanTypes.push_back(loanType);
    }
    return loanTypes;
}

inline TaxSchedule ShippedTaxSchedule() {
    return {{-1, 57000, 10},      {57000, 133000, 12},  {133000, 243600, 22},
            {243600, 435750, 24}, {435750, 544650, 32}, {544650, -1, 35}};
}

inline AssumptionSet ShippedAssumptions() {
    AssumptionSet assumptions;
    assumptions.RealEstateTaxPct = 0.90F;
    assumptions.InsurancePct = 0.65F;
    assumptions.PVRate = 0.0624F;
    assumptions.PVTerm = 30;
    assumptions.YearsInHome = 7;
    assumptions.PMIMult1 = 0.0087F;
    assumptions.PMIMult2 = 0.0066F;
    assumptions.PMIMult3 = 0.0046F;
    assumptions.PMIMult4 = 0.0023F;
    return assumptions;
}

/// Chooses both mortgage options; the labelled option must match the base option.
inline void ChooseOptions(Session& session, std::string_view base, std::string_view labelled) {
    MainScreen& screen = session.Screen;
    screen.cboStdMortOption.Items = BaseOptionItems();
    screen.cboStdMortOption.Selected = screen.cboStdMortOption.IndexOf(base);
    screen.cboGMHMortOption.Items = LabelledOptionItems(screen.cboStdMortOption.Option());
    screen.cboGMHMortOption.Selected = screen.cboGMHMortOption.IndexOf(labelled);
}

inline void ChooseTerm(Session& session, int years) {
    MainScreen& screen = session.Screen;
    screen.cboMortTerm.Items = TermItems();
    screen.cboMortTerm.Selected = screen.cboMortTerm.IndexOf(std::to_string(years) + " years");
    screen.xMortTerm = years;
}

/// Shipped tables and assumptions, 30 years, 6.5 % for both homes, "Conventional", percent down; all other
/// fields are empty.
inline Session StartedSession() {
    Session session;
    session.LoanTypes = ShippedLoanTypes();
    session.TaxBrackets = ShippedTaxSchedule();
    session.Assumptions = ShippedAssumptions();
    ChooseTerm(session, 30);
    ChooseOptions(session, "Conventional", "Conventional");
    session.Screen.ecStdRate.Text = "6.5";
    session.Screen.ecGMHRate.Text = "6.500%";
    session.Screen.lblHomeName.Text = "Custom";
    return session;
}

/// A buyer with $72,000 a year, $350 of debt and 10 % down; homes at $200,000 and $206,000 with utility bills
/// of $2,400 and $1,700.
inline void FillSample(MainScreen& screen) {
    screen.ecIncome.Text = "$72,000";
    screen.ecMonthlyDebt.Text = "$350";
    screen.ecPctDown.Text = "10.00%";
    screen.ecStdHome.Text = "$200,000";
    screen.ecGMHHome.Text = "$206,000";
    screen.ecStdUtil.Text = "$2,400";
    screen.ecGMHUtil.Text = "$1,700";
}

/// The sample with FHA and FHA EEM.
inline Session SampleSession() {
    Session session = StartedSession();
    ChooseOptions(session, "FHA", "FHA EEM");
    FillSample(session.Screen);
    return session;
}

inline Field& FieldNamed(Session& session, std::string_view name) {
    for (const auto& entry : FieldTable())
        if (entry.Name == name)
            return session.Screen.*entry.Member;
    throw std::out_of_range(std::string(name));
}

} // namespace Ledgrove::Testing
