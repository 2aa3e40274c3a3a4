#pragma once

#include <QWidget>
#include <QtTest>
#include <string>
#include <vector>

#include "engine/Host.h"
#include "engine/Session.h"
#include "ui/windows/frmMain.h"

// What the window tests share.
namespace Ledgrove {

/// Keeps the messages instead of showing them.
class RecordingHost : public Host {
public:
    MessageAnswer ShowMessage(const Message& message) override {
        Messages.push_back(message);
        return MessageAnswer::Ok;
    }
    void RunPendingEvents() override {}

    /// The texts since the last call.
    std::vector<std::string> TakeTexts();

    std::vector<Message> Messages;
};

/// The screen as it is after start-up: 30 years, 6.5 %, "Conventional", "% Down", loan types as shipped, all
/// other assumptions 0.
void FillAsAtStart(Session& session, Host& host);

/// The main window in front, on a fresh session.
struct OpenWindow {
    OpenWindow();

    template <typename Widget = QWidget>
    Widget& Find(const char* name) const {
        auto* found = Window->findChild<Widget*>(name);
        Q_ASSERT(found);
        return *found;
    }
    QString FieldText(const char* name) const;
    QString LabelText(const char* name) const;
    QString Focused() const;
    /// Selects all of the field and types over it.
    void Type(const char* field, const QString& text) const;
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void Choose(const char* list, const QString& text) const;

    Session State;
    RecordingHost Outside;
    std::unique_ptr<frmMain> Window;
};

/// A press and a release in the middle of the widget, as the window system delivers them.
void ClickAt(QWidget& widget);

} // namespace Ledgrove
