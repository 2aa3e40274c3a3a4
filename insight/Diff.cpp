#include "insight/Diff.h"

#include <algorithm>
#include <bit>
#include <cstdint>

#include "engine/NumberText.h"
#include "engine/ShowResults.h"
#include "insight/DiffFigures.h"
#include "insight/DiffInputs.h"

namespace Ledgrove {

namespace {

/// A set of inputs that have changed already, a bit for each.
using Subset = std::uint32_t;

constexpr std::string_view netLabel = "lblNetCashMoTx";

bool HasHomeFault(const Results& results) {
    return FaultOf(results.Decisions.Std) != Fault::None || FaultOf(results.Decisions.GMH) != Fault::None;
}

/// The comparisons between A and B: some inputs have changed, the others not yet.
class Mixtures {
public:
    /// `movers` are the inputs that can move a figure.
    Mixtures(const Insight& a, const Insight& b, std::vector<const EnteredInput*> movers)
        : m_a(a)
        , m_b(b)
        , m_movers(std::move(movers))
        , m_all((Subset{1} << m_movers.size()) - 1) {}

    /// Evaluates every mixture. `figures` are those to keep.
    void Evaluate(const std::vector<const LabelFigure*>& figures) {
        m_values.assign(figures.size(), std::vector<double>(m_all + 1));
        m_isComputable.resize(m_all + 1);
        for (Subset subset = 0; subset <= m_all; ++subset) {
            const Inputs inputs = InputsOf(subset);
            const Results results = m_a.At(inputs);
            m_isComputable[subset] = IsComputable(results);
            for (std::size_t at = 0; at < figures.size(); ++at)
                m_values[at][subset] = figures[at]->Value(results, inputs.IncludeTaxes);
        }
        CountOrders();
    }

    bool HasOrders() const { return m_from[m_all] > 0; }

    /// The contribution of a mover to the figure at this index.
    double PartOf(std::size_t figure, std::size_t mover) const {
        const std::vector<double>& values = m_values[figure];
        const Subset own = Subset{1} << mover;
        double part = 0;
        for (Subset subset = 0; subset <= m_all; ++subset) {
            if ((subset & own) == 0)
                part += m_from[subset] * m_to[subset | own] * (values[subset | own] - values[subset]);
        }
        return part / m_from[m_all];
    }

private:
    Inputs InputsOf(Subset subset) const {
        Inputs inputs = m_a.Now();
        for (std::size_t mover = 0; mover < m_movers.size(); ++mover) {
            if (subset >> mover & 1)
                m_movers[mover]->Copy(m_b.Now(), inputs);
        }
        return inputs;
    }

    bool IsComputable(const Results& results) const {
        const Fault fault = results.Decisions.CashFlowFault;
        return !HasHomeFault(results) &&
               (fault == Fault::None || fault == m_a.Record().Decisions.CashFlowFault ||
                fault == m_b.Record().Decisions.CashFlowFault);
    }

    /// The orders in which the inputs of each subset can change first, and those in which the others can
    /// change then, through mixtures that can be computed.
    void CountOrders() {
        m_from.assign(m_all + 1, 0);
        m_to.assign(m_all + 1, 0);
        m_from[0] = m_to[m_all] = 1;
        for (Subset subset = 0; subset <= m_all; ++subset) {
            AddOrders(m_from, subset, subset);
            AddOrders(m_to, m_all ^ subset, subset);
        }
    }

    /// Adds up the orders of the neighbours, which differ from the subset by one of the inputs in `steps`.
    void AddOrders(std::vector<double>& orders, Subset subset, Subset steps) const {
        if (!m_isComputable[subset])
            return;
        for (Subset left = steps; left != 0; left &= left - 1)
            orders[subset] += orders[subset ^ (Subset{1} << std::countr_zero(left))];
    }

