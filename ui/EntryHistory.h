#pragma once

#include <cstddef>
#include <deque>

#include "engine/Session.h"

namespace Ledgrove {

/// The comparison after each entry, for Undo and Redo. Every committed entry or applied answer is one step.
class EntryHistory {
public:
    /// Forgets all steps; the session's inputs are the start.
    void Restart(const Session& session);

    /// Notes a step if the inputs differ from those noted last. A step after an undo replaces what was
    /// undone.
    void Note(const Session& session);

    /// The session with the inputs and figures noted last, which what is being typed does not change.
    Session Committed(const Session& session) const;

    bool CanUndo() const { return m_at > 0; }
    bool CanRedo() const { return m_at + 1 < m_steps.size(); }

    /// Brings back the inputs and figures before the last step, or those after it. The figures go by the
    /// session's present rules; no notice is shown again. Does nothing without such a step.
    void Undo(Session& session);
    void Redo(Session& session);

private:
    struct Step {
        MainScreen Screen;
        Results Figures;
        House Chosen;
    };

    static Step StepOf(const Session& session);
    void BringBack(Session& session) const;

    std::deque<Step> m_steps;
    std::size_t m_at = 0;
};

} // namespace Ledgrove
