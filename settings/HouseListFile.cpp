#include "settings/HouseListFile.h"

#include "engine/NumberText.h"
#include "settings/LineSyntax.h"
#include "settings/Rewrite.h"
#include "settings/Windows1252.h"

#include <string>
#include <string_view>

namespace Ledgrove::Module1 {
namespace {

bool ReadHouse(std::string_view value, House& house) {
    FieldSplitter fields(value);
    if (const auto name = fields.Next())
        house.Name = DecodeWindows1252(*name);
    for (float* amount : {&house.StdCost, &house.StdUtil, &house.GMHCost, &house.GMHUtil}) {
        const auto field = fields.Next();
        if (!field)
            return true;
        const auto number = ToSingle(*field);
        if (!number)
            return false;
        *amount = *number;
    }
    return true;
}

std::string HouseLine(const House& house) {
    constexpr std::string_view pricePicture = "#####0";
    constexpr std::string_view utilityPicture = "###0";
    return SettingLine(Key::HomeList, house.Name + ',' + FormatPicture(house.StdCost, pricePicture) + ',' +
                                          FormatPicture(house.StdUtil, utilityPicture) + ',' +
                                          FormatPicture(house.GMHCost, pricePicture) + ',' +
                                          FormatPicture(house.GMHUtil, utilityPicture));
}

} // namespace

std::optional<SettingsFault> LoadHomeList(const SettingsFile& file, HouseList& houses) {
    const Outcome<FileLines> lines = file.ReadLines();
    if (!lines)
        return lines.Fault();
    return ReadHomeList(file, *lines, houses);
}

std::optional<SettingsFault> ReadHomeList(const SettingsFile& file, const FileLines& lines,
                                          HouseList& houses) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string_view line = lines[i].Text;
        if (!BelongsTo(line, Key::HomeList))
            continue;
        if (!ReadHouse(ValueOf(line, Key::HomeList), houses.emplace_back()))
            return BadLine(file, lines, i, "the four amounts after the name must be numbers");
    }
    return std::nullopt;
}

std::optional<SettingsFault> WriteHomeList(const SettingsFile& file, const HouseList& houses) {
    RewritePlan plan;
    plan.Rules = {DropLines(Key::HomeList), ReplaceOrAppend(Key::HomeSelectionDialog, "CLOSED")};
    for (const House& house : houses)
        plan.AppendedAlways.push_back(HouseLine(house));
    return Rewrite(file, plan);
}

} // namespace Ledgrove::Module1
