#include "app/batch/ChosenJson.h"

#include <algorithm>

#include "app/batch/JsonParts.h"

namespace Ledgrove {

namespace {

using namespace Json;

/// Appends the value of any kind of result.
class ValueWriter {
public:
    ValueWriter(std::string& out, const Comparison& comparison)
        : m_out(out)
        , m_comparison(comparison)
        , m_state(comparison.State()) {}

    void operator()(Field MainScreen::*field) const { AppendString(m_out, (m_state.Screen.*field).Text); }
    void operator()(PickList MainScreen::*list) const { AppendString(m_out, (m_state.Screen.*list).Text()); }
    void operator()(Label MainScreen::*member) const {
        const Label& label = m_state.Screen.*member;
        m_out += "{\"text\":";
        AppendString(m_out, label.Text);
        m_out += AppearanceText(label);
    }
    void operator()(const FigureEntry* figure) const { AppendNumber(m_out, figure->Value(m_state)); }
    void operator()(ResultPart part) const {
        switch (part) {
        case ResultPart::DownOption:
            m_out += m_state.Screen.optDownPayment == 0 ? '0' : '1';
            return;
        case ResultPart::TaxBox:
            return AppendFlag(m_out, m_state.Screen.chkDoTax0);
        case ResultPart::DownAsPercent:
            return AppendFlag(m_out, m_state.Scenario.DownAsPercent);
        case ResultPart::YearsInHome:
            m_out += std::to_string(m_state.Scenario.YearsInHome);
            return;
        case ResultPart::EEMNoticeFlag:
            return AppendFlag(m_out, m_state.Scenario.EEMNoticeFlag);
        case ResultPart::Messages:
            return AppendMessages(m_out, m_comparison.Messages());
        case ResultPart::DataCheck:
            return AppendString(m_out, m_comparison.DataCheck());
        }
    }

private:
    std::string& m_out;
    const Comparison& m_comparison;
    const Session& m_state;
};

} // namespace

ChosenJson::ChosenJson(const ChosenNames& names) {
    std::string member;
    bool isOpen = false;
    std::string before = "{";
    for (const ResultName& name : ResultNames()) {
        if (std::find(names.begin(), names.end(), &name) == names.end())
            continue;
        if (name.Member != member) {
            before += isOpen ? "}" : "";
            before += member.empty() ? "\"" : ",\"";
            before += name.Member + "\":";
            isOpen = !name.Key.empty();
            before += isOpen ? "{" : "";
            member = name.Member;
        } else {
            before += ',';
        }
        if (isOpen)
            before += "\"" + name.Key + "\":";
        m_pieces.push_back({std::move(before), &name});
        before.clear();
    }
    m_end = isOpen ? "}}" : "}";
}

void ChosenJson::Append(std::string& out, const Comparison& comparison) const {
    const ValueWriter write(out, comparison);
    for (const Piece& piece : m_pieces) {
        out += piece.Before;
        std::visit(write, piece.What->Value);
    }
    out += m_end;
}

} // namespace Ledgrove
