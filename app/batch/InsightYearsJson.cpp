#include "app/batch/InsightYearsJson.h"

namespace Ledgrove::Json {

namespace {

void FlowMember(Writer& json, std::string_view name, const HomeFlow& home) {
    Key(json, name);
    json.StartObject();
    Member(json, "interest", home.Interest);
    Member(json, "principal", home.Principal);
    Member(json, "balance", home.Balance);
    Member(json, "pmi", home.PMI);
    Member(json, "tax", home.Tax);
    Member(json, "insurance", home.Insurance);
    Member(json, "utilities", home.Utilities);
    Member(json, "taxEffect", home.TaxEffect);
    Member(json, "cost", home.Cost);
    json.EndObject();
}

void WriteYear(Writer& json, const FlowRow& year) {
    json.StartObject();
    Member(json, "year", year.Number);
    FlowMember(json, "std", year.Std);
    FlowMember(json, "gmh", year.GMH);
    Member(json, "saving", year.Saving);
    Member(json, "cumulative", year.Cumulative);
    json.EndObject();
}

void HomeTaxMember(Writer& json, std::string_view name, const HomeTax& tax) {
    Key(json, name);
    json.StartObject();
    Member(json, "interest", tax.Interest);
    Member(json, "itemized", tax.Itemized);
    Member(json, "benefit", tax.Benefit);
    json.EndObject();
}

} // namespace

void WriteYears(Writer& json, const YearByYear& years) {
    json.StartObject();
    Key(json, "growth");
    json.StartObject();
    Member(json, "utilities", years.By.UtilityGrowth);
    Member(json, "home", years.By.HomeGrowth);
    json.EndObject();
    Key(json, "years");
    json.StartArray();
    for (const FlowRow& year : years.Years)
        WriteYear(json, year);
    json.EndArray();
    Key(json, "pmiEnd");
    json.StartObject();
    Member(json, "std", years.Std.PMIEnd);
    Member(json, "gmh", years.GMH.PMIEnd);
    json.EndObject();
    Key(json, "ahead");
    years.Ahead ? json.Int(*years.Ahead) : json.Null();
    Member(json, "npv", years.NPV);
    Member(json, "irrOnExtraCash", years.IRROnExtraCash);
    Member(json, "irrWithSale", years.IRRWithSale);
    Member(json, "sentence", years.Sentence);
    json.EndObject();
}

void WriteEnergy(Writer& json, const EnergyGrowth& energy) {
    json.StartObject();
    Key(json, "rates");
    json.StartArray();
    for (const double rate : EnergyRates)
        Number(json, rate);
    json.EndArray();
    Key(json, "cumulative");
    json.StartArray();
    for (const auto& amounts : energy.Cumulative) {
        json.StartArray();
        for (const double amount : amounts)
            Number(json, amount);
        json.EndArray();
    }
    json.EndArray();
    Member(json, "needed", energy.Needed);
    json.EndObject();
}

void WriteTax(Writer& json, const TaxCheck& tax) {
    json.StartObject();
    Member(json, "shown", tax.Shown);
    HomeTaxMember(json, "std", tax.Std);
    HomeTaxMember(json, "gmh", tax.GMH);
    Member(json, "real", tax.Real);
    Key(json, "itemizes");
    json.StartObject();
    Member(json, "std", tax.Std.Itemizes);
    Member(json, "gmh", tax.GMH.Itemizes);
    json.EndObject();
    Member(json, "sentence", tax.Sentence);
    json.EndObject();
}

void WriteExit(Writer& json, const SaleByYear& exit) {
    json.StartObject();
    Key(json, "years");
    json.StartArray();
    for (const SaleYear& year : exit.Years) {
        json.StartObject();
        Member(json, "year", year.Year);
        Member(json, "std", year.Std);
        Member(json, "gmh", year.GMH);
        Member(json, "difference", year.Difference());
        Member(json, "cumulative", year.Cumulative);
        Member(json, "total", year.Total());
        json.EndObject();
    }
    json.EndArray();
    Member(json, "share", exit.Share);
    json.EndObject();
}

} // namespace Ledgrove::Json
