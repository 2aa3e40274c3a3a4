#pragma once

#include <functional>
#include <type_traits>
#include <utility>

namespace Ledgrove {

/// Shows a form's record once for each event. The rules behind an event may call one another, as Enter does,
/// which commits a field and thereby leaves it: the record is shown when the outermost rule returns, if one
/// of them changed it.
class RecordShow {
public:
    explicit RecordShow(std::function<void()> show)
        : m_show(std::move(show)) {}

    /// Runs a rule. One that returns a bool says by it whether it changed the record.
    template <typename Rule>
    void Run(Rule rule) {
        ++m_running;
        if constexpr (std::is_void_v<decltype(rule())>) {
            rule();
            m_changed = true;
        } else {
            m_changed = rule() || m_changed;
        }
        if (--m_running == 0 && std::exchange(m_changed, false))
            m_show();
    }

private:
    std::function<void()> m_show;
    int m_running = 0;
    bool m_changed = false;
};

} // namespace Ledgrove
