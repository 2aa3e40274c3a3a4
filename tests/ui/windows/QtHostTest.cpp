#include "ui/windows/QtHost.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "WindowTest.h"

using namespace Ledgrove;

namespace {

struct Seen {
    QString Title, Text;
    QMessageBox::Icon Icon = QMessageBox::NoIcon;
    Qt::TextFormat Format = Qt::AutoText;
    QMessageBox::StandardButtons Buttons;
};

/// Answers the next message box with `button` and records what it showed.
MessageAnswer Answer(const Message& message, QMessageBox::StandardButton button, Seen& seen) {
    QTimer::singleShot(0, [&seen, button] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        seen = {box->windowTitle(), box->text(), box->icon(), box->textFormat(), box->standardButtons()};
        box->button(button)->click();
    });
    return QtHost().ShowMessage(message);
}

} // namespace

class QtHostTest : public QObject {
    Q_OBJECT

private slots:
    void messageBoxShowsTitleTextAndOk();
    void iconMatchesTheRequest_data();
    void iconMatchesTheRequest();
    void carriageReturnsAreLineBreaks();
    void markupIsShownAsPlainText();
    void yesNoGivesTheAnswer();
    void theWindowBelowAClosedMessageBoxIsInFront();
    void pendingEventsRun();
    void refreshingHostShowsTheRecordFirst();
};

void QtHostTest::messageBoxShowsTitleTextAndOk() {
    Seen seen;
    QCOMPARE(Answer({"Title", "Text"}, QMessageBox::Ok, seen), MessageAnswer::Ok);
    QCOMPARE(seen.Title, "Title");
    QCOMPARE(seen.Text, "Text");
    QCOMPARE(seen.Buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
}

void QtHostTest::iconMatchesTheRequest_data() {
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("shown");
    QTest::addRow("none") << int(MessageIcon::None) << int(QMessageBox::NoIcon);
    QTest::addRow("information") << int(MessageIcon::Information) << int(QMessageBox::Information);
    QTest::addRow("exclamation") << int(MessageIcon::Exclamation) << int(QMessageBox::Warning);
    QTest::addRow("question") << int(MessageIcon::Question) << int(QMessageBox::Question);
}

void QtHostTest::iconMatchesTheRequest() {
    QFETCH(int, asked);
    QFETCH(int, shown);
    Seen seen;
    Answer({"T", "t", MessageIcon(asked)}, QMessageBox::Ok, seen);
    QCOMPARE(int(seen.Icon), shown);
}

void QtHostTest::carriageReturnsAreLineBreaks() {
    Seen seen;
    Answer({"T", "Attention!\r\rOne\r\nTwo\r"}, QMessageBox::Ok, seen);
    QCOMPARE(seen.Text, "Attention!\n\nOne\nTwo\n");
}

void QtHostTest::markupIsShownAsPlainText() {
    Seen seen;
    Answer({"T", "<b>5</b> & 6"}, QMessageBox::Ok, seen);
    QCOMPARE(seen.Format, Qt::PlainText);
    QCOMPARE(seen.Text, "<b>5</b> & 6");
}

void QtHostTest::yesNoGivesTheAnswer() {
    Seen seen;
    const Message question{"T", "Sure?", MessageIcon::Question, MessageButtons::YesNo};
    QCOMPARE(Answer(question, QMessageBox::Yes, seen), MessageAnswer::Yes);
    QCOMPARE(seen.Buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(Answer(question, QMessageBox::No, seen), MessageAnswer::No);
}

void QtHostTest::theWindowBelowAClosedMessageBoxIsInFront() {
    QWidget window;
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    Seen seen;
    Answer({"Title", "Text"}, QMessageBox::Ok, seen);
    // Without a window manager, no window is active now. With one, that takes a moment.
    QVERIFY(!QApplication::activeWindow());
    QCOMPARE(FrontWindow(), &window);
}

void QtHostTest::pendingEventsRun() {
    bool queuedCallRan = false;
    QMetaObject::invokeMethod(
        this, [&] { queuedCallRan = true; }, Qt::QueuedConnection);
    QtHost().RunPendingEvents();
    QVERIFY(queuedCallRan);
}

void QtHostTest::refreshingHostShowsTheRecordFirst() {
    struct OrderHost : Host {
        explicit OrderHost(QString& order)
            : Order(order) {}
        MessageAnswer ShowMessage(const Message&) override {
            Order += "m";
            return MessageAnswer::Ok;
        }
        void RunPendingEvents() override { Order += "p"; }
        QString& Order;
    };
    QString order;
    OrderHost outside(order);
    RefreshingHost host(outside, [&] { order += "r"; });
    host.ShowMessage({});
    host.RunPendingEvents();
    QCOMPARE(order, "rmp"); // the yield only yields
}

QTEST_MAIN(QtHostTest)
#include "QtHostTest.moc"
