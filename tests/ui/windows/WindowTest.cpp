#include "WindowTest.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QRegularExpression>
#include <QWindow>

#include "engine/Recalculate.h"
#include "ui/MainScreenRules.h"

namespace Ledgrove {

std::vector<std::string> RecordingHost::TakeTexts() {
    std::vector<std::string> texts;
    for (const Message& message : Messages)
        texts.push_back(message.Text);
    Messages.clear();
    return texts;
}

void FillAsAtStart(Session& session, Host& host) {
    const char* names[] = {"Conventional", "Fannie Mae EEM", "Freddie Mac EEM", "FHA", "FHA EEM",
                           "VA",           "VA EEM"};
    for (const char* name : names) {
        LoanType type;
        type.Number = static_cast<std::int16_t>(session.LoanTypes.size() + 1);
        type.Name = name;
        type.FrontRatio = 0.28F;
        type.BackRatio = 0.36F;
        type.IsEEM = type.Name.ends_with("EEM");
        session.LoanTypes.push_back(type);
    }
    MainScreen& screen = session.Screen;
    screen.cboMortTerm.Items = TermItems();
    screen.cboStdMortOption.Items = BaseOptionItems();
    Module1::SetTerm(session, "30 years");
    screen.ecStdRate.Text = "6.5";
    screen.ecRate.Text = screen.ecGMHRate.Text = "6.500%";
    Module1::SetDownPayment(session, 0);
    Module1::SetBaseOption(screen, "Conventional");
    screen.lblHomeName.Text = "Custom";
    session.Scenario.EEMNoticeFlag = false;
    Module1::Recalculate(session, host);
}

OpenWindow::OpenWindow() {
    FillAsAtStart(State, Outside);
    Window = std::make_unique<frmMain>(State, Outside);
    Form = Window.get();
    Window->show();
    if (!QTest::qWaitForWindowActive(Window.get()))
        qFatal("the window does not become active");
}

QString FormDriver::FieldText(const QString& name) const {
    return Find<QLineEdit>(name).text();
}

QString FormDriver::LabelText(const QString& name) const {
    return Find<QLabel>(name).text();
}

QString FormDriver::Focused() const {
    const QWidget* focused = QApplication::focusWidget();
    return focused ? focused->objectName() : QString();
}

void FormDriver::Type(const QString& field, const QString& text) const {
    auto& edit = Find<QLineEdit>(field);
    edit.setFocus(Qt::OtherFocusReason);
    edit.selectAll();
    if (text.isEmpty())
        QTest::keyClick(&edit, Qt::Key_Delete);
    else
        QTest::keyClicks(&edit, text);
}

void FormDriver::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
    QTest::keyClick(Form->windowHandle(), key, modifiers);
}

QStringList FormDriver::TabWalk(const QString& first, qsizetype count) const {
    Find(first).setFocus();
    QStringList walked;
    while (walked.size() < count) {
        walked += Focused();
        Press(Qt::Key_Tab);
    }
    return walked;
}

void OpenWindow::Choose(const char* list, const QString& text) const {
    auto& combo = Find<QComboBox>(list);
    const int index = combo.findText(text);
    QVERIFY2(index >= 0, qPrintable(text));
    combo.setCurrentIndex(index);
    emit combo.activated(index);
}

QStringList MnemonicTexts(const QWidget& form) {
    QStringList texts;
    for (const QLabel* label : form.findChildren<QLabel*>()) {
        if (label->buddy())
            texts += label->text();
    }
    for (const QAbstractButton* button : form.findChildren<QAbstractButton*>())
        texts += button->text();
    return texts;
}

QChar MnemonicOf(const QString& text) {
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != '&')
            continue;
        if (text[i + 1] != '&')
            return text[i + 1].toUpper();
        ++i;
    }
    return {};
}

QString Mnemonics(const QStringList& texts) {
    QMap<QChar, QString> owners;
    for (const QString& text : texts) {
        const QChar letter = MnemonicOf(text);
        if (letter.isNull())
            continue;
        if (owners.contains(letter))
            return text + " and " + owners[letter];
        owners[letter] = text;
    }
    return QString(owners.keys().data(), owners.size());
}

QString Mnemonics(const QWidget& form) {
    return Mnemonics(MnemonicTexts(form));
}

QString SpokenName(QWidget& widget) {
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
}

QStringList SpokenCodeNames(QWidget& form) {
    static const QRegularExpression codeName(R"(\b(ec|lbl|cbo|opt|chk|b|Command|txt|frm)[A-Z0-9]\w*)");
    QStringList found;
    for (QWidget* control : QList<QWidget*>{&form} + form.findChildren<QWidget*>()) {
        const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(control);
        for (const auto kind : {QAccessible::Name, QAccessible::Description}) {
            const QString words = spoken ? spoken->text(kind) : QString();
            const QString own = control->objectName();
            if (codeName.match(words).hasMatch() || (!own.isEmpty() && words.contains(own)))
                found += own + " speaks " + words;
        }
    }
    return found;
}

void ClickAt(QWidget& widget) {
    QWidget* window = widget.window();
    const QPoint middle = widget.mapTo(window, widget.rect().center());
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, middle);
}

} // namespace Ledgrove
