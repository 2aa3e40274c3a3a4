#include "ui/windows/EntryField.h"

#include <QComboBox>
#include <QMessageBox>
#include <QPushButton>
#include <QStyleHints>
#include <QTimer>
#include <QVBoxLayout>

#include "WindowTest.h"
#include "ui/windows/FormFocus.h"
#include "ui/windows/FormGuard.h"
#include "ui/windows/StandardEntry.h"

using namespace Ledgrove;
using Module1::AfterEdit;

namespace {

const std::string notANumber = "You must enter a number here.";

/// Two fields of a record, buttons and a pick list in one column.
struct Form {
    explicit Form(Host& host)
        : Context{State, host, Focus} {
        auto* layout = new QVBoxLayout(&Window);
        for (EntryField* field : {First, Second})
            layout->addWidget(field);
        for (QPushButton* button : {Other, Cancel, Exit})
            layout->addWidget(button);
        layout->addWidget(List);
        Other->setObjectName("bOther");
        Cancel->setObjectName("bCancelDialog");
        Exit->setObjectName("bExitForm");
        First->setObjectName("first");
        Second->setObjectName("second");
        List->addItems({"one", "two"});
        Bind(*First, State.Screen.ecIncome);
        Bind(*Second, State.Screen.ecMonthlyDebt);
        QObject::connect(Other, &QPushButton::clicked, [this] { ++OtherClicks; });
        new FormGuard(Window);
        Window.show();
        if (!QTest::qWaitForWindowActive(&Window))
            qFatal("the form does not become active");
        First->setFocus();
    }

    void Bind(EntryField& widget, Field& field) {
        widget.Bind(field, StandardEntryEvents(Context, field,
                                               {FieldFormat::Dollar, FieldFormat::Dollar, AfterEdit::Nothing},
                                               Shows));
    }

    QWidget Window;
    Session State;
    FormFocus Focus{Window};
    EntryContext Context;
    RecordShow Shows{[this] {
        First->Refresh();
        Second->Refresh();
    }};
    EntryField *First = new EntryField, *Second = new EntryField;
    QPushButton *Other = new QPushButton("&Other"), *Cancel = new QPushButton("Cancel"),
                *Exit = new QPushButton("Exit");
    QComboBox* List = new QComboBox;
    int OtherClicks = 0;
};

void Drag(QWidget& widget, QPoint from, QPoint to) {
    QTest::mousePress(&widget, Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, to, widget.mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &move);
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, to);
}

/// A place between the digits of a right-aligned field with at least four of them.
QPoint AmongTheDigits(const EntryField& field) {
    return {field.width() - field.fontMetrics().horizontalAdvance("00"), field.height() / 2};
}

} // namespace

class EntryFieldTest : public QObject {
    Q_OBJECT

private slots:
    void typingWritesTheRecordAtOnce();
    void enterFormatsAndMovesOn();
    void tabCommitsAndMovesOn();
    void shiftTabCommitsByLeaving();
    void refusedTabStaysWithOneMessage();
    void refusedEnterStaysWithOneMessage();
    void emptyFieldBecomesZeroWhenLeft();
    void leavingForCancelOrExitNeverComplains_data();
    void leavingForCancelOrExitNeverComplains();
    void pressThatLeavesARefusedFieldDoesNothing();
    void pressThatLeavesARefusedFieldOpensNoList();
    void pressBeforeTheMessageBoxDoesNothing();
    void nextPressActsAgain();
    void refusalTouchesNoOtherField();
    void mnemonicOfAButtonActsOnlyAfterCommit();
    void clickAndFocusSelectAll();
    void clickIntoTheMiddleSelectsAllWithoutAClickRule();
    void doubleClickSelectsAll();
    void tremblingClickSelectsAll();
    void draggedSelectionIsKept();
    void textSetByCodeIsAChange();
    void anotherWindowInFrontCommitsNothing();
    void commitInPlaceSelectsAll();
};

void EntryFieldTest::typingWritesTheRecordAtOnce() {
    RecordingHost host;
    Form form(host);
    QTest::keyClicks(form.First, "abc");
    QCOMPARE(form.State.Screen.ecIncome.Text, std::string("abc"));
    QVERIFY(host.Messages.empty());
}

void EntryFieldTest::enterFormatsAndMovesOn() {
    RecordingHost host;
    Form form(host);
    QTest::keyClicks(form.First, "72000");
    QTest::keyClick(form.First, Qt::Key_Return);
    QCOMPARE(form.First->text(), "$72,000");
    QVERIFY(form.Second->hasFocus());
}

void EntryFieldTest::tabCommitsAndMovesOn() {
    RecordingHost host;
    Form form(host);
    QTest::keyClicks(form.First, "350");
    QTest::keyClick(form.First, Qt::Key_Tab);
    QCOMPARE(form.First->text(), "$350");
    QVERIFY(form.Second->hasFocus());
}

