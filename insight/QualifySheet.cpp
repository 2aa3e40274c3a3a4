#include <algorithm>
#include <array>
#include <utility>

#include "insight/AnswerWords.h"
#include "insight/QualifyWords.h"

namespace Ledgrove {

namespace {

struct QuestionRow {
    const char* Caption;
    const char* InSentence;
    std::optional<Answer> HomeQualification::*Member;
};

constexpr std::array<QuestionRow, 7> questions{
    {{"Annual income", "income", &HomeQualification::Income},
     {"Monthly debt", "debt", &HomeQualification::Debt},
     {"Down payment", "down payment", &HomeQualification::Down},
     {"Price", "price", &HomeQualification::Price},
     {"Annual utility cost", "utility cost", &HomeQualification::Bill},
     {"Interest rate", "rate", &HomeQualification::Rate},
     {"Term", "term", &HomeQualification::Term}}};

SheetCell QualifiesCell(bool qualifies) {
    return TextCell(qualifies ? "YES" : "NO", qualifies ? CellMark::None : CellMark::Bad);
}

/// "$93,077 (-$1,923)" for a limit, "needs $113,761 (+$1,761)" for a nearest.
SheetCell QuestionCell(const std::optional<Answer>& answer) {
    SheetCell cell = AnswerCell(answer, "does not count");
    if (!answer || !answer->To)
        return cell;
    if (answer->Kind == AnswerKind::Nearest)
        cell.Text = "needs " + cell.Text;
    const std::string change = ChangeCell(answer).Text;
    if (!change.empty() && *answer->Change != 0)
        cell.Text += " (" + change + ")";
    return cell;
}

std::string RoomSentence(const char* home, const HomeQualification& own) {
    if (own.Qualifies)
        return std::string("The buyer qualifies for the ") + home + RoomPhrase(own) + ".";
    std::string sentence = std::string("The buyer does not qualify for the ") + home + ": " +
                           (AllowsNoMortgage(own) ? NoMortgageWords : "the loan is " + ExcessPhrase(own));
    if (own.Income && own.Income->To)
        sentence += "; an income of " + *own.Income->To + " a year would do";
    return sentence + ".";
}

/// The first answer of the home that stops at an edge.
std::string HomeEdge(const char* home, const HomeQualification& own) {
    for (const QuestionRow& question : questions) {
        const auto& answer = own.*question.Member;
        if (!answer)
            continue;
        if (const std::string edge = EdgePhrase(*answer); !edge.empty())
            return std::string(" ") + home + ", " + question.InSentence + " " + *answer->To + ": " + edge;
    }
    return {};
}

void AddOptions(Sheet& sheet, const std::vector<OtherOption>& options, bool labelled) {
    for (const OtherOption& option : options) {
        std::string caption = "With " + std::string(option.Base);
        if (labelled)
            caption += " / " + std::string(option.Labelled);
        SheetCell cell = option.Missing.empty() ? QualifiesCell(option.Qualifies) : TextCell(option.Missing);
        std::vector<SheetCell> row{TextCell(std::move(caption)), {}, {}};
        row.front().Entries = {{"cboStdMortOption", std::string(option.Base)}};
        if (labelled)
            row.front().Entries.push_back({"cboGMHMortOption", std::string(option.Labelled)});
        row[labelled ? 2 : 1] = std::move(cell);
        sheet.Rows.push_back(std::move(row));
    }
}

} // namespace

Sheet QualifySheet(const Qualification& qualification) {
    const HomeQualification& base = qualification.Std;
    const HomeQualification& labelled = qualification.GMH;
    Sheet sheet;
    sheet.Title = "Who qualifies";
    sheet.Sentence = RoomSentence("base home", base) + " " + RoomSentence("GREENMARK home", labelled) +
                     HomeEdge("Base home", base) + HomeEdge("GREENMARK home", labelled);
    sheet.Heads = {"Buyer Qualifies", "Base Home", "GREENMARK Home"};
    sheet.Rows.push_back({TextCell("Now"), QualifiesCell(base.Qualifies), QualifiesCell(labelled.Qualifies)});
    sheet.Rows.push_back(
        {TextCell("Room for a larger loan"), DollarCell(base.Margin), DollarCell(labelled.Margin)});
    for (const QuestionRow& question : questions) {
        const bool ofBase = question.Member != &HomeQualification::Bill;
        sheet.Rows.push_back({TextCell(question.Caption),
                              ofBase ? QuestionCell(base.*question.Member) : SheetCell(),
                              QuestionCell(labelled.*question.Member)});
    }
    AddOptions(sheet, base.Options, false);
    AddOptions(sheet, labelled.Options, true);
    return sheet;
}

} // namespace Ledgrove
