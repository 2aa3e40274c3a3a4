#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "insight/Insight.h"
#include "insight/Sheet.h"

// What moves the result: each input alone, a little less and a little more.
namespace Ledgrove {

/// A value that was put in: the text of a field, or the number of an assumption in the settings file's unit.
struct PutValue {
    std::string Text; ///< empty for an assumption
    double Number = 0;
    bool IsText = false;
};

struct SensitivitySide {
    std::vector<PutValue> Values;
    bool IsList = false;                          ///< several inputs that move together
    float ShownNet = 0;                           ///< per month
    float PVSavings = 0;                          ///< dollars
    std::optional<float> SavingsAfterYearsInHome; ///< dollars; empty if too large for a number
    double GMHMargin = 0;                         ///< the labelled home's MaxLoan less LoanAmount
};

struct SensitivityRow {
    std::string_view Input;             ///< "upgrade"
    std::optional<SensitivitySide> Low; ///< empty if there is no lower value, or no figures for it
    std::optional<SensitivitySide> High;
    double NetMove = 0; ///< how far the shown net moves between the sides, in dollars a month
};

struct Sensitivity {
    double By = 10;                   ///< percent
    std::vector<SensitivityRow> Rows; ///< the one that moves the net most comes first
};

/// `by` is above 0 and at most 100, in percent. The insight must not be missing.
Sensitivity ComputeSensitivity(const Insight& insight, double by);

Sheet SensitivitySheet(const Insight& insight, const Sensitivity& sensitivity);

} // namespace Ledgrove