void EntryFieldTest::shiftTabCommitsByLeaving() {
    RecordingHost host;
    Form form(host);
    form.Second->setFocus();
    QTest::keyClicks(form.Second, "350");
    QTest::keyClick(form.Second, Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(form.Second->text(), "$350");
    QVERIFY(form.First->hasFocus());
}

void EntryFieldTest::refusedTabStaysWithOneMessage() {
    RecordingHost host;
    Form form(host);
    QTest::keyClicks(form.First, "abc");
    QTest::keyClick(form.First, Qt::Key_Tab);
    QCOMPARE(host.TakeTexts(), std::vector{notANumber});
    QVERIFY(form.First->hasFocus());
    QCOMPARE(form.First->selectedText(), "abc");
}

void EntryFieldTest::refusedEnterStaysWithOneMessage() {
    RecordingHost host;
    Form form(host);
    QTest::keyClicks(form.First, "-5");
    QTest::keyClick(form.First, Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(host.TakeTexts(), std::vector<std::string>{"You must enter a positive number here."});
    QVERIFY(form.First->hasFocus());
    QCOMPARE(form.First->selectedText(), "-5");
}

void EntryFieldTest::emptyFieldBecomesZeroWhenLeft() {
    RecordingHost host;
    Form form(host);
    ClickAt(*form.Second);
    QCOMPARE(form.First->text(), "$0");
    QVERIFY(host.Messages.empty());
}

void EntryFieldTest::leavingForCancelOrExitNeverComplains_data() {
    QTest::addColumn<QString>("button");
    QTest::addRow("Cancel") << "bCancelDialog";
    QTest::addRow("Exit") << "bExitForm";
}

void EntryFieldTest::leavingForCancelOrExitNeverComplains() {
    QFETCH(QString, button);
    RecordingHost host;
    Form form(host);
    auto* target = form.Window.findChild<QPushButton*>(button);
    QSignalSpy clicked(target, &QPushButton::clicked);
    QTest::keyClicks(form.First, "-5");
    ClickAt(*target);
    QVERIFY(host.Messages.empty());
    QCOMPARE(clicked.count(), 1);
    QVERIFY(target->hasFocus());
}

void EntryFieldTest::pressThatLeavesARefusedFieldDoesNothing() {
    RecordingHost host;
    Form form(host);
    QSignalSpy pressed(form.Other, &QPushButton::pressed);
    QTest::keyClicks(form.First, "abc");
    ClickAt(*form.Other);
    QCOMPARE(host.TakeTexts(), std::vector{notANumber});
    QVERIFY(form.First->hasFocus());
    QCOMPARE(form.OtherClicks, 0);
    QCOMPARE(pressed.count(), 0);
    QVERIFY(!form.Other->isDown());
}

void EntryFieldTest::pressThatLeavesARefusedFieldOpensNoList() {
    RecordingHost host;
    Form form(host);
    QTest::keyClicks(form.First, "abc");
    ClickAt(*form.List);
    QCOMPARE(host.TakeTexts(), std::vector{notANumber});
    QVERIFY(form.First->hasFocus());
    QVERIFY(!QApplication::activePopupWidget());
}

void EntryFieldTest::pressBeforeTheMessageBoxDoesNothing() {
    QtHost host;
    Form form(host);
    QTest::keyClicks(form.First, "abc");
    int boxes = 0;
    QTimer answer;
    connect(&answer, &QTimer::timeout, this, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            ++boxes;
            box->accept();
        }
    });
    answer.start(10);
    ClickAt(*form.Other);
    QCOMPARE(boxes, 1);
    // Without a window manager, the test itself must activate the form again.
    form.Window.activateWindow();
    QTRY_VERIFY(form.First->hasFocus());
    QCOMPARE(form.First->selectedText(), "abc");
    QCOMPARE(form.OtherClicks, 0);
    QVERIFY(!form.Other->isDown());
}

void EntryFieldTest::nextPressActsAgain() {
    RecordingHost host;
    Form form(host);
    QTest::keyClicks(form.First, "abc");
    ClickAt(*form.Other);
    form.First->selectAll();
    QTest::keyClicks(form.First, "5");
    ClickAt(*form.Other);
    QCOMPARE(form.OtherClicks, 1);
    QCOMPARE(host.TakeTexts(), std::vector{notANumber});
}

void EntryFieldTest::refusalTouchesNoOtherField() {
    RecordingHost host;
    Form form(host);
    QTest::keyClicks(form.First, "abc");
    ClickAt(*form.Second);
    QCOMPARE(form.Second->text(), "");
    QVERIFY(form.First->hasFocus());
}

