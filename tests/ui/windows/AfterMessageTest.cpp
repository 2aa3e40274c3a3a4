#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTimer>

#include "WindowTest.h"
#include "ui/windows/QtHost.h"
#include "ui/windows/ResultPanels.h"

using namespace Ledgrove;

// What hands do while a message box opens: a press whose release the box takes, an answer, and typing on.
namespace {

/// The main window with real message boxes, and a price typed that raises the notice about the energy
/// efficient mortgage when the field is left: the GREENMARK home costs $121,000 more, which is more than the
/// savings of $100 a month are worth.
class NoticeWindow : public FormDriver, public QObject {
public:
    NoticeWindow() {
        FillAsAtStart(State, m_silent);
        MainActions actions;
        actions.Print = [this] { ++Prints; };
        Window = std::make_unique<frmMain>(State, m_boxes, actions);
        Form = Window.get();
        Window->show();
        Activate();
        for (const auto& [field, text] :
             std::initializer_list<std::pair<const char*, const char*>>{{"ecIncome", "60000"},
                                                                        {"ecStdHome", "200000"},
                                                                        {"ecGMHHome", "201000"},
                                                                        {"ecStdUtil", "2400"},
                                                                        {"ecGMHUtil", "1200"}}) {
            Type(field, text);
            Press(Qt::Key_Return);
        }
        m_answers.callOnTimeout(this, [this] { Answer(); });
        m_answers.start(10);
        auto& option = Find<QComboBox>("cboGMHMortOption");
        option.setCurrentText("Freddie Mac EEM");
        emit option.activated(option.currentIndex());
        Activate();
        Boxes = 0;
        Type("ecGMHHome", "321000");
    }

    void Activate() {
        // Without a window manager, the test itself must activate the window after a message.
        Window->activateWindow();
        if (!QTest::qWaitForWindowActive(Window.get()))
            qFatal("the window does not become active");
    }

    QPoint MiddleOf(QWidget& widget) const { return widget.mapTo(Window.get(), widget.rect().center()); }

    /// Presses at this place; the release comes while the message box is open.
    void PressUnderTheBox(QPoint place) {
        m_pressedAt = place;
        QTest::mousePress(Window->windowHandle(), Qt::LeftButton, {}, place);
        Activate();
        QCoreApplication::processEvents();
    }

    Session State;
    std::unique_ptr<frmMain> Window;
    int Boxes = 0;
    int Prints = 0;

private:
    void Answer() {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        ++Boxes;
        if (m_pressedAt)
            QTest::mouseRelease(Window->windowHandle(), Qt::LeftButton, {}, *std::exchange(m_pressedAt, {}));
        box->accept();
    }

    RecordingHost m_silent;
    QtHost m_boxes;
    QTimer m_answers;
    std::optional<QPoint> m_pressedAt;
};

} // namespace

class AfterMessageTest : public QObject {
    Q_OBJECT

private slots:
    void aKeyThatRaisesTheNoticeSelectsTheNextField_data();
    void aKeyThatRaisesTheNoticeSelectsTheNextField();
    void aClickThatRaisesTheNoticeSelectsTheField_data();
    void aClickThatRaisesTheNoticeSelectsTheField();
    void theCheckBoxActsAfterTheAnswer();
    void theOptionActsAfterTheAnswer();
    void theButtonActsOnceAndStaysUp();
    void theTabOpensAfterTheAnswer();
    void thePickListOpensAfterTheAnswer();
    void theMnemonicActsAfterTheAnswer();
    void returningFromAnotherWindowKeepsTheCaret();
};

void AfterMessageTest::aKeyThatRaisesTheNoticeSelectsTheNextField_data() {
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("next");
    QTest::newRow("Enter") << Qt::Key_Return << "ecStdUtil";
    QTest::newRow("Tab") << Qt::Key_Tab << "ecStdUtil";
    QTest::newRow("Down") << Qt::Key_Down << "ecStdUtil";
    QTest::newRow("Up") << Qt::Key_Up << "ecStdHome";
    QTest::newRow("Shift+Tab") << Qt::Key_Backtab << "ecStdHome";
}

