#include "insight/ExplainWriter.h"

#include <cmath>

#include "engine/NumberText.h"
#include "insight/ExplainWords.h"
#include "insight/Expression.h"

namespace Ledgrove {

namespace {

constexpr std::string_view tooLarge = "The amount is too large to compute with";

/// The labels show whole dollars.
std::string LabelText(double value) {
    return Module1::MoneyText(static_cast<float>(value));
}

void TakeLabels(ExplainedFigure& figure, ExplanationWriter::Labels labels) {
    for (const auto label : labels)
        figure.Labels.push_back(LabelName(label));
    if (!figure.Labels.empty() && figure.Text.empty())
        figure.Text = LabelText(figure.Value);
}

ExplainedFigure NewFigure(std::string name, std::string because) {
    ExplainedFigure figure;
    figure.Figure = std::move(name);
    figure.Because = std::move(because);
    return figure;
}

} // namespace

std::string AsReason(std::string sentence) {
    if (sentence.ends_with('.'))
        sentence.pop_back();
    return sentence;
}

std::string ExplanationWriter::WithHome(std::string_view text) const {
    std::string result;
    result.reserve(text.size() + 32);
    for (const char c : text) {
        if (c == '@')
            result += m_home == HomeCode::GMH ? "GMHCase." : "StdCase.";
        else
            result += c;
    }
    return result;
}

Figure ExplanationWriter::OfHome(Figure figure) const {
    constexpr auto firstGMH = static_cast<int>(Figure::GMHCost);
    const auto index = static_cast<int>(figure);
    return m_home == HomeCode::GMH && index < firstGMH ? static_cast<Figure>(index + firstGMH) : figure;
}

const ExplainedFigure& ExplanationWriter::Use(std::string_view name) {
    if (const ExplainedFigure* const known = m_result.Find(name))
        return *known;
    AddLeaf(LeafOf(m_insight, name));
    return m_result.Figures.back();
}

double ExplanationWriter::ValueOf(std::string_view name) {
    return Use(WithHome(name)).Value;
}

void ExplanationWriter::AddLeaf(ExplainedFigure leaf, Labels labels) {
    if (labels.size() > 0)
        leaf.Text.clear();
    TakeLabels(leaf, labels);
    m_result.Figures.push_back(std::move(leaf));
}

void ExplanationWriter::Finish(ExplainedFigure figure, const Expression& expression) {
    const FigureWords words = WordsOf(figure.Figure);
    figure.Caption = CaptionOfFigure(figure.Figure);
    figure.Unit = words.Unit;
    figure.Values = expression.Names();
    figure.InWords =
        Phrase(expression.Whole(), [&](std::string_view name) { return InWordsFor(figure.Figure, name); });
    figure.WithNumbers = Phrase(expression.Whole(), [this](std::string_view name) {
        const ExplainedFigure& used = Use(name);
        const std::string text = NumberText(used.Value, used.Unit);
        return text.starts_with('-') ? "(" + text + ")" : text;
    });
    if (figure.Text.empty())
        figure.Text = ValueText(figure.Value, figure.Unit);
    m_result.Figures.push_back(std::move(figure));
}

void ExplanationWriter::Add(Figure figure, std::string_view text, std::string because, Labels labels) {
    const FigureEntry& entry = EntryOf(OfHome(figure));
    ExplainedFigure added = NewFigure(std::string(entry.FullName), std::move(because));
    added.Expression = WithHome(text);
    const Expression expression(added.Expression);
    for (const std::string& name : expression.Names())
        Use(name);
    added.Value = static_cast<double>(entry.Value(m_insight.Record()));
    TakeLabels(added, labels);
    Finish(std::move(added), expression);
}

void ExplanationWriter::AddCashFlow(Figure figure, std::string_view text, std::string because,
                                    Labels labels) {
    const float stored = EntryOf(figure).Value(m_insight.Record());
    if (m_insight.Record().Decisions.CashFlowFault != Fault::None && stored == 0) {
        const auto computed =
            Expression(text).Evaluate([this](std::string_view name) { return ValueOf(name); });
        if (!computed.Fault.empty() || static_cast<float>(computed.Number) != 0)
            return Add(figure, "0", std::string(tooLarge), labels);
    }
    Add(figure, text, std::move(because), labels);
}

void ExplanationWriter::AddOwn(std::string_view name, std::string_view text, std::string because,
                               Labels labels) {
    AddComputed(NewFigure(WithHome(name), std::move(because)), text, labels);
}

void ExplanationWriter::AddShown(std::string_view name, std::string_view text, std::string because,
                                 std::string shown, Labels labels) {
    ExplainedFigure added = NewFigure(WithHome(name), std::move(because));
    added.Text = std::move(shown);
    AddComputed(std::move(added), text, labels);
}

void ExplanationWriter::AddComputed(ExplainedFigure added, std::string_view text, Labels labels) {
    added.Expression = WithHome(text);
    Expression expression(added.Expression);
    const ExpressionValue value =
        expression.Evaluate([this](std::string_view used) { return Use(used).Value; });
    added.Value = value.Number;
    TakeLabels(added, labels);
    // A label shows the amount in single precision.
    if (!value.Fault.empty() || !std::isfinite(static_cast<float>(value.Number))) {
        added.Value = 0;
        added.Expression = "0";
        added.Because = tooLarge;
        expression = Expression(added.Expression);
    }
    Finish(std::move(added), expression);
}

void ExplanationWriter::AddRounded(std::string_view name, std::string_view text, std::string because) {
    AddOwn(name, text, std::move(because));
    ExplainedFigure& added = m_result.Figures.back();
    added.Value = static_cast<double>(static_cast<float>(added.Value));
}

void ExplanationWriter::AddRounding(std::string_view name, double value) {
    ExplainedFigure rounding = NewFigure(WithHome(name), {});
    rounding.Caption = CaptionOfFigure(rounding.Figure);
    rounding.Value = value;
    rounding.Unit = WordsOf(rounding.Figure).Unit;
    rounding.Text = ValueText(value, rounding.Unit);
    rounding.From = "rounding to cents, then to whole dollars";
    AddLeaf(std::move(rounding));
}

Explanation ComputeExplanation(const Insight& insight) {
    ExplanationWriter writer(insight);
    ExplainPrices(writer);
    ExplainHomeCosts(writer);
    ExplainAffordability(writer);
    ExplainCashFlow(writer);
    return writer.Take();
}

} // namespace Ledgrove
