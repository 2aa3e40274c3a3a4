#pragma once

#include <functional>
#include <utility>

#include "engine/Host.h"

namespace Ledgrove {

/// The outside as a person at the screen meets it.
class QtHost : public Host {
public:
    MessageAnswer ShowMessage(const Message& message) override;
    /// User input waits: a click must not meet a half-finished edit.
    void RunPendingEvents() override;
};

/// Shows the record in its window before a message box opens over it, so that nobody looks at old figures.
class RefreshingHost : public Host {
public:
    RefreshingHost(Host& outside, std::function<void()> refresh)
        : m_outside(outside)
        , m_refresh(std::move(refresh)) {}

    MessageAnswer ShowMessage(const Message& message) override {
        m_refresh();
        return m_outside.ShowMessage(message);
    }
    void RunPendingEvents() override { m_outside.RunPendingEvents(); }

private:
    Host& m_outside;
    std::function<void()> m_refresh;
};

} // namespace Ledgrove
