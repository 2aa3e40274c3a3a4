#pragma once

#include <functional>
#include <type_traits>
#include <utility>

namespace Ledgrove {

/// Shows a form's record once per event. Rules may call each other: for example, Enter commits a field and
/// thereby leaves it. The record is shown when the outermost rule returns, if any of them changed it.
class RecordShow {
public:
    explicit RecordShow(std::function<void()> show)
        : m_show(std::move(show)) {}

    /// Runs a rule. A rule that returns a bool reports whether it changed the record; any other rule counts
    /// as a change.
    template <typename Rule>
    void Run(Rule&& rule) {
        using Outcome = decltype(rule());
        static_assert(std::is_void_v<Outcome> || std::is_same_v<Outcome, bool>);
        ++m_running;
        if constexpr (std::is_void_v<Outcome>) {
            rule();
            m_changed = true;
        } else {
            m_changed = rule() || m_changed;
        }
        if (--m_running == 0 && std::exchange(m_changed, false))
            m_show();
    }

    /// Counts a change that happens between the rules, as typing does: the next rule to end shows the record,
    /// even if it changes nothing itself.
    void NoteChange() { m_changed = true; }

private:
    std::function<void()> m_show;
    int m_running = 0;
    bool m_changed = false;
};

} // namespace Ledgrove
