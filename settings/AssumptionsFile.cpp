#include "settings/AssumptionsFile.h"

#include "engine/NumberText.h"
#include "settings/LineSyntax.h"
#include "settings/Rewrite.h"

#include <cstdint>
#include <string_view>

namespace Ledgrove::Module1 {
namespace {

enum class LineResult { Read, NotANumber };

template <typename Number>
LineResult Store(std::optional<Number> number, Number& target) {
    if (!number)
        return LineResult::NotANumber;
    target = *number;
    return LineResult::Read;
}

LineResult ReadLine(std::string_view line, AssumptionSet& assumptions) {
    for (const NumericAssumption& key : NumericAssumptions) {
        if (BelongsTo(line, key.Key))
            return Store(ToSingle(ValueOf(line, key.Key)), assumptions.*key.Value);
    }
    // The rate is read like an entry field: a text that is not a number counts as 0 and does not stop the
    // reader.
    if (BelongsTo(line, Key::PVRate))
        assumptions.PVRate = ParseFieldValue(ValueOf(line, Key::PVRate), 100);
    if (BelongsTo(line, Key::PVFlag))
        assumptions.UsePVVars = ValueOf(line, Key::PVFlag) == "TRUE";
    if (BelongsTo(line, Key::YearsInHome))
        return Store(ToInteger(ValueOf(line, Key::YearsInHome)), assumptions.YearsInHome);
    return LineResult::Read;
}

} // namespace

std::optional<SettingsFault> LoadAssumptions(const SettingsFile& file, AssumptionSet& assumptions) {
    const Outcome<FileLines> lines = file.ReadLines(SettingsFile::WhenMissing::CreateEmpty);
    if (!lines)
        return lines.Fault();
    ReadAssumptions(*lines, assumptions);
    return std::nullopt;
}

std::optional<std::size_t> ReadAssumptions(const FileLines& lines, AssumptionSet& assumptions) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (ReadLine(lines[i].Text, assumptions) == LineResult::NotANumber)
            return i;
    }
    return std::nullopt;
}

std::optional<SettingsFault> WriteAssumpsToFile(SettingsDraft& draft, const AssumptionTexts& texts) {
    RewriteRule flag = ReplaceOnly(Key::PVFlag, texts.UsePVVars ? "TRUE" : "FALSE");
    flag.AppendedWhenUnseen = {SettingLine(Key::PVFlag, "FALSE")};
    RewritePlan plan;
    plan.Rules = {ReplaceOrAppend(Key::RealEstateTax, StripPercent(texts.RealEstateTaxPct)),
                  ReplaceOrAppend(Key::Insurance, StripPercent(texts.InsurancePct)),
                  ReplaceOrAppend(Key::PVRate, StripPercent(texts.PVRate)),
                  ReplaceOrAppend(Key::PVTerm, texts.PVTerm),
                  std::move(flag),
                  ReplaceOrAppend(Key::YearsInHome, texts.YearsInHome),
                  ReplaceOrAppend(Key::PMIMult1, texts.PMIMult[0]),
                  ReplaceOrAppend(Key::PMIMult2, texts.PMIMult[1]),
                  ReplaceOrAppend(Key::PMIMult3, texts.PMIMult[2]),
                  ReplaceOrAppend(Key::PMIMult4, texts.PMIMult[3])};
    return draft.Apply(std::move(plan));
}

} // namespace Ledgrove::Module1
