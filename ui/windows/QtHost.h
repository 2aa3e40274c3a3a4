#pragma once

#include <functional>
#include <utility>

#include "engine/Host.h"

class QWidget;

namespace Ledgrove {

/// The window in front, above which a message or dialog opens. No window is active right after a message box
/// has closed; then this is the modal dialog, or else the main window. Null if no window is shown.
QWidget* FrontWindow();

/// Shows messages in message boxes and processes Qt's events.
class QtHost : public Host {
public:
    MessageAnswer ShowMessage(const Message& message) override;
    /// Does not process user input, so that no click interrupts an edit.
    void RunPendingEvents() override;
};

/// Shows the record before a message box opens, so that the window behind the box shows the new figures.
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
