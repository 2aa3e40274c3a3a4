#include "insight/Takeaway.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "insight/AnswerWords.h"
#include "insight/QualifyWords.h"
#include "insight/YearsWords.h"

namespace Ledgrove {

namespace {

using Texts = std::vector<std::string>;

/// How far a person can go to make a condition hold.
constexpr double ratePoints = 1;
constexpr double downPoints = 10;
constexpr double priceShare = 0.10;
constexpr double buyerShare = 0.20; ///< of the income and of the debt

/// Whether the change is at most this part of the value now, or this many points.
bool IsWithin(const Answer& answer, double most, bool isShare) {
    constexpr double error = 1e-9; // 0.3 points may be a little more in binary numbers
    const double now = answer.ToValue - *answer.Change;
    return std::fabs(*answer.Change) <= (isShare ? most * now : most) + error;
}

bool IsFoundNearest(const std::optional<Answer>& answer) {
    return answer && answer->Kind == AnswerKind::Nearest && answer->State == AnswerState::Found;
}

/// "a price of $199,000 ($7,000 less)"
std::string GoalText(std::string_view what, const Answer& answer) {
    return std::string(what) + " of " + *answer.To + " (" + ChangeSize(answer) + " " +
           std::string(ChangeWord(answer)) + ")";
}

/// What a person can do about a condition that fails.
class Goals {
public:
    void Add(std::string_view what, const std::optional<Answer>& answer, double most, bool isShare) {
        if (IsFoundNearest(answer) && IsWithin(*answer, most, isShare))
            m_texts.push_back(GoalText(what, *answer));
    }

    /// A fixed down payment is limited by the part of the price.
    void AddDown(const std::optional<Answer>& answer, double price) {
        const bool isFixed = answer && answer->Input == "ecFixedDown";
        Add("a down payment", answer, isFixed ? price * downPoints / 100 : downPoints, false);
    }

    void AddOptions(const std::vector<OtherOption>& options) {
        constexpr std::size_t most = 2;
        Texts names;
        for (const OtherOption& option : options) {
            if (option.Missing.empty() && option.Qualifies && names.size() < most)
                names.emplace_back(option.Labelled.empty() ? option.Base : option.Labelled);
        }
        if (!names.empty())
            m_texts.push_back("the mortgage option " + Joined(names, " or "));
    }