void EntryFieldTest::mnemonicOfAButtonActsOnlyAfterCommit() {
    RecordingHost host;
    Form form(host);
    QTest::keyClicks(form.First, "abc");
    QTest::keyClick(form.Window.windowHandle(), Qt::Key_O, Qt::AltModifier);
    QTest::qWait(150); // a button that a mnemonic presses clicks 100 ms later
    QCOMPARE(form.OtherClicks, 0);
    QCOMPARE(host.TakeTexts(), std::vector{notANumber});

    QTest::keyClicks(form.First, "5");
    QTest::keyClick(form.Window.windowHandle(), Qt::Key_O, Qt::AltModifier);
    QTRY_COMPARE(form.OtherClicks, 1);
    QCOMPARE(form.First->text(), "$5");
}

void EntryFieldTest::clickAndFocusSelectAll() {
    RecordingHost host;
    Form form(host);
    QTest::keyClicks(form.First, "123");
    QTest::keyClick(form.First, Qt::Key_Return);
    ClickAt(*form.First);
    QCOMPARE(form.First->selectedText(), "$123");
    form.First->deselect();
    ClickAt(*form.First);
    QCOMPARE(form.First->selectedText(), "$123");
}

void EntryFieldTest::clickIntoTheMiddleSelectsAllWithoutAClickRule() {
    RecordingHost host;
    Form form(host);
    form.Second->setAlignment(Qt::AlignRight);
    EntryEvents events =
        StandardEntryEvents(form.Context, form.State.Screen.ecMonthlyDebt,
                            {FieldFormat::Dollar, FieldFormat::Dollar, AfterEdit::Nothing}, form.Shows);
    events.Click = {};
    form.Second->Bind(form.State.Screen.ecMonthlyDebt, events);
    form.Second->setText("$133,000");
    const QPoint place = form.Second->mapTo(&form.Window, AmongTheDigits(*form.Second));
    QTest::mouseClick(form.Window.windowHandle(), Qt::LeftButton, {}, place);
    QCOMPARE(form.Second->selectedText(), "$133,000");
    // A click into the field that has the focus already places the caret, because it has no rule for clicks.
    QTest::mouseClick(form.Window.windowHandle(), Qt::LeftButton, {}, place, 1000);
    QCOMPARE(form.Second->selectedText(), "");
}

void EntryFieldTest::doubleClickSelectsAll() {
    RecordingHost host;
    Form form(host);
    form.First->setAlignment(Qt::AlignRight);
    form.First->setText("$60,000");
    QTest::mouseDClick(form.Window.windowHandle(), Qt::LeftButton, {},
                       form.First->mapTo(&form.Window, AmongTheDigits(*form.First)));
    QCOMPARE(form.First->selectedText(), "$60,000");
    QTest::keyClicks(form.First, "70000");
    QCOMPARE(form.First->text(), "70000");
}

void EntryFieldTest::tremblingClickSelectsAll() {
    RecordingHost host;
    Form form(host);
    form.First->setAlignment(Qt::AlignRight);
    form.First->setText("$60,000");
    form.First->setFocus();
    const QPoint place = AmongTheDigits(*form.First);
    Drag(*form.First, place, place - QPoint(QGuiApplication::styleHints()->startDragDistance() - 1, 0));
    QCOMPARE(form.First->selectedText(), "$60,000");
}

void EntryFieldTest::draggedSelectionIsKept() {
    RecordingHost host;
    Form form(host);
    QTest::keyClicks(form.First, "123456");
    // From the start of the text across its first digits.
    const int y = form.First->height() / 2;
    const int digits = form.First->fontMetrics().horizontalAdvance("123");
    Drag(*form.First, {2, y}, {2 + digits, y});
    QVERIFY(form.First->hasSelectedText());
    QVERIFY(form.First->selectedText().size() < 6);
}

void EntryFieldTest::textSetByCodeIsAChange() {
    RecordingHost host;
    Form form(host);
    form.First->setText("99");
    QCOMPARE(form.State.Screen.ecIncome.Text, std::string("99"));
}

void EntryFieldTest::anotherWindowInFrontCommitsNothing() {
    RecordingHost host;
    Form form(host);
    QTest::keyClicks(form.First, "abc");
    QWidget another;
    another.show();
    another.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&another));
    QVERIFY(host.Messages.empty());
    QCOMPARE(form.First->text(), "abc");
}

void EntryFieldTest::commitInPlaceSelectsAll() {
    RecordingHost host;
    Form form(host);
    QTest::keyClicks(form.First, "150000");
    QVERIFY(form.First->CommitInPlace());
    QCOMPARE(form.First->selectedText(), "$150,000");
}

QTEST_MAIN(EntryFieldTest)
#include "EntryFieldTest.moc"
