#include "ui/EntryHistory.h"

#include <algorithm>

#include "engine/Recalculate.h"

namespace Ledgrove {

namespace {

/// A person does not go back further, and each step takes about six kilobytes.
constexpr std::size_t mostSteps = 1000;

/// The messages of an entry were answered when it was made.
class SilentHost : public Host {
public:
    MessageAnswer ShowMessage(const Message&) override { return MessageAnswer::Ok; }
    void RunPendingEvents() override {}
};

/// Whether a person would enter the same to get either screen.
bool AreSameInputs(const MainScreen& a, const MainScreen& b) {
    // The hidden fields after the inputs only repeat them.
    const auto fields = FieldTable();
    const auto lists = PickListTable();
    return std::all_of(fields.begin(), fields.end(),
                       [&](const auto& entry) { return (a.*entry.Member).Text == (b.*entry.Member).Text; }) &&
           std::all_of(
               lists.begin(), lists.end(),
               [&](const auto& entry) { return (a.*entry.Member).Text() == (b.*entry.Member).Text(); }) &&
           a.optDownPayment == b.optDownPayment && a.chkDoTax0 == b.chkDoTax0 &&
           a.lblHomeName.Text == b.lblHomeName.Text;
}

} // namespace

EntryHistory::Step EntryHistory::StepOf(const Session& session) {
    return {session.Screen, session, session.ChosenHouse};
}

void EntryHistory::Restart(const Session& session) {
    m_steps.assign(1, StepOf(session));
    m_at = 0;
}

void EntryHistory::Note(const Session& session) {
    if (m_steps.empty())
        return Restart(session);
    if (AreSameInputs(m_steps[m_at].Screen, session.Screen)) {
        // The figures may have changed with the assumptions, or with a later calculation.
        m_steps[m_at] = StepOf(session);
        return;
    }
    m_steps.resize(m_at + 1);
    m_steps.push_back(StepOf(session));
    if (m_steps.size() > mostSteps)
        m_steps.pop_front();
    m_at = m_steps.size() - 1;
}

Session EntryHistory::Committed(const Session& session) const {
    Session committed = session;
    const Step& step = m_steps[m_at];
    committed.Screen = step.Screen;
    committed.ChosenHouse = step.Chosen;
    static_cast<Results&>(committed) = step.Figures;
    return committed;
}

void EntryHistory::Undo(Session& session) {
    if (!CanUndo())
        return;
    --m_at;
    BringBack(session);
}

void EntryHistory::Redo(Session& session) {
    if (!CanRedo())
        return;
    ++m_at;
    BringBack(session);
}

void EntryHistory::BringBack(Session& session) const {
    const Step& step = m_steps[m_at];
    const int tab = session.Screen.SSTab1;
    const auto panels = session.Screen.DetlFrame;
    session.Screen = step.Screen;
    session.Screen.SSTab1 = tab;
    session.Screen.DetlFrame = panels;
    session.ChosenHouse = step.Chosen;
    static_cast<Results&>(session) = step.Figures;
    if (!step.Figures.From)
        return;
    SilentHost silent;
    Module1::Recalculate(session, silent);
    Module1::RefreshFeatureCaptions(session);
    session.Scenario.EEMNoticeFlag = step.Figures.Scenario.EEMNoticeFlag;
}

} // namespace Ledgrove
