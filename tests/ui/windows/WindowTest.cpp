#include "WindowTest.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
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
    Window->show();
    if (!QTest::qWaitForWindowActive(Window.get()))
        qFatal("the window does not become active");
}

QString OpenWindow::FieldText(const char* name) const {
    return Find<QLineEdit>(name).text();
}

QString OpenWindow::LabelText(const char* name) const {
    return Find<QLabel>(name).text();
}

QString OpenWindow::Focused() const {
    const QWidget* focused = QApplication::focusWidget();
    return focused ? focused->objectName() : QString();
}

void OpenWindow::Type(const char* field, const QString& text) const {
    auto& edit = Find<QLineEdit>(field);
    edit.setFocus(Qt::OtherFocusReason);
    edit.selectAll();
    if (text.isEmpty())
        QTest::keyClick(&edit, Qt::Key_Delete);
    else
        QTest::keyClicks(&edit, text);
}

void OpenWindow::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
    QTest::keyClick(Window->windowHandle(), key, modifiers);
}

void OpenWindow::Choose(const char* list, const QString& text) const {
    auto& combo = Find<QComboBox>(list);
    const int index = combo.findText(text);
    QVERIFY2(index >= 0, qPrintable(text));
    combo.setCurrentIndex(index);
    emit combo.activated(index);
}

void ClickAt(QWidget& widget) {
    QWidget* window = widget.window();
    const QPoint middle = widget.mapTo(window, widget.rect().center());
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, middle);
}

} // namespace Ledgrove
