#include "app/batch/InsightJson.h"

namespace Ledgrove::Json {

namespace {

std::string_view StateName(AnswerState state) {
    switch (state) {
    case AnswerState::Found:
        return "found";
    case AnswerState::Always:
        return "always";
    case AnswerState::Never:
        break;
    }
    return "never";
}

void AnswerMember(Writer& json, std::string_view name, const std::optional<Answer>& answer) {
    Key(json, name);
    WriteAnswer(json, answer);
}

void WriteOtherOptions(Writer& json, const std::vector<OtherOption>& options) {
    json.StartArray();
    for (const OtherOption& option : options) {
        json.StartObject();
        Member(json, "base", option.Base);
        if (!option.Labelled.empty())
            Member(json, "labelled", option.Labelled);
        if (option.Missing.empty())
            Member(json, "qualifies", option.Qualifies);
        else
            Member(json, "missing", option.Missing);
        json.EndObject();
    }
    json.EndArray();
}

void WriteHomeQualification(Writer& json, const HomeQualification& home, HomeCode code) {
    json.StartObject();
    Member(json, "qualifies", home.Qualifies);
    Member(json, "margin", home.Margin);
    AnswerMember(json, "income", home.Income);
    AnswerMember(json, "debt", home.Debt);
    AnswerMember(json, "down", home.Down);
    AnswerMember(json, "price", home.Price);
    if (code == HomeCode::GMH)
        AnswerMember(json, "bill", home.Bill);
    AnswerMember(json, "rate", home.Rate);
    AnswerMember(json, "term", home.Term);
    Key(json, "options");
    WriteOtherOptions(json, home.Options);
    json.EndObject();
}

void WriteOptionHome(Writer& json, const OptionHome& home) {
    const HomeCase& figures = home.Figures;
    json.StartObject();
    Member(json, "DownPayment", figures.DownPayment);
    Member(json, "LoanAmount", figures.LoanAmount);
    Member(json, "MortPayment", figures.MortPayment);
    Member(json, "PMIMonthly", figures.PMIMonthly);
    Member(json, "PITI", figures.PITI);
    Member(json, "PITIU", figures.PITIU);
    Member(json, "IncomeNeeded", figures.IncomeNeeded);
    Member(json, "MaxLoan", figures.MaxLoan);
    Member(json, "Qualifies", home.Qualifies);
    Member(json, "Margin", home.Margin);
    Key(json, "IncomeToQualify");
    home.IncomeToQualify ? json.Int64(*home.IncomeToQualify) : json.Null();
    json.EndObject();
}

void WriteOptionAnswer(Writer& json, const OptionAnswer& row) {
    json.StartObject();
    Member(json, "base", row.Base);
    Member(json, "labelled", row.Labelled);
    if (!row.Missing.empty()) {
        Member(json, "missing", row.Missing);
        json.EndObject();
        return;
    }
    Key(json, "std");
    WriteOptionHome(json, row.Std);
    Key(json, "gmh");
    WriteOptionHome(json, row.GMH);
    Member(json, "ShownNet", row.ShownNet);
    Member(json, "ExtraCashToday", row.ExtraCashToday);
    Member(json, "PVSavings", row.PVSavings);
    Member(json, "LoanGain", row.LoanGain);
    Key(json, "Best");
    json.StartArray();
    for (const BestIn best : row.Best)
        Text(json, BestNames[static_cast<std::size_t>(best)]);
    json.EndArray();
    json.EndObject();
}

void WriteValue(Writer& json, const PutValue& value) {
    if (value.IsText)
        Text(json, value.Text);
    else
        Number(json, value.Number);
}

void WriteSide(Writer& json, const std::optional<SensitivitySide>& side) {
    if (!side) {
        json.Null();
        return;
    }
    json.StartObject();
    Key(json, "value");
    if (side->IsList)
        json.StartArray();
    for (const PutValue& value : side->Values)
        WriteValue(json, value);
    if (side->IsList)
        json.EndArray();
    Member(json, "ShownNet", side->ShownNet);
    Member(json, "PVSavings", side->PVSavings);
    Member(json, "SavingsAfterYearsInHome", side->SavingsAfterYearsInHome);
    Member(json, "GMHMargin", side->GMHMargin);
    json.EndObject();
}

void ScaleMember(Writer& json, std::string_view name, const std::array<double, MapSize>& scale) {
    Key(json, name);
    json.StartArray();
    for (const double value : scale)
        Number(json, value);
    json.EndArray();
}

} // namespace

void WriteAnswer(Writer& json, const std::optional<Answer>& answer) {
    if (!answer) {
        json.Null();
        return;
    }
    json.StartObject();
    Member(json, "input", answer->Input);
    Member(json, "from", answer->From);
    Key(json, "to");
    answer->To ? Text(json, *answer->To) : static_cast<void>(json.Null());
    Member(json, "change", answer->Change);
    Member(json, "state", StateName(answer->State));
    json.EndObject();
}

void WriteBreakeven(Writer& json, const Breakeven& breakeven) {
    json.StartObject();
    AnswerMember(json, "price", breakeven.Price);
    AnswerMember(json, "priceBeforeTax", breakeven.PriceBeforeTax);
    AnswerMember(json, "savingsPrice", breakeven.SavingsPrice);
    AnswerMember(json, "bill", breakeven.Bill);
    AnswerMember(json, "rate", breakeven.Rate);
    Member(json, "savingsShare", breakeven.SavingsShare);
    json.EndObject();
}

void WriteQualify(Writer& json, const Qualification& qualification) {
    json.StartObject();
    Key(json, "std");
    WriteHomeQualification(json, qualification.Std, HomeCode::Std);
    Key(json, "gmh");
    WriteHomeQualification(json, qualification.GMH, HomeCode::GMH);
    json.EndObject();
}

void WriteOptions(Writer& json, const OptionTable& options) {
    json.StartObject();
    Key(json, "rows");
    json.StartArray();
    for (const OptionAnswer& row : options.Rows)
        WriteOptionAnswer(json, row);
    json.EndArray();
    Member(json, "current", options.Current);
    Member(json, "sentence", options.Sentence);
    json.EndObject();
}

void WriteSensitivity(Writer& json, const Sensitivity& sensitivity) {
    json.StartObject();
    Member(json, "by", sensitivity.By);
    Key(json, "rows");
    json.StartArray();
    for (const SensitivityRow& row : sensitivity.Rows) {
        json.StartObject();
        Member(json, "input", row.Input);
        Key(json, "low");
        WriteSide(json, row.Low);
        Key(json, "high");
        WriteSide(json, row.High);
        json.EndObject();
    }
    json.EndArray();
    json.EndObject();
}

void WriteMap(Writer& json, const NetMap& map) {
    json.StartObject();
    ScaleMember(json, "price", map.Price);
    ScaleMember(json, "savings", map.Savings);
    Key(json, "net");
    json.StartArray();
    for (const auto& row : map.Net) {
        json.StartArray();
        for (const std::optional<float>& net : row)
            Number(json, net);
        json.EndArray();
    }
    json.EndArray();
    Key(json, "here");
    json.StartObject();
    Member(json, "price", map.PriceNow);
    Member(json, "savings", map.SavingsNow);
    Member(json, "net", map.NetNow);
    json.EndObject();
    json.EndObject();
}

} // namespace Ledgrove::Json
