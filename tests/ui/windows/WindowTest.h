#pragma once

#include <QWidget>
#include <QtTest>
#include <memory>
#include <string>
#include <vector>

#include "engine/Host.h"
#include "engine/Session.h"
#include "ui/windows/frmMain.h"

// What the window tests share.
namespace Ledgrove {

/// Keeps the messages instead of showing them, and answers all alike.
class RecordingHost : public Host {
public:
    MessageAnswer ShowMessage(const Message& message) override {
        Messages.push_back(message);
        return Answer;
    }
    void RunPendingEvents() override {}

    /// The texts since the last call.
    std::vector<std::string> TakeTexts();

    MessageAnswer Answer = MessageAnswer::Ok;
    std::vector<Message> Messages;
};

/// The screen as it is after start-up: 30 years, 6.5 %, "Conventional", "% Down", loan types as shipped, all
/// other assumptions 0.
void FillAsAtStart(Session& session, Host& host);

/// Finds, types and reads as a user of the form does.
struct FormDriver {
    template <typename Widget = QWidget>
    Widget& Find(const QString& name) const {
        auto* found = Form->findChild<Widget*>(name);
        if (!found)
            qFatal("there is no %s", qPrintable(name));
        return *found;
    }
    QString FieldText(const QString& name) const;
    QString LabelText(const QString& name) const;
    QString Focused() const;
    /// Selects all of the field and types over it.
    void Type(const QString& field, const QString& text) const;
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    /// The controls that Tab walks through, from `first` on, `count` of them.
    QStringList TabWalk(const QString& first, qsizetype count) const;

    QWidget* Form = nullptr;
};

/// The main window in front, on a fresh session.
struct OpenWindow : FormDriver {
    OpenWindow();

    void Choose(const char* list, const QString& text) const;

    Session State;
    RecordingHost Outside;
    std::unique_ptr<frmMain> Window;
};

/// Every text of the form's captions and buttons in which "&" marks a mnemonic.
QStringList MnemonicTexts(const QWidget& form);

/// The letter that "&" marks; null without one.
QChar MnemonicOf(const QString& text);

/// The mnemonics of these texts in order, or the two texts that share one, "Save and Sort".
QString Mnemonics(const QStringList& texts);
QString Mnemonics(const QWidget& form);

/// What a screen reader calls the control.
QString SpokenName(QWidget& widget);

/// A press and a release in the middle of the widget, as the window system delivers them.
void ClickAt(QWidget& widget);

} // namespace Ledgrove
