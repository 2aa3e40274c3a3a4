#include "app/batch/RangeText.h"

#include "app/batch/CsvText.h"
#include "app/batch/InsightJson.h"
#include "app/batch/JsonValues.h"

namespace Ledgrove {

namespace {

void WriteFigures(Json::Writer& json, const RangeRow& row, bool limits) {
    Json::Member(json, "stdPITIU", row.Std.PITIU);
    Json::Member(json, "gmhPITIU", row.GMH.PITIU);
    Json::Member(json, "ShownNet", row.ShownNet);
    Json::Member(json, "PVSavings", row.PVSavings);
    Json::Member(json, "stdQualifies", row.Std.Qualifies);
    Json::Member(json, "gmhQualifies", row.GMH.Qualifies);
    Json::Member(json, "stdMargin", row.Std.Margin);
    Json::Member(json, "gmhMargin", row.GMH.Margin);
    if (!limits)
        return;
    Json::Key(json, "price");
    Json::WriteAnswer(json, row.Price);
}

void WriteRow(Json::Writer& json, const RangeRow& row, bool limits) {
    json.StartObject();
    Json::Member(json, "house", row.House);
    Json::Member(json, "stdPrice", row.Std.Price);
    Json::Member(json, "gmhPrice", row.GMH.Price);
    Json::Member(json, "stdBill", row.Std.Bill);
    Json::Member(json, "gmhBill", row.GMH.Bill);
    Json::Member(json, "base", row.Base);
    Json::Member(json, "labelled", row.Labelled);
    if (row.Missing.empty())
        WriteFigures(json, row, limits);
    else
        Json::Member(json, "missing", row.Missing);
    json.EndObject();
}

/// The cells of a row, each with a comma before it but the first.
class CsvRow {
public:
    explicit CsvRow(std::string& out)
        : m_out(out)
        , m_start(out.size()) {}

    void Text(std::string_view text) {
        Separate();
        AppendCsvCell(m_out, text);
    }
    void Number(float number) {
        Separate();
        Json::AppendNumber(m_out, number);
    }
    void Number(double number) {
        Separate();
        rapidjson::StringBuffer buffer;
        Json::Writer json(buffer);
        Json::Number(json, number);
        m_out.append(buffer.GetString(), buffer.GetSize());
    }
    void Flag(bool value) { Text(value ? "true" : "false"); }
    void End() { m_out += '\n'; }

private:
    void Separate() {
        if (m_out.size() > m_start)
            m_out += ',';
    }

    std::string& m_out;
    std::size_t m_start;
};

void AppendFigures(CsvRow& csv, const RangeRow& row, bool limits) {
    csv.Number(row.Std.PITIU);
    csv.Number(row.GMH.PITIU);
    csv.Number(row.ShownNet);
    csv.Number(row.PVSavings);
    csv.Flag(row.Std.Qualifies);
    csv.Flag(row.GMH.Qualifies);
    csv.Number(row.Std.Margin);
    csv.Number(row.GMH.Margin);
    if (limits)
        csv.Text(row.Price ? row.Price->To.value_or("") : "");
}

void AppendRow(std::string& out, const RangeRow& row, bool limits) {
    const int figures = limits ? 9 : 8;
    CsvRow csv(out);
    csv.Text(row.House);
    for (const float amount : {row.Std.Price, row.GMH.Price, row.Std.Bill, row.GMH.Bill})
        csv.Number(amount);
    csv.Text(row.Base);
    csv.Text(row.Labelled);
    if (row.Missing.empty())
        AppendFigures(csv, row, limits);
    else
        for (int figure = 0; figure < figures; ++figure)
            csv.Text("");
    csv.Text(row.Missing);
    csv.End();
}

} // namespace

void AppendRangeJson(std::string& out, const Range& range) {
    rapidjson::StringBuffer buffer;
    Json::Writer json(buffer);
    json.StartObject();
    Json::Key(json, "rows");
    json.StartArray();
    for (const RangeRow& row : range.Rows)
        WriteRow(json, row, range.HasLimits);
    json.EndArray();
    json.EndObject();
    out.append(buffer.GetString(), buffer.GetSize());
}

void AppendRangeCsv(std::string& out, const Range& range) {
    out += "house,stdPrice,gmhPrice,stdBill,gmhBill,base,labelled,stdPITIU,gmhPITIU,ShownNet,PVSavings,"
           "stdQualifies,gmhQualifies,stdMargin,gmhMargin";
    out += range.HasLimits ? ",price,missing\n" : ",missing\n";
    for (const RangeRow& row : range.Rows)
        AppendRow(out, row, range.HasLimits);
}

} // namespace Ledgrove
