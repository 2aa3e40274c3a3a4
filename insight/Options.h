#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "insight/Insight.h"
#include "insight/Sheet.h"

// The comparison with every allowed pair of mortgage options.
namespace Ledgrove {

/// A home with one option; amounts as in the records.
struct OptionHome {
    HomeCase Figures;
    bool Qualifies = false;
    double Margin = 0;                   ///< MaxLoan less LoanAmount, in dollars
    std::optional<Step> IncomeToQualify; ///< the least income per year in dollars; empty if none is enough
};

/// Where a row's labelled home can be best of all.
enum class BestIn : std::uint8_t { Payment, Cash, Room, Net, Income };

inline constexpr std::array<std::string_view, 5> BestNames{"payment", "cash", "room", "net", "income"};

struct OptionAnswer {
    std::string_view Base;
    std::string_view Labelled;
    std::string Missing; ///< why the pair has no figures; empty if it has
    OptionHome Std;
    OptionHome GMH;
    float ShownNet = 0;       ///< per month
    float ExtraCashToday = 0; ///< dollars
    float PVSavings = 0;      ///< dollars
    /// The labelled home's largest loan less that with the plain option of the group; empty if that faults.
    std::optional<double> LoanGain;
    std::vector<BestIn> Best;
};

struct OptionTable {
    std::vector<OptionAnswer> Rows;
    int Current = -1;     ///< the index of the pair that is chosen now
    std::string Sentence; ///< what the payments leave out, and where they tie
};

/// The insight must not be missing.
OptionTable ComputeOptions(const Insight& insight);

Sheet OptionsSheet(const OptionTable& options);

} // namespace Ledgrove