void AfterMessageTest::aKeyThatRaisesTheNoticeSelectsTheNextField() {
    QFETCH(Qt::Key, key);
    QFETCH(QString, next);
    NoticeWindow open;
    open.Press(key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
    QCOMPARE(open.Boxes, 1);
    open.Activate();
    QCOMPARE(open.Focused(), next);
    QTest::keyClicks(open.Window->focusWidget(), "70000");
    QCOMPARE(open.FieldText(next), "70000");
}

void AfterMessageTest::aClickThatRaisesTheNoticeSelectsTheField_data() {
    QTest::addColumn<QString>("field");
    for (const char* field : {"ecIncome", "ecStdHome", "ecStdUtil", "ecStdRate"})
        QTest::newRow(field) << field;
}

void AfterMessageTest::aClickThatRaisesTheNoticeSelectsTheField() {
    QFETCH(QString, field);
    NoticeWindow open;
    auto& edit = open.Find<QLineEdit>(field);
    const QPoint amongTheDigits(edit.width() - edit.fontMetrics().horizontalAdvance("00"), edit.height() / 2);
    open.PressUnderTheBox(edit.mapTo(open.Window.get(), amongTheDigits));
    QCOMPARE(open.Boxes, 1);
    QCOMPARE(open.Focused(), field);
    QTest::keyClicks(&edit, "70000");
    QCOMPARE(edit.text(), "70000");
}

void AfterMessageTest::theCheckBoxActsAfterTheAnswer() {
    NoticeWindow open;
    auto& taxes = open.Find<QCheckBox>("chkDoTax0");
    QVERIFY(taxes.isChecked());
    open.PressUnderTheBox(taxes.mapTo(open.Window.get(), QPoint(8, taxes.height() / 2)));
    QCOMPARE(open.Boxes, 1);
    QVERIFY(!taxes.isChecked());
    QVERIFY(!taxes.isDown());
    QVERIFY(!open.State.Screen.chkDoTax0);
}

void AfterMessageTest::theOptionActsAfterTheAnswer() {
    NoticeWindow open;
    auto& fixed = open.Find<QRadioButton>("optDownPayment1");
    open.PressUnderTheBox(fixed.mapTo(open.Window.get(), QPoint(8, fixed.height() / 2)));
    QVERIFY(open.Boxes >= 1);
    QVERIFY(fixed.isChecked());
    QVERIFY(!fixed.isDown());
    QCOMPARE(open.State.Screen.optDownPayment, 1);
}

void AfterMessageTest::theButtonActsOnceAndStaysUp() {
    NoticeWindow open;
    auto& print = open.Find<QPushButton>("bPrint");
    open.PressUnderTheBox(open.MiddleOf(print));
    // The notice, then the data check: the GREENMARK home costs more than 10% more.
    QTRY_COMPARE(open.Prints, 1);
    QCOMPARE(open.Boxes, 2);
    QVERIFY(!print.isDown());
}

void AfterMessageTest::theTabOpensAfterTheAnswer() {
    NoticeWindow open;
    QTabBar* tabs = open.Window->findChild<ResultPanels*>()->tabBar();
    open.PressUnderTheBox(tabs->mapTo(open.Window.get(), tabs->tabRect(4).center()));
    QTRY_COMPARE(tabs->currentIndex(), 4);
    QCOMPARE(open.State.Screen.SSTab1, 4);
}

void AfterMessageTest::thePickListOpensAfterTheAnswer() {
    NoticeWindow open;
    auto& term = open.Find<QComboBox>("cboMortTerm");
    open.PressUnderTheBox(open.MiddleOf(term));
    QCOMPARE(open.Boxes, 1);
    QTRY_VERIFY(QApplication::activePopupWidget());
    term.hidePopup();
}

void AfterMessageTest::theMnemonicActsAfterTheAnswer() {
    NoticeWindow open;
    open.Press(Qt::Key_P, Qt::AltModifier);
    open.Activate();
    QTRY_COMPARE(open.Prints, 1);
}

void AfterMessageTest::returningFromAnotherWindowKeepsTheCaret() {
    NoticeWindow open;
    QWidget another;
    another.show();
    another.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&another));
    open.Activate();
    QTest::keyClicks(open.Window->focusWidget(), "5");
    QCOMPARE(open.FieldText("ecGMHHome"), "3210005");
    QCOMPARE(open.Boxes, 0);
}

QTEST_MAIN(AfterMessageTest)
#include "AfterMessageTest.moc"