    bool Empty() const { return m_texts.empty(); }
    std::string Text() const { return Joined(m_texts, " or "); }

private:
    Texts m_texts;
};

/// From the two prices: single precision would round the difference of large ones once more.
std::string PriceText(const Results& record) {
    const double difference =
        static_cast<double>(record.GMHCase.Cost) - static_cast<double>(record.StdCase.Cost);
    if (std::fabs(difference) < LeastShown)
        return "costs the same as the base home";
    return "costs " + DollarText(std::fabs(difference)) + (difference > 0 ? " more" : " less");
}

std::string BillText(const Results& record) {
    const double saving =
        static_cast<double>(record.StdCase.UtilAnnual) - static_cast<double>(record.GMHCase.UtilAnnual);
    const std::string amount = DollarText(std::fabs(saving)) + " a year";
    if (std::fabs(saving) < LeastShown)
        return "has the same utility bills";
    return saving > 0 ? "saves " + amount + " in utility bills"
                      : "costs " + amount + " more in utility bills";
}

/// What the home costs more and saves.
std::string CostSentence(const Results& record) {
    Texts parts{PriceText(record)};
    const auto cash = static_cast<double>(record.Scenario.ExtraCashToday);
    if (std::fabs(cash) >= LeastShown)
        parts.push_back("needs " + DollarText(std::fabs(cash)) + (cash > 0 ? " more" : " less") +
                        " down payment");
    parts.push_back(BillText(record));
    return "The GREENMARK home " + Joined(parts) + ".";
}

/// The monthly net with the tax line as it would really be; empty where the shown line is as good as right.
std::optional<double> RealNet(const Insight& insight, const TaxCheck& tax) {
    if (!insight.Now().IncludeTaxes || !DiffersFromShown(tax))
        return std::nullopt;
    return static_cast<double>(insight.Record().Scenario.NetBeforeTax) + tax.Real;
}

/// Whether the tax line decides if anything is left each month.
bool IsDoubtful(const Insight& insight, const TaxCheck& tax) {
    const auto real = RealNet(insight, tax);
    return real && (*real >= 0) != (insight.ShownNet(insight.Record()) >= 0);
}

/// The end of the sentence about the net.
std::string RealWords(const Insight& insight, const TaxCheck& tax) {
    const auto real = RealNet(insight, tax);
    if (!real)
        return ".";
    // A plain amount after "nothing is left" would contradict it.
    const auto net = static_cast<double>(insight.ShownNet(insight.Record()));
    const bool isLeftReally = *real >= LeastShown && net < 0;
    const std::string amount = "; with the tax line as it would really be, " + DollarText(*real);
    if (isLeftReally)
        return amount + " would be left.";
    return amount + (DollarText(*real) == DollarText(net) ? " as well." : ".");
}

/// The same after a sentence that ends with another amount.
std::string MonthlyRealWords(const Insight& insight, const TaxCheck& tax) {
    const auto real = RealNet(insight, tax);
    return real ? "; with the tax line as it would really be, " + DollarText(*real) + " a month." : ".";
}

std::string TaxWords(const Insight& insight, const TaxCheck& tax) {
    return (insight.Now().IncludeTaxes ? ", with income tax included" : ", without income tax") +
           RealWords(insight, tax);
}

/// The same for a loss. Its sign stands before the one with the real tax line, which has a sign too.
std::string LossWords(const Insight& insight, const TaxCheck& tax, double net) {
    if (!RealNet(insight, tax) || net > -LeastShown)
        return TaxWords(insight, tax);
    return ", with income tax included, a net of " + DollarText(net) + RealWords(insight, tax);
}

/// Whether more is left each month without ever making up for the extra down payment.
bool IsNeverEarnedBack(const Insight& insight, const YearByYear& years) {
    return insight.ShownNet(insight.Record()) >= 0 && !years.Ahead && years.ExtraCash > LeastShown;
}

/// What is left each month.
std::string NetSentence(const Insight& insight, const YearByYear& years, const TaxCheck& tax) {
    const auto net = static_cast<double>(insight.ShownNet(insight.Record()));
    const std::string amount = AmountText(std::fabs(net));
    const std::string taxes = TaxWords(insight, tax);
    if (net > 0 && IsNeverEarnedBack(insight, years)) {
        std::string first = amount;
        if (first.front() == 'l')
            first.front() = 'L';
        return first + " more is left each month, but the extra down payment of " +
               DollarText(years.ExtraCash) + " is not earned back in " + YearsText(years.InHome) +
               MonthlyRealWords(insight, tax);
    }
    if (net > 0)
        return "Each month " + amount + " more is left than with the base home" + taxes;
    if (net < 0)
        return "Nothing is left each month: the GREENMARK home costs " + amount +
               " more a month than the base home" + LossWords(insight, tax, net);
    return "Nothing is left each month: both homes cost the same a month" + taxes;
}

/// By how much the buyer is ahead after the years in the home.
double InHomeEnd(const YearByYear& years) {
    return years.Years[static_cast<std::size_t>(years.InHome) - 1].Cumulative;
}

/// "3 years and 2 months"
std::string MonthsWords(int months) {
    const int years = months / 12;
    const int rest = months % 12;
    const std::string inMonths = std::to_string(rest) + (rest == 1 ? " month" : " months");
    if (years == 0)
        return inMonths;
    return YearsText(years) + (rest == 0 ? "" : " and " + inMonths);
}

/// Whether the buyer would not be ahead with the tax line as it would really be.
bool IsAheadByTaxOnly(const Insight& insight, const YearByYear& years, const TaxCheck& tax) {
    if (!RealNet(insight, tax))
        return false;
    const double perMonth = tax.Real - static_cast<double>(tax.Shown);
    return InHomeEnd(years) + perMonth * 12 * years.InHome < 0;
}

/// A loss is that of a month in the middle of the loan, so that the buyer may be ahead all the same.
std::string EarnedBackSentence(const YearByYear& years, bool isLoss, bool isByTaxOnly) {
    std::string start = "The";
    if (isByTaxOnly)
        start = "With the tax line as shown, the";
    else if (isLoss)
        start = "Counted month by month, the";
    return start + " extra down payment of " + DollarText(years.ExtraCash) + " is earned back after " +
           MonthsWords(*years.Ahead) + ".";
}

/// When the buyer is ahead; empty if that is never. What only the shown tax line makes so is said with it,
/// or, without an extra down payment, not at all.
std::string AheadSentence(const Insight& insight, const YearByYear& years, const TaxCheck& tax) {
    if (!years.Ahead || IsDoubtful(insight, tax))
        return {};
    const bool isLoss = insight.ShownNet(insight.Record()) < 0;
    if (years.ExtraCash > LeastShown)
        return EarnedBackSentence(years, isLoss, IsAheadByTaxOnly(insight, years, tax));
    const double amount = InHomeEnd(years);
    if (amount < LeastShown || IsAheadByTaxOnly(insight, years, tax))
        return {};
    const std::string end = "by " + DollarText(amount) + " after " + YearsText(years.InHome) + ".";
    // Each month may cost more: then the cash that is not paid down makes up for it.
    if (isLoss && years.ExtraCash < -LeastShown)
        return "With " + DollarText(-years.ExtraCash) + " less down payment, the buyer is still ahead, " +
               end;
    if (isLoss)
        return "Counted month by month, the buyer is still ahead, " + end;
    return *years.Ahead == 0 ? "The buyer is ahead from the first day, " + end
                             : "The buyer is ahead after " + MonthsWords(*years.Ahead) + ", " + end;
}

/// A condition of its own after a price, or another way to say up to where.
struct ShareWords {
    std::string_view Link;
    std::string Text;
};

ShareWords WordsOfShare(double share) {
    const std::string text = ShareText(share);
    if (text == "0%")
        return {", and ", "even if none of the expected savings come true"};
    if (text == "100%")
        return {", and ", "only if all of the expected savings come true"};
    return {" or ", "with " + text + " of the expected savings"};
}

std::string PriceLimitText(const std::optional<Answer>& price) {
    if (!price || price->State != AnswerState::Found)
        return {};
    return *price->Change == 0 ? "at its price of " + *price->To + ", but not at a dollar more"
                               : "up to " + GoalText("a price", *price);
}

/// Up to which price, and with which part of the savings, the home pays.
std::string LimitSentence(const Insight& insight, const Breakeven& breakeven) {
    std::string text = PriceLimitText(breakeven.Price);
    if (breakeven.SavingsShare) {
        const ShareWords share = WordsOfShare(*breakeven.SavingsShare);
        if (!text.empty())
            text += share.Link;
        text += share.Text;
    }
    if (text.empty())
        return {};
    // Without anything left, it does no more than pay for itself.
    const bool isEven = insight.ShownNet(insight.Record()) < static_cast<float>(LeastShown);
    return (isEven ? "It pays for itself " : "It still pays each month ") + text + ".";
}

/// What would make the home pay.
std::string NearestSentence(const Breakeven& breakeven) {
    Goals goals;
    goals.Add("a price", breakeven.Price, priceShare, true);
    goals.Add("an interest rate", breakeven.Rate, ratePoints, false);
    return goals.Empty() ? "" : "It would pay each month with " + goals.Text() + ".";
}

std::string BreakevenSentence(const Insight& insight, const Breakeven& breakeven, const TaxCheck& tax) {
    // With the tax line as it would really be, the answer would be another one.
    if (IsDoubtful(insight, tax))
        return {};
    return insight.ShownNet(insight.Record()) >= 0 ? LimitSentence(insight, breakeven)
                                                   : NearestSentence(breakeven);
}

std::string BothSentence(const HomeQualification& base, const HomeQualification& labelled) {
    const auto clause = [](const char* name, const HomeQualification& home) {
        return std::string(name) + (NeedsNoMortgage(home)
                                        ? " " + NoMortgagePhrase(home)
                                        : " has room for " + RoomAmount(home) + " more loan");
    };
    const std::string both = "The buyer qualifies for both homes";
    if (NeedsNoMortgage(base) || NeedsNoMortgage(labelled))
        return both + ": " + clause("the base home", base) + ", and " +
               clause("the GREENMARK home", labelled) + ".";
    return both + RoomPhrase(base) + " for the base home and " + RoomAmount(labelled) +
           " for the GREENMARK home.";
}

std::string OneSentence(const std::string& name, const HomeQualification& home, const std::string& otherName,
                        const HomeQualification& other) {
    const std::string why =
        AllowsNoMortgage(other) ? NoMortgageWords : "its mortgage is " + ExcessPhrase(other);
    return "The buyer qualifies for the " + name + RoomPhrase(home) + ", but not for the " + otherName +
           ": " + why + ".";
}

std::string NeitherSentence(const HomeQualification& base, const HomeQualification& labelled) {
    const std::string neither = "The buyer qualifies for neither home: ";
    const std::string mortgage = "the mortgage of the ";
    if (AllowsNoMortgage(base) && AllowsNoMortgage(labelled))
        return neither + NoMortgageWords + ".";
    if (AllowsNoMortgage(base))
        return neither + mortgage + "GREENMARK home is " + ExcessPhrase(labelled) + "; for the base home, " +
               NoMortgageWords + ".";
    if (AllowsNoMortgage(labelled))
        return neither + mortgage + "base home is " + ExcessPhrase(base) + "; for the GREENMARK home, " +
               NoMortgageWords + ".";
    return neither + mortgage + "base home is " + ExcessPhrase(base) + ", that of the GREENMARK home " +
           ExcessPhrase(labelled) + ".";
}

std::string QualifySentence(const Qualification& qualification) {
    const HomeQualification& base = qualification.Std;
    const HomeQualification& labelled = qualification.GMH;
    if (base.Qualifies && labelled.Qualifies)
        return BothSentence(base, labelled);
    if (base.Qualifies)
        return OneSentence("base home", base, "GREENMARK home", labelled);
    if (labelled.Qualifies)
        return OneSentence("GREENMARK home", labelled, "base home", base);
    return NeitherSentence(base, labelled);
}

/// What would help a buyer who does not qualify for the home.
std::string HelpSentence(std::string_view name, const HomeQualification& own, float price) {
    if (own.Qualifies)
        return {};
    Goals goals;
    goals.AddDown(own.Down, static_cast<double>(price));
    goals.Add("a price", own.Price, priceShare, true);
    goals.Add("an income", own.Income, buyerShare, true);
    goals.Add("a monthly debt", own.Debt, buyerShare, true);
    goals.Add("an interest rate", own.Rate, ratePoints, false);
    goals.AddOptions(own.Options);
    if (goals.Empty())
        return {};
    return "The buyer would qualify for the " + std::string(name) + " with " + goals.Text() + ".";
}

} // namespace

Takeaway ComputeTakeaway(const Insight& insight, const Breakeven& breakeven,
                         const Qualification& qualification, const YearByYear& years, const TaxCheck& tax) {
    const Results& record = insight.Record();
    Takeaway takeaway;
    for (std::string& sentence :
         Texts{CostSentence(record), NetSentence(insight, years, tax), AheadSentence(insight, years, tax),
               BreakevenSentence(insight, breakeven, tax), QualifySentence(qualification),
               HelpSentence("base home", qualification.Std, record.StdCase.Cost),
               HelpSentence("GREENMARK home", qualification.GMH, record.GMHCase.Cost)}) {
        if (!sentence.empty())
            takeaway.Sentences.push_back(std::move(sentence));
    }
    return takeaway;
}

Sheet TakeawaySheet(const Takeaway& takeaway) {
    Sheet sheet;
    sheet.Title = "Takeaway";
    sheet.Heads = {"In Short"};
    for (const std::string& sentence : takeaway.Sentences)
        sheet.Rows.push_back({TextCell(sentence)});
    return sheet;
}

} // namespace Ledgrove
