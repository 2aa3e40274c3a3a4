#include "ui/DiffChart.h"

#include <algorithm>

namespace Ledgrove {

namespace {

constexpr int mostSteps = 5;

/// How far 0 may lie from the bars, as a multiple of what they span.
constexpr double farthestZero = 2;

/// Parts below half a cent round to nothing.
constexpr double leastPart = 0.005;

/// The chart while it grows from A to B.
class Waterfall {
public:
    Waterfall(const Diff& diff, const DiffFigure& figure, const DiffNames& names)
        : m_rows(DiffPartsSheet(diff, figure, names).Rows) {
        m_chart.Kind = ChartKind::Waterfall;
        m_chart.Title = "What Changes the " + DiffCaption(figure.Figure);
        m_chart.Series = {{"From", {}}, {"To", {}}};
        m_chart.Lowest = m_chart.Highest = figure.A;
    }

    void AddTotal(double value, std::size_t row) { Add(value, value, row, totalColumn); }

    void AddPart(double from, double to, std::size_t row) { Add(from, to, row, changeColumn); }

    ChartFigures Finished(std::string sentence) {
        m_chart.Sentence = std::move(sentence);
        const double range = m_chart.Highest - m_chart.Lowest;
        // Totals begin at 0 unless that would make the steps between them too small to see.
        if (m_chart.Lowest > 0 && m_chart.Lowest <= range * farthestZero)
            m_chart.Lowest = 0;
        if (m_chart.Highest < 0 && -m_chart.Highest <= range * farthestZero)
            m_chart.Highest = 0;
        const double margin = std::max(range * 0.08, 0.5);
        SetSpan(m_chart, m_chart.Lowest - margin, m_chart.Highest + margin, mostSteps);
        return std::move(m_chart);
    }

private:
    static constexpr std::size_t changeColumn = 3;
    static constexpr std::size_t totalColumn = 4;

    void Add(double from, double to, std::size_t row, std::size_t column) {
        const std::string& caption = m_rows[row].front().Text;
        const std::string& text = m_rows[row][column].Text;
        m_chart.Categories.push_back(caption);
        m_chart.Series[0].Values.push_back(from);
        m_chart.Series[1].Values.push_back(to);
        m_chart.Series[1].Texts.push_back(text);
        m_chart.Lowest = std::min({m_chart.Lowest, from, to});
        m_chart.Highest = std::max({m_chart.Highest, from, to});
        m_chart.Numbers += (m_chart.Numbers.empty() ? "" : " ") + caption + ": " + text + ".";
    }

    std::vector<std::vector<SheetCell>> m_rows;
    ChartFigures m_chart;
};

} // namespace

std::optional<ChartFigures> MakeWaterfall(const Diff& diff, const DiffFigure& figure,
                                          const DiffNames& names) {
    if (!figure.Parts || figure.Figure.ends_with(".Qualifies"))
        return std::nullopt;
    Waterfall chart(diff, figure, names);
    chart.AddTotal(figure.A, 0);
    double total = figure.A;
    for (std::size_t at = 0; at < figure.Parts->size(); ++at) {
        const double part = (*figure.Parts)[at];
        if (part >= leastPart || part <= -leastPart)
            chart.AddPart(total, total + part, at + 1);
        total += part;
    }
    chart.AddTotal(figure.B, figure.Parts->size() + 1);
    return chart.Finished(DiffPartsSheet(diff, figure).Sentence);
}

} // namespace Ledgrove
