#include "app/batch/JsonText.h"

#include "app/batch/JsonParts.h"
#include "engine/Figures.h"

namespace Ledgrove {

namespace {

using namespace Json;

void AppendFields(std::string& out, const MainScreen& screen) {
    char opening = '{';
    for (const auto& [name, member] : FieldTable()) {
        // The remaining fields are not visible and only repeat the term and the rates.
        if (member == &MainScreen::ecRate)
            break;
        AppendKey(out, name, opening);
        AppendString(out, (screen.*member).Text);
        opening = ',';
    }
    for (const auto& [name, member] : PickListTable()) {
        AppendKey(out, name);
        AppendString(out, (screen.*member).Text());
    }
    AppendKey(out, "optDownPayment");
    out += screen.optDownPayment == 0 ? '0' : '1';
    AppendKey(out, "chkDoTax0");
    AppendFlag(out, screen.chkDoTax0);
    out += '}';
}

/// Appends the members of one record, without the closing brace.
void AppendFigures(std::string& out, const Records& records, FigureRecord record) {
    char opening = '{';
    for (const FigureEntry& figure : FiguresOf(record)) {
        AppendKey(out, figure.Name, opening);
        AppendNumber(out, figure.Value(records));
        opening = ',';
    }
}

void AppendScenario(std::string& out, const Session& session) {
    AppendFigures(out, session, FigureRecord::Scenario);
    AppendKey(out, "DownAsPercent");
    AppendFlag(out, session.Scenario.DownAsPercent);
    AppendKey(out, "YearsInHome");
    out += std::to_string(session.Scenario.YearsInHome);
    AppendKey(out, "EEM notice flag");
    AppendFlag(out, session.Scenario.EEMNoticeFlag);
    out += '}';
}

} // namespace

ResultJson::ResultJson(const ChosenNames& only) {
    if (!only.empty())
        m_chosen.emplace(only);
    for (const auto& [name, member] : ResultLabelTable())
        m_labelKeys.push_back((m_labelKeys.empty() ? "{\"" : ",\"") + std::string(name) + "\":{\"text\":");
}

void ResultJson::AppendLabels(std::string& out, const MainScreen& screen) const {
    auto key = m_labelKeys.begin();
    for (const auto& [name, member] : ResultLabelTable()) {
        const Label& label = screen.*member;
        out += *key++;
        AppendString(out, label.Text);
        out += AppearanceText(label);
    }
    out += '}';
}

void ResultJson::Append(std::string& out, const Comparison& comparison) const {
    if (m_chosen)
        return m_chosen->Append(out, comparison);
    const Session& session = comparison.State();
    AppendKey(out, "fields", '{');
    AppendFields(out, session.Screen);
    AppendKey(out, "labels");
    AppendLabels(out, session.Screen);
    AppendKey(out, "Scenario");
    AppendScenario(out, session);
    AppendKey(out, "StdCase");
    AppendFigures(out, session, FigureRecord::StdCase);
    out += '}';
    AppendKey(out, "GMHCase");
    AppendFigures(out, session, FigureRecord::GMHCase);
    out += '}';
    AppendKey(out, "messages");
    AppendMessages(out, comparison.Messages());
    AppendKey(out, "dataCheck");
    AppendString(out, comparison.DataCheck());
    out += '}';
}

void AppendRefusalJson(std::string& out, const Refusal& refusal, std::string_view file) {
    out += "{\"error\":{";
    if (!file.empty()) {
        out += "\"file\":";
        AppendString(out, file);
        out += ',';
    }
    out += "\"line\":";
    out += std::to_string(refusal.Line);
    AppendKey(out, "control");
    AppendString(out, refusal.Control);
    AppendKey(out, "value");
    AppendString(out, refusal.Value);
    AppendKey(out, "message");
    AppendString(out, refusal.Message);
    out += "}}";
}

} // namespace Ledgrove
