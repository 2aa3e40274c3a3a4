#include <utility>

#include "insight/AnswerWords.h"
#include "insight/Breakeven.h"

namespace Ledgrove {

namespace {

std::string PriceSentence(const Answer& price) {
    const std::string pays = "The GREENMARK home pays for itself ";
    switch (price.State) {
    case AnswerState::Never:
        return "No lower price would make the GREENMARK home pay for itself.";
    case AnswerState::Always:
        return pays + "at every price up to " + *price.To + ".";
    case AnswerState::Found:
        break;
    }
    if (price.Kind == AnswerKind::Nearest)
        return "The GREENMARK home does not pay for itself at its price now. It would at " + *price.To +
               ", " + ChangeSize(price) + " less.";
    if (*price.Change == 0)
        return pays + "at its price of " + *price.To + ", but not at a dollar more.";
    return pays + "up to a price of " + *price.To + ", " + ChangeSize(price) + " more than now.";
}

std::string BillSentence(const Breakeven& breakeven) {
    const Answer& bill = *breakeven.Bill;
    const bool priceHelps = breakeven.Price && breakeven.Price->State == AnswerState::Found;
    if (bill.State == AnswerState::Never)
        return "Not even a bill of $0 would do.";
    if (bill.Kind == AnswerKind::Nearest)
        return std::string(priceHelps ? "It would also" : "It would") + " pay with a utility bill of " +
               *bill.To + " a year, " + ChangeSize(bill) + " less than expected.";
    if (bill.State == AnswerState::Always)
        return "It pays whatever its utility bill is, up to " + *bill.To + " a year.";
    std::string sentence = "Its utility bill may be as high as " + *bill.To + " a year";
    if (breakeven.SavingsShare) {
        const std::string share = ShareText(*breakeven.SavingsShare);
        sentence += share == "0%" ? ": it pays even if none of the expected savings come true"
                                  : ": " + share + " of the expected savings are enough";
    }
    return sentence + ".";
}

} // namespace

Sheet BreakevenSheet(const Insight& insight, const Breakeven& breakeven) {
    Sheet sheet;
    sheet.Title = "Break-even";
    sheet.Sentence = breakeven.Price
                         ? PriceSentence(*breakeven.Price)
                         : "It is not known up to which price the GREENMARK home pays for itself.";
    if (breakeven.Bill)
        sheet.Sentence += " " + BillSentence(breakeven);
    sheet.Heads = {"GREENMARK Home", "Now", "Pays Up To", "Change"};
    const auto add = [&](const char* what, const std::optional<Answer>& answer) {
        const std::string now = answer ? answer->From : "";
        sheet.Rows.push_back({TextCell(what), TextCell(answer && now.empty() ? EmptyFieldText : now),
                              AnswerCell(answer, "unknown"), ChangeCell(answer)});
    };
    add(insight.Now().IncludeTaxes ? "Price, with tax savings" : "Price", breakeven.Price);
    if (insight.Now().IncludeTaxes)
        add("Price, before tax savings", breakeven.PriceBeforeTax);
    add("Price that the energy savings are worth", breakeven.SavingsPrice);
    add("Annual utility cost", breakeven.Bill);
    add("Interest rate", breakeven.Rate);
    if (breakeven.SavingsShare) {
        const double percent = *breakeven.SavingsShare * 100;
        sheet.Rows.push_back(
            {TextCell("Share of the savings that must come true"),
             TextCell("100%"),
             {ShareText(*breakeven.SavingsShare), percent, CellUnit::Percent, CellMark::None},
             {}});
    }
    return sheet;
}

} // namespace Ledgrove
