#include "ui/DataCheck.h"

#include "engine/NumberText.h"

namespace Ledgrove::Module1 {

namespace {

/// Thresholds are in single precision, like the values they are compared with.
float Single(double value) {
    return static_cast<float>(value);
}

class Remarks {
public:
    void AddWhen(bool holds, const char* message) {
        if (!holds)
            return;
        m_text += message;
        m_text += '\r';
    }
    std::string Text() const { return m_text; }

private:
    std::string m_text;
};

/// Rates and stretches are fractions. Intended: several conditions differ from what their messages suggest.
std::string CheckLoans(const MainScreen& screen) {
    const float baseRate = ParseFieldValue(screen.ecStdRate.Text, 100);
    const float labelledRate = ParseFieldValue(screen.ecGMHRate.Text, 100);
    const float baseStretch = ParseFieldValue(screen.ecStdStr.Text, 100);
    const float labelledStretch = ParseFieldValue(screen.ecGMHStr.Text, 100);
    const double labelled = labelledRate;

    Remarks remarks;
    remarks.AddWhen(baseRate == 0, "Standard Home Interest Rate is missing.");
    remarks.AddWhen(labelledRate < 0, "GREENMARK Home Interest Rate is missing.");
    remarks.AddWhen(baseRate > 0.2F || labelledRate > 0.2F, "Warning:  Interest rate > 20%.");
    remarks.AddWhen(labelledRate > baseRate,
                    "Warning:  GREENMARK Loan interest rate is higher than Standard Loan.");
    remarks.AddWhen(Single(labelled + 0.005) < baseRate,
                    "Note:  GREENMARK Loan interest rate may be too low.");
    remarks.AddWhen(
        Single(labelled + labelled * 0.25) < baseRate,
        "Note:  Standard Loan interest rate is significantly higher (>=25%) than the GREENMARK Loan "
        "interest rate.");
    remarks.AddWhen(labelledStretch < baseStretch,
                    "Warning:  Standard Home mortgage stretch is greater than GREENMARK stretch.");
    remarks.AddWhen(0.02F < baseStretch, "Warning:  Standard Home mortgage stretch is greater than 2%.");
    remarks.AddWhen(0.05F < labelledStretch, "Warning:  GREENMARK Home mortgage stretch is greater than 5%.");
    return remarks.Text();
}

} // namespace

std::string CheckHousePair(const HousePair& pair) {
    Remarks remarks;
    remarks.AddWhen(pair.StdCost == 0, "Cost of Standard Home is missing.");
    remarks.AddWhen(pair.GMHCost == 0, "Cost of GREENMARK Home is missing.");
    remarks.AddWhen(pair.StdUtil == 0, "Standard Home utility bill is missing.");
    remarks.AddWhen(pair.GMHUtil == 0, "GREENMARK utility bill is missing.");
    remarks.AddWhen(pair.GMHCost < pair.StdCost, "Note:  GREENMARK Home is cheaper!");
    remarks.AddWhen(Single(static_cast<double>(pair.StdCost) * 1.1) < pair.GMHCost,
                    "Note:  GREENMARK Home costs more than 10% more!");
    remarks.AddWhen(pair.StdUtil < pair.GMHUtil,
                    "Warning:  Standard Home Energy Bill is less than GREENMARK Home.");
    return remarks.Text();
}

std::string DataCheckText(const MainScreen& screen) {
    std::string collected = CheckHousePair(
        {ParseFieldValue(screen.ecStdHome.Text, 1), ParseFieldValue(screen.ecGMHHome.Text, 1),
         ParseFieldValue(screen.ecStdUtil.Text, 1), ParseFieldValue(screen.ecGMHUtil.Text, 1)});
    collected += CheckLoans(screen);
    Remarks income;
    income.AddWhen(ParseFieldValue(screen.ecIncome.Text, 1) == 0, "Annual Income is missing.");
    collected += income.Text();
    return collected.empty() ? collected : "Attention!\r\r" + collected + "\r";
}

void RunDataCheck(const MainScreen& screen, Host& host) {
    const std::string text = DataCheckText(screen);
    if (!text.empty())
        host.ShowMessage({"Ledgrove Data Check", text, MessageIcon::Exclamation});
}

} // namespace Ledgrove::Module1
