#include "settings/SettingsCheck.h"

#include "base/Text.h"
#include "engine/NumberText.h"
#include "settings/AssumptionsFile.h"
#include "settings/HouseListFile.h"
#include "settings/LineSyntax.h"
#include "settings/LoanTypesFile.h"
#include "settings/NotesFile.h"
#include "settings/TaxScheduleFile.h"
#include "settings/Windows1252.h"
#include "settings/YearSettingsFile.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Ledgrove {

namespace {

constexpr std::array otherAssumptions = {Key::PVRate, Key::PVFlag, Key::YearsInHome};

/// The key of an assumption that the line belongs to; empty for any other line.
std::string_view AssumptionOf(std::string_view line) {
    for (const NumericAssumption& key : NumericAssumptions)
        if (BelongsTo(line, key.Key))
            return key.Key;
    for (const std::string_view key : otherAssumptions)
        if (BelongsTo(line, key))
            return key;
    return {};
}

/// The value that the program works with, in the unit of the file.
std::string InForce(const AssumptionSet& assumptions, std::string_view key) {
    for (const NumericAssumption& number : NumericAssumptions)
        if (number.Key == key)
            return Module1::ShortestText(assumptions.*number.Value);
    if (key == Key::PVRate)
        // The record holds a fraction; rounding brings back the digits of the file.
        return Module1::ShortestText(static_cast<float>(std::round(double{assumptions.PVRate} * 1e6) / 1e4));
    if (key == Key::PVFlag)
        return assumptions.UsePVVars ? "TRUE" : "FALSE";
    return std::to_string(assumptions.YearsInHome);
}

std::string NotConverted(std::string_view key) {
    return key == Key::YearsInHome ? "is not a whole number of years" : "is not a number";
}

/// Collects the unusable lines of one file.
class Checker {
public:
    explicit Checker(const FileLines& lines)
        : m_lines(lines) {}

    std::vector<UnusableLine> Found() {
        CheckAssumptions();
        CheckTaxCats();
        CheckLists();
        CheckLogoOption();
        CheckYearSettings();
        CheckNotes();
        std::stable_sort(m_found.begin(), m_found.end(),
                         [](const UnusableLine& a, const UnusableLine& b) { return a.Line < b.Line; });
        return std::move(m_found);
    }

private:
    void Add(std::size_t line, std::string_view key, std::string reason, std::string effect) {
        m_found.push_back({line + 1, std::string(key), DecodeWindows1252(m_lines[line].Text),
                           std::move(reason), std::move(effect)});
    }

    /// The reader stops at the first text that is not a number, so the lines after it count for nothing.
    void CheckAssumptions() {
        AssumptionSet assumptions;
        const auto end = Module1::ReadAssumptions(m_lines, assumptions);
        for (std::size_t line = 0; line < m_lines.size(); ++line) {
            const std::string_view key = AssumptionOf(m_lines[line].Text);
            if (key.empty())
                continue;
            const std::string effect = InForce(assumptions, key) + " is in force instead.";
            const std::string_view value = ValueOf(m_lines[line].Text, key);
            if (end && line >= *end)
                Add(line, key,
                    line == *end ? NotConverted(key)
                                 : "is not read, because reading ends at line " + std::to_string(*end + 1),
                    effect);
            else if (key == Key::PVRate && !Module1::ReadNumber(Module1::StripPercent(value)))
                Add(line, key, "is not a number", effect);
            else if (key == Key::PVFlag && value != "TRUE" && value != "FALSE")
                Add(line, key, "is neither TRUE nor FALSE", effect);
        }
    }

    void CheckTaxCats() {
        std::size_t stop = m_lines.size();
        for (std::size_t line = 0; line < m_lines.size(); ++line) {
            if (!BelongsTo(m_lines[line].Text, Key::TaxCat))
                continue;
            FieldSplitter fields(ValueOf(m_lines[line].Text, Key::TaxCat));
            const auto isNumber = [](std::optional<std::string_view> field) {
                return !field || ToSingle(*field);
            };
            if (line > stop)
                Add(line, Key::TaxCat,
                    "is not read, because reading ends at line " + std::to_string(stop + 1),
                    "The brackets of the lines above are in force.");
            else if (!isNumber(fields.Next()) || !isNumber(fields.Next())) {
                stop = line;
                Add(line, Key::TaxCat, "does not give a high end and a rate as numbers",
                    "What is not a number counts as 0 in this bracket.");
            }
        }
    }

    /// A list whose line does not convert is not read at all.
    void CheckLists() {
        const SettingsFile nowhere{std::filesystem::path()};
        for (std::size_t line = 0; line < m_lines.size(); ++line) {
            const FileLines one{m_lines[line]};
            LoanTypeList loanTypes;
            HouseList houses;
            if (Module1::ReadLoanTypes(nowhere, one, loanTypes))
                Add(line, Key::LoanType, "does not give its number and ratios as numbers",
                    "Ledgrove does not start with this line.");
            if (Module1::ReadHomeList(nowhere, one, houses))
                Add(line, Key::HomeList, "does not give four amounts as numbers",
                    "No house scenarios can be used.");
        }
    }

    void CheckLogoOption() {
        constexpr int mostOption = 2;
        const auto line = LastLineOf(m_lines, Key::LogoOption);
        if (!line)
            return;
        const auto option = ToIntegerDown(Trimmed(ValueOf(m_lines[*line].Text, Key::LogoOption)));
        if (!option || *option < 0 || *option > mostOption)
            Add(*line, Key::LogoOption, "is not 0, 1 or 2", "0 (no logo) is in force instead.");
    }

    void CheckYearSettings() {
        for (const YearSetting& setting : YearSettingTable) {
            const auto line = LastLineOf(m_lines, setting.Key);
            if (line && !ReadYearValue(setting, ValueOf(m_lines[*line].Text, setting.Key)))
                Add(*line, setting.Key, "is not " + WantedYearValue(setting),
                    DefaultYearText(setting) + " is in force instead.");
        }
    }

    void CheckNotes() {
        for (const NotedKey& key : NotedKeys) {
            const auto line = LastLineOf(m_lines, key.Note);
            if (line && !IsNote(ValueOf(m_lines[*line].Text, key.Note)))
                Add(*line, key.Note, "does not give a value, a date and a source",
                    std::string(key.Key) + " is shown without a source.");
        }
    }

    const FileLines& m_lines;
    std::vector<UnusableLine> m_found;
};

} // namespace

std::vector<UnusableLine> UnusableLines(const FileLines& lines) {
    return Checker(lines).Found();
}

std::string Sentence(const UnusableLine& line) {
    return "Line " + std::to_string(line.Line) + " of Ledgrove.ini, " + Excerpt(line.Text) +
           ", cannot be used: it " + line.Reason + ". " + line.Effect;
}

std::string WarningOf(const std::vector<UnusableLine>& lines, std::size_t most) {
    std::string text;
    for (std::size_t at = 0; at < std::min(most, lines.size()); ++at)
        text += (at == 0 ? "" : "\n\n") + Sentence(lines[at]);
    if (lines.size() > most) {
        const std::size_t more = lines.size() - most;
        text += "\n\n" + std::to_string(more) + (more == 1 ? " more line" : " more lines") +
                " cannot be used; \"ledgrove-cli settings check\" lists all of them.";
    }
    return text;
}

std::vector<UnusableLine> CheckSettings(const SettingsFile& file) {
    const auto lines = file.ReadLines();
    return lines ? UnusableLines(*lines) : std::vector<UnusableLine>();
}

} // namespace Ledgrove
