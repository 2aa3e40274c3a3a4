#include "ui/ChangesAnswer.h"

#include <algorithm>

#include "insight/Diff.h"
#include "insight/Insight.h"
#include "ui/ChangesWords.h"
#include "ui/DiffChart.h"

namespace Ledgrove {

namespace {

/// The names of the sides as table heads.
DiffNames NamesOf(const ComparedSide& from, const ComparedSide& to) {
    return {"From", "To", "From " + ShortName(from.Name), "To " + ShortName(to.Name)};
}

std::string MissingFrom(const ComparedSide& side, const Insight& insight) {
    return insight.Missing().empty() ? std::string()
                                     : MissingSentence(side.Name, insight.Now(), insight.Missing());
}

void AddFigure(ChangesAnswer& answer, const Diff& diff, const DiffNames& names, const std::string& name) {
    if (diff.Figures.empty())
        return;
    const auto chosen = std::ranges::find(diff.Figures, name, &DiffFigure::Figure);
    const DiffFigure& figure = chosen == diff.Figures.end() ? *diff.MainFigure() : *chosen;
    answer.Chosen = static_cast<std::size_t>(&figure - diff.Figures.data());
    for (const DiffFigure& moved : diff.Figures)
        answer.Names.emplace_back(moved.Figure);
    answer.Caption = DiffCaption(figure.Figure);
    answer.Parts = DiffPartsSheet(diff, figure, names);
    answer.Picture = MakeWaterfall(diff, figure, names);
}

} // namespace

ChangesAnswer CompareSides(const ComparedSide& from, const ComparedSide& to, const std::string& figure) {
    const Insight a(from.State->Screen, *from.State);
    const Insight b(to.State->Screen, *to.State);
    ChangesAnswer answer;
    answer.Missing = MissingFrom(from, a);
    if (answer.Missing.empty())
        answer.Missing = MissingFrom(to, b);
    if (!answer.Missing.empty())
        return answer;
    const Diff diff = ComputeDiff(a, b);
    const DiffNames names = NamesOf(from, to);
    answer.Sentence = ChangesSentence(diff, {from.Name, to.Name, ShownNetText(a)});
    answer.Inputs = DiffInputsSheet(diff, names);
    answer.Figures = DiffFiguresSheet(diff, names);
    answer.Figures.Title = "Figures that moved";
    AddFigure(answer, diff, names, figure);
    return answer;
}

} // namespace Ledgrove
