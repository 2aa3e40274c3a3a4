#pragma once

#include <QWidget>
#include <QtTest>
#include <memory>
#include <string>
#include <vector>

#include "engine/Host.h"
#include "engine/Session.h"
#include "ui/windows/frmMain.h"

// Shared by the window tests.
namespace Ledgrove {

/// Keeps the messages instead of showing them, and gives the same answer to all.
class RecordingHost : public Host {
public:
    MessageAnswer ShowMessage(const Message& message) override {
        Messages.push_back(message);
        return Answer;
    }
    void RunPendingEvents() override { ++Yields; }

    /// The texts since the last call.
    std::vector<std::string> TakeTexts();

    MessageAnswer Answer = MessageAnswer::Ok;
    std::vector<Message> Messages;
    int Yields = 0; ///< a recalculation ends with one; the panels of the tabs 1 to 3 add one
};

/// Fills the screen as start-up does: 30 years, 6.5 %, "Conventional", "% Down", the shipped loan types, all
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
    /// Selects the field's whole text and types over it.
    void Type(const QString& field, const QString& text) const;
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    /// The `count` controls that Tab reaches, beginning with `first`.
    QStringList TabWalk(const QString& first, qsizetype count) const;

    QWidget* Form = nullptr;
};

/// The open main window with a new session.
struct OpenWindow : FormDriver {
    OpenWindow();

    void Choose(const char* list, const QString& text) const;

    Session State;
    RecordingHost Outside;
    std::unique_ptr<frmMain> Window;
};

/// All texts of the form's captions and buttons in which "&" marks a mnemonic.
QStringList MnemonicTexts(const QWidget& form);

/// The letter that "&" marks, or null.
QChar MnemonicOf(const QString& text);

/// The mnemonics of these texts in order, or the two texts that share one, "Save and Sort".
QString Mnemonics(const QStringList& texts);
QString Mnemonics(const QWidget& form);

/// The control's name for a screen reader.
QString SpokenName(QWidget& widget);

/// The controls of the form, the form included, whose spoken name or description holds a name of the code:
/// "ecIncome speaks ecIncome".
QStringList SpokenCodeNames(QWidget& form);

/// A press and a release in the middle of the widget, as the window system sends them.
void ClickAt(QWidget& widget);

} // namespace Ledgrove