    const Insight& m_a;
    const Insight& m_b;
    std::vector<const EnteredInput*> m_movers;
    Subset m_all;
    std::vector<std::vector<double>> m_values; ///< of each figure for each subset
    std::vector<bool> m_isComputable;
    std::vector<double> m_from; ///< orders from A to the subset
    std::vector<double> m_to;   ///< orders from the subset to B
};

bool Moves(const EnteredInput& input, const Insight& a, const Insight& b) {
    if (!input.Copy)
        return false;
    Inputs changed = a.Now();
    input.Copy(b.Now(), changed);
    return changed != a.Now();
}

/// Whether both texts are the same number: a rate that nobody has typed is shown without its format.
bool IsSameNumber(std::string_view a, std::string_view b) {
    const auto number = Module1::ReadStrippedNumber(a);
    return number && number == Module1::ReadStrippedNumber(b);
}

/// The result labels of a comparison.
MainScreen LabelsOf(const Insight& insight) {
    MainScreen screen = insight.Screen();
    Module1::ShowResults(insight.Record(), screen);
    return screen;
}

/// Collects the inputs and figures that differ, then what each of the inputs contributes.
class DiffWriter {
public:
    DiffWriter(const Insight& a, const Insight& b)
        : m_a(a)
        , m_b(b) {}

    Diff Write() {
        AddInputs();
        AddFigures();
        AddParts();
        return std::move(m_diff);
    }

private:
    void AddInputs() {
        for (const EnteredInput& input : EnteredInputs()) {
            std::string a = input.Text(m_a.Screen());
            std::string b = input.Text(m_b.Screen());
            const bool moves = Moves(input, m_a, m_b);
            if (a == b || (!moves && IsSameNumber(a, b)))
                continue;
            // The others would double the mixtures and add nothing.
            if (moves) {
                m_places.push_back(m_diff.Inputs.size());
                m_movers.push_back(&input);
            }
            m_diff.Inputs.push_back({input.Name, input.Caption, std::move(a), std::move(b)});
        }
    }

    void AddFigures() {
        const MainScreen a = LabelsOf(m_a);
        const MainScreen b = LabelsOf(m_b);
        const bool taxesA = m_a.Now().IncludeTaxes;
        const bool taxesB = m_b.Now().IncludeTaxes;
        for (const LabelFigure& figure : LabelFigures()) {
            const std::string& textA = (a.*figure.First).Text;
            const std::string& textB = (b.*figure.First).Text;
            if (textA == textB)
                continue;
            m_figures.push_back(&figure);
            m_diff.Figures.push_back({NameOf(figure, taxesA, taxesB), LabelName(figure.First), textA, textB,
                                      figure.Value(m_a.Record(), taxesA), figure.Value(m_b.Record(), taxesB),
                                      std::nullopt});
        }
    }

    void AddParts() {
        if (m_figures.empty())
            return;
        Mixtures mixtures(m_a, m_b, m_movers);
        mixtures.Evaluate(m_figures);
        if (!mixtures.HasOrders())
            return;
        for (std::size_t figure = 0; figure < m_figures.size(); ++figure) {
            auto& parts = m_diff.Figures[figure].Parts.emplace(m_diff.Inputs.size());
            for (std::size_t mover = 0; mover < m_movers.size(); ++mover)
                parts[m_places[mover]] = mixtures.PartOf(figure, mover);
        }
    }

    const Insight& m_a;
    const Insight& m_b;
    Diff m_diff;
    std::vector<const EnteredInput*> m_movers;
    std::vector<std::size_t> m_places; ///< of the movers among the inputs that differ
    std::vector<const LabelFigure*> m_figures;
};

} // namespace

const DiffFigure* Diff::FigureOfLabel(std::string_view label) const {
    const auto found = std::find_if(Figures.begin(), Figures.end(),
                                    [label](const DiffFigure& figure) { return figure.Label == label; });
    return found == Figures.end() ? nullptr : &*found;
}

const DiffFigure* Diff::MainFigure() const {
    const DiffFigure* const net = FigureOfLabel(netLabel);
    return net || Figures.empty() ? net : &Figures.front();
}

Diff ComputeDiff(const Insight& a, const Insight& b) {
    return DiffWriter(a, b).Write();
}

} // namespace Ledgrove
