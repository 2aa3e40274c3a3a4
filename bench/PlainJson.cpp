// The floor for `compare --format jsonl`: a plain program that reads the same price list and writes JSON of
// the same shape and size. It parses each line into a document, does the bare arithmetic and writes the
// results.

#include "bench/PlainComparison.h"

#include "app/batch/InputRecord.h"
#include "engine/Figures.h"
#include "engine/MainScreen.h"

#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <array>
#include <charconv>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <string>

namespace {

using namespace Ledgrove;
using Writer = rapidjson::Writer<rapidjson::StringBuffer>;

double NumberAt(const rapidjson::Document& document, const char* name, double without) {
    const auto found = document.FindMember(name);
    if (found == document.MemberEnd())
        return without;
    if (found->value.IsNumber())
        return found->value.GetDouble();
    std::string plain;
    for (const char c : std::string_view(found->value.GetString(), found->value.GetStringLength())) {
        if (c != '$' && c != ',' && c != '%')
            plain += c;
    }
    return std::strtod(plain.c_str(), nullptr);
}

Bench::PlainInput ReadInput(const rapidjson::Document& document) {
    return {NumberAt(document, "ecIncome", 0),         NumberAt(document, "ecMonthlyDebt", 0),
            NumberAt(document, "ecPctDown", 0) / 100,  NumberAt(document, "ecStdHome", 0),
            NumberAt(document, "ecGMHHome", 0),        NumberAt(document, "ecStdUtil", 0),
            NumberAt(document, "ecGMHUtil", 0),        NumberAt(document, "ecStdRate", 6.5) / 100,
            NumberAt(document, "ecGMHRate", 6.5) / 100};
}

void Key(Writer& writer, std::string_view name) {
    writer.Key(name.data(), static_cast<rapidjson::SizeType>(name.size()));
}

/// Text such as "$1,234".
std::string Money(double amount) {
    std::array<char, 32> digits;
    const double rounded = std::isfinite(amount) ? std::fabs(std::round(amount)) : 0;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(),
                                   static_cast<long long>(std::fmin(rounded, 1e15)));
    const std::string_view text(digits.data(), static_cast<std::size_t>(end.ptr - digits.data()));
    std::string money = amount < 0 ? "-$" : "$";
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (i > 0 && (text.size() - i) % 3 == 0)
            money += ',';
        money += text[i];
    }
    return money;
}

void WriteNumber(Writer& writer, double value) {
    std::array<char, 64> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(),
                                   static_cast<float>(std::isfinite(value) ? value : 0));
    writer.RawValue(text.data(), static_cast<std::size_t>(end.ptr - text.data()), rapidjson::kNumberType);
}

/// Every input, including those that the line does not give.
void WriteFields(Writer& writer, const rapidjson::Document& document) {
    writer.StartObject();
    for (const auto& [input, name] : InputTable) {
        Key(writer, name);
        const auto found = document.FindMember(name.data());
        if (found == document.MemberEnd())
            writer.String("Conventional");
        else if (found->value.IsString())
            writer.String(found->value.GetString(), found->value.GetStringLength());
        else
            found->value.Accept(writer);
    }
    writer.EndObject();
}

void WriteLabels(Writer& writer, const std::array<double, 12>& figures) {
    writer.StartObject();
    std::size_t turn = 0;
    for (const auto& [name, member] : ResultLabelTable()) {
        Key(writer, name);
        writer.StartObject();
        writer.Key("text");
        const std::string text = Money(figures[turn++ % figures.size()]);
        writer.String(text.data(), static_cast<rapidjson::SizeType>(text.size()));
        writer.Key("color");
        writer.String("#000000");
        writer.Key("visible");
        writer.Bool(true);
        writer.EndObject();
    }
    writer.EndObject();
}

void WriteRecord(Writer& writer, FigureRecord record, const std::array<double, 12>& figures) {
    writer.StartObject();
    std::size_t turn = 0;
    for (const FigureEntry& figure : FiguresOf(record)) {
        Key(writer, figure.Name);
        WriteNumber(writer, figures[turn++ % figures.size()]);
    }
    writer.EndObject();
}

/// About as long as the messages and the data check of most lines.
void WriteRemarks(Writer& writer) {
    writer.Key("messages");
    writer.StartArray();
    writer.StartObject();
    writer.Key("title");
    writer.String("Ledgrove");
    writer.Key("text");
    writer.String(
        "The homebuyer may not qualify for the mortgage you have selected because the present value "
        "of the savings is less than the cost of the upgrade.");
    writer.Key("icon");
    writer.String("none");
    writer.Key("buttons");
    writer.String("ok");
    writer.EndObject();
    writer.EndArray();
    writer.Key("dataCheck");
    writer.String("Attention!\r\rCost of Standard Home is missing.\rStandard Home utility bill is missing.\r"
                  "GREENMARK Home utility bill is missing.\rDown payment is missing.\r");
}

void WriteResult(Writer& writer, const rapidjson::Document& document, const Bench::PlainResult& result) {
    const std::array<double, 12> figures{result.StdPITI,       result.GMHPITI,    result.Net,
                                         result.PVSavings,     result.StdMaxLoan, result.GMHMaxLoan,
                                         result.GMHMaxPayment, result.After7,     result.AfterYears,
                                         result.After30,       result.PVNet,      result.PVBeforeTax};
    writer.StartObject();
    writer.Key("fields");
    WriteFields(writer, document);
    writer.Key("labels");
    WriteLabels(writer, figures);
    writer.Key("Scenario");
    WriteRecord(writer, FigureRecord::Scenario, figures);
    writer.Key("StdCase");
    WriteRecord(writer, FigureRecord::StdCase, figures);
    writer.Key("GMHCase");
    WriteRecord(writer, FigureRecord::GMHCase, figures);
    WriteRemarks(writer);
    writer.EndObject();
}

} // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    std::ifstream file(argc > 1 ? argv[1] : "/dev/stdin");
    rapidjson::StringBuffer buffer;
    const auto writeOut = [&buffer] {
        std::cout.write(buffer.GetString(), static_cast<std::streamsize>(buffer.GetSize()));
        buffer.Clear();
    };
    constexpr std::size_t piece = std::size_t{64} * 1024;
    for (std::string line; std::getline(file, line);) {
        rapidjson::Document document;
        document.Parse(line.data(), line.size());
        if (!document.IsObject())
            return 1;
        Writer writer(buffer);
        WriteResult(writer, document, Bench::ComparePlainly(ReadInput(document), 30, 7));
        buffer.Put('\n');
        if (buffer.GetSize() >= piece)
            writeOut();
    }
    writeOut();
}
