#include "app/batch/Comparison.h"

#include <utility>

#include "app/batch/EntryInputs.h"
#include "engine/Recalculate.h"
#include "ui/DataCheck.h"
#include "ui/Entry.h"
#include "ui/HouseScenarios.h"
#include "ui/MainScreenRules.h"

namespace Ledgrove {

namespace {

Refusal Refuse(Input input, const InputValue& value, std::string message) {
    return {0, std::string(NameOf(input)), value.Text, std::move(message)};
}

Refusal UnknownItem(Input input, const InputValue& value, const PickList& list) {
    std::string message = "This is not in the list. Choose one of ";
    for (const PickItem& item : list.Items) {
        if (&item != &list.Items.front())
            message += ", ";
        message.append("\"").append(item.Text).append("\"");
    }
    return Refuse(input, value, message + ".");
}

std::optional<Refusal> EnterDownPayment(Session& session, const InputValue& value) {
    if (!value.Present)
        return std::nullopt;
    if (value.Text != "0" && value.Text != "1")
        return Refuse(Input::optDownPayment, value, "This must be 0 (percent down) or 1 (fixed amount).");
    Module1::SetDownPayment(session, value.Text == "1" ? 1 : 0);
    return std::nullopt;
}

std::optional<Refusal> EnterField(Session& session, const EntryInput& entry, const InputValue& value) {
    const EntryRule& rule = entry.Rule;
    if (!value.Present)
        return std::nullopt;
    if (value.Kind == InputKind::Boolean)
        return Refuse(entry.Which, value, "You must enter a number here.");
    const std::string_view typed = value.Text.empty() ? "0" : std::string_view(value.Text);
    Module1::FieldReading reading = Module1::ReadFieldText(typed, rule.Format);
    if (!reading.Complaint.empty())
        return Refuse(entry.Which, value, std::move(reading.Complaint));
    Module1::SetFieldText(session, session.Screen.*rule.Member, reading.Text);
    return std::nullopt;
}

std::optional<Refusal> EnterTaxes(MainScreen& screen, const InputValue& value) {
    if (!value.Present)
        return std::nullopt;
    if (value.Text != "true" && value.Text != "false")
        return Refuse(Input::chkDoTax0, value, "This must be true or false.");
    screen.chkDoTax0 = value.Text == "true";
    return std::nullopt;
}

} // namespace

Comparison::Comparison(Session start)
    : m_start(std::move(start))
    , m_state(m_start) {}

void Comparison::Reset() {
    // The tables need no reset, because comparisons do not change them, and the labels none, because a
    // recalculation writes whatever it can change of them.
    static_cast<ScreenEntries&>(m_state.Screen) = m_start.Screen;
    static_cast<Results&>(m_state) = m_start;
    m_state.ChosenHouse = m_start.ChosenHouse;
    m_host.Clear();
}

std::optional<Refusal> Comparison::EnterFields(const InputRecord& inputs) {
    for (const EntryInput& entry : EntryInputs()) {
        // The option comes first, because it decides which of the two fields applies.
        if (entry.Which == Input::ecPctDown)
            if (auto refusal = EnterDownPayment(m_state, inputs[Input::optDownPayment]))
                return refusal;
        if (auto refusal = EnterField(m_state, entry, inputs[entry.Which]))
            return refusal;
    }
    return EnterConversion(inputs[Input::PctDownConverted]);
}

std::optional<Refusal> Comparison::EnterConversion(const InputValue& value) {
    if (!value.Present) {
        Module1::ConvertPercentDown(m_state);
        return std::nullopt;
    }
    if (value.Text != "true" && value.Text != "false")
        return Refuse(Input::PctDownConverted, value, "This must be true or false.");
    m_state.Screen.PctDownConverted = value.Text == "true";
    return std::nullopt;
}

void Comparison::NameHouse(const InputValue& name) {
    if (name.Present && !name.Text.empty())
        Module1::NameHouse(name.Text, m_state);
}

std::optional<Refusal> Comparison::PickOptions(const InputRecord& inputs) {
    MainScreen& screen = m_state.Screen;
    const InputValue& base = inputs[Input::cboStdMortOption];
    if (base.Present && !Module1::SetBaseOption(screen, base.Text))
        return UnknownItem(Input::cboStdMortOption, base, screen.cboStdMortOption);
    const InputValue& labelled = inputs[Input::cboGMHMortOption];
    if (labelled.Present) {
        if (!Module1::SetLabelledOption(m_state, labelled.Text))
            return UnknownItem(Input::cboGMHMortOption, labelled, screen.cboGMHMortOption);
        if (const auto message = Module1::OptionMessage(screen.cboGMHMortOption.Option()))
            m_host.ShowMessage(*message);
    }
    const InputValue& term = inputs[Input::cboMortTerm];
    if (term.Present && !Module1::SetTerm(m_state, term.Text))
        return UnknownItem(Input::cboMortTerm, term, screen.cboMortTerm);
    return std::nullopt;
}

std::string Comparison::DataCheck() const {
    return Module1::DataCheckText(m_state.Screen);
}

std::optional<Refusal> Comparison::Run(const InputRecord& inputs) {
    Reset();
    if (auto refusal = EnterFields(inputs))
        return refusal;
    if (auto refusal = PickOptions(inputs))
        return refusal;
    if (auto refusal = EnterTaxes(m_state.Screen, inputs[Input::chkDoTax0]))
        return refusal;
    NameHouse(inputs[Input::lblHomeName]);
    m_state.Scenario.EEMNoticeFlag = true;
    Module1::Recalculate(m_state, m_host, m_shown);
    Module1::RefreshFeatureCaptions(m_state);
    return std::nullopt;
}

} // namespace Ledgrove
