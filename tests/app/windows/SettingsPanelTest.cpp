#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>

#include "SettingEntry.h"
#include "ui/windows/insight/AnswerPicture.h"

using namespace Ledgrove;

namespace {

/// The Insight window in front, with a field of the settings that has the focus.
struct Panel : InsightDesk {
    Panel(InsightQuestion question, const char* key) {
        Show(question);
        Window->activateWindow();
        if (!QTest::qWaitForWindowActive(Window.get()))
            qFatal("the window does not become active");
        Find<QLineEdit>(key).setFocus(Qt::TabFocusReason);
    }

    QLineEdit& Field() { return *qobject_cast<QLineEdit*>(Window->focusWidget()); }
    void Type(const QString& text) { QTest::keyClicks(Window->focusWidget(), text); }
    void PressAlt(Qt::Key key) { QTest::keyClick(Window->windowHandle(), key, Qt::AltModifier); }
    void ClickAt(QWidget& control) { QTest::mouseClick(&control, Qt::LeftButton); }
    QPushButton& Keep() { return Find<QPushButton>("bKeep"); }
    QPushButton& Back() { return Find<QPushButton>("bGoBack"); }
    bool IsAsked(InsightQuestion question) {
        const auto row = static_cast<std::size_t>(Find<QListWidget>("Questions").currentRow());
        return InsightQuestions.at(row).Id == question;
    }
};

/// Turns the wheel by one notch, towards the user, over the middle of the widget. Returns whether it takes
/// it.
bool TakesWheel(QWidget& widget) {
    const QPointF middle = widget.rect().center();
    QWheelEvent event(middle, widget.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
    return event.isAccepted();
}

/// The places of the panel's controls and of the picture or table below.
QList<QRect> Places(InsightDesk& desk) {
    QList<QRect> places;
    QList<QWidget*> controls = desk.Find<QWidget>("SettingsPanel").findChildren<QWidget*>();
    controls += &desk.Find<QWidget>("AnswerPicture");
    controls += &desk.Find<QWidget>("AnswerTable");
    for (const QWidget* control : controls)
        if (control->isVisible())
            places += QRect(control->mapTo(desk.Window.get(), QPoint()), control->size());
    return places;
}

constexpr const char* refusedShare = "\"101\" is not a percentage from 0 to 100; 100.00% stays in force.";

} // namespace

/// Entering the settings of the Insight window by mouse and keys.
class SettingsPanelTest : public QObject {
    Q_OBJECT

private slots:
    void theKeyOfKeepTakesWhatIsTyped();
    void theKeyOfKeepReportsARefusedText();
    void theKeyOfBackDropsWhatIsTyped();
    void aClickSelectsTheWholeText();
    void aRefusedTextKeepsTheFocus();
    void backToKeptTakesARefusedTextAway();
    void aFilingStatusReplacesARefusedText();
    void anotherWindowsQuestionWaitsForARefusedText();
    void typingOutlivesAnEntryInTheMainWindow();
    void theWheelChangesOnlyWhatHasTheFocus();
    void nothingMovesWhileOneTypes();
};

void SettingsPanelTest::theKeyOfKeepTakesWhatIsTyped() {
    Panel panel(InsightQuestion::TaxSaving, "DEDUCTION_OTHER");
    panel.Type("19000");
    panel.PressAlt(Qt::Key_K);
    QTRY_COMPARE(panel.Open.Lines("DEDUCTION_OTHER"), QByteArrayList{"DEDUCTION_OTHER=19000"});
    panel.PressAlt(Qt::Key_K);
    QCOMPARE(panel.Find<QLineEdit>("DEDUCTION_OTHER").text(), "$19,000");
    QVERIFY(!panel.Keep().isEnabled());
}

void SettingsPanelTest::theKeyOfKeepReportsARefusedText() {
    Panel panel(InsightQuestion::Sale, "EXIT_PREMIUM_KEPT");
    const QByteArray before = panel.Open.Settings();
    panel.Type("101");
    panel.PressAlt(Qt::Key_K);
    QCOMPARE(Complaint(panel), refusedShare);
    panel.PressAlt(Qt::Key_K);
    QTest::qWait(150); // a button that an access key presses clicks 100 ms later
    QCOMPARE(panel.Field().objectName(), "EXIT_PREMIUM_KEPT");
    QCOMPARE(panel.Field().text(), "101");
    QCOMPARE(panel.Open.Settings(), before);
}

void SettingsPanelTest::theKeyOfBackDropsWhatIsTyped() {
    Panel panel(InsightQuestion::TaxSaving, "DEDUCTION_OTHER");
    QVERIFY(!panel.Back().isEnabled());
    panel.Type("19000");
    QVERIFY(panel.Back().isEnabled());
    panel.PressAlt(Qt::Key_B);
    QTRY_COMPARE(panel.Find<QLineEdit>("DEDUCTION_OTHER").text(), "$0");
    QVERIFY(!panel.Back().isEnabled());
    QVERIFY(!panel.Keep().isEnabled());
    QCOMPARE(panel.Settings.InForce().OtherDeductions, 0.0);
}

void SettingsPanelTest::aClickSelectsTheWholeText() {
    Panel panel(InsightQuestion::Sale, "EXIT_SELLING_COST");
    auto& field = panel.Find<QLineEdit>("EXIT_APPRECIATION");
    panel.ClickAt(field);
    QCOMPARE(field.selectedText(), "0.00%");
    panel.Type("2.5");
    QCOMPARE(field.text(), "2.5");
    // As in the main window, a click into a text that is being typed selects it, and so does a double click.
    panel.ClickAt(field);
    QCOMPARE(field.selectedText(), "2.5");
    field.deselect();
    QTest::mouseDClick(&field, Qt::LeftButton);
    QCOMPARE(field.selectedText(), "2.5");
    QTest::keyClick(&field, Qt::Key_Return);
    QCOMPARE(field.text(), "2.50%");
    QCOMPARE(field.selectedText(), "2.50%");
}

void SettingsPanelTest::aRefusedTextKeepsTheFocus() {
    Panel panel(InsightQuestion::Sale, "EXIT_PREMIUM_KEPT");
    auto& list = panel.Find<QListWidget>("Questions");
    panel.Type("101");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(0)).center());
    QVERIFY(panel.IsAsked(InsightQuestion::Sale));
    QCOMPARE(panel.Field().text(), "101");
    QCOMPARE(Complaint(panel), refusedShare);
    QTest::keyClick(&panel.Field(), Qt::Key_Tab);
    QCOMPARE(panel.Field().objectName(), "EXIT_PREMIUM_KEPT");
    // Closing the window drops nothing.
    QTest::keyClick(&panel.Field(), Qt::Key_Escape);
    QVERIFY(!panel.Window->isVisible());
    panel.Window->show();
    QCOMPARE(panel.Find<QLineEdit>("EXIT_PREMIUM_KEPT").text(), "101");
    QCOMPARE(Complaint(panel), refusedShare);
}

void SettingsPanelTest::backToKeptTakesARefusedTextAway() {
    Panel panel(InsightQuestion::Sale, "EXIT_PREMIUM_KEPT");
    panel.Type("101");
    QTest::keyClick(&panel.Field(), Qt::Key_Return);
    QVERIFY(!panel.Keep().isEnabled());
    QVERIFY(panel.Back().isEnabled());
    panel.ClickAt(panel.Back());
    QCOMPARE(panel.Find<QLineEdit>("EXIT_PREMIUM_KEPT").text(), "100.00%");
    QCOMPARE(Complaint(panel), "");
    QVERIFY(!panel.Back().isEnabled());
    // Corrected, it can be kept.
    panel.ClickAt(panel.Find<QLineEdit>("EXIT_PREMIUM_KEPT"));
    panel.Type("101");
    QTest::keyClick(&panel.Field(), Qt::Key_Return);
    panel.Type("50");
    QVERIFY(panel.Keep().isEnabled());
    panel.ClickAt(panel.Keep());
    QCOMPARE(panel.Open.Lines("EXIT_PREMIUM_KEPT"), QByteArrayList{"EXIT_PREMIUM_KEPT=50.00"});
}

void SettingsPanelTest::aFilingStatusReplacesARefusedText() {
    Panel panel(InsightQuestion::TaxSaving, "DEDUCTION_STANDARD");
    panel.Type("x");
    QTest::keyClick(&panel.Field(), Qt::Key_Return);
    QVERIFY(!Complaint(panel).isEmpty());
    panel.ClickAt(*panel.Window->findChild<QPushButton*>("Choice"));
    QCOMPARE(panel.Find<QLineEdit>("DEDUCTION_STANDARD").text(), "$16,100");
    QCOMPARE(Complaint(panel), "");
}

void SettingsPanelTest::anotherWindowsQuestionWaitsForARefusedText() {
    Panel panel(InsightQuestion::Sale, "EXIT_PREMIUM_KEPT");
    panel.Type("101");
    panel.Window->Ask(InsightQuestion::HowFar);
    QVERIFY(panel.IsAsked(InsightQuestion::Sale));
    QCOMPARE(panel.Field().text(), "101");
    QCOMPARE(Complaint(panel), refusedShare);
    panel.Type("20");
    panel.Window->Ask(InsightQuestion::HowFar);
    QVERIFY(panel.IsAsked(InsightQuestion::HowFar));
    QCOMPARE(panel.Settings.InForce().PremiumKept, 0.2);
}

void SettingsPanelTest::typingOutlivesAnEntryInTheMainWindow() {
    Panel panel(InsightQuestion::Sale, "EXIT_PREMIUM_KEPT");
    panel.Type("5");
    panel.Open.Window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(panel.Open.Window.get()));
    panel.Open.Enter("ecGMHUtil", "1600");
    QCOMPARE(panel.Find<QLineEdit>("EXIT_PREMIUM_KEPT").text(), "5");
}

void SettingsPanelTest::theWheelChangesOnlyWhatHasTheFocus() {
    Panel energy(InsightQuestion::EnergyPrices, "GROWTH_UTILITIES");
    auto& slider = energy.Find<QSlider>("GROWTH_UTILITIESSlider");
    slider.setValue(50);
    QVERIFY(!TakesWheel(slider));
    QCOMPARE(slider.value(), 50);
    slider.setFocus();
    QVERIFY(TakesWheel(slider));
    QVERIFY(slider.value() != 50);
    Panel years(InsightQuestion::YearByYear, "GROWTH_UTILITIES");
    auto& list = years.Find<QComboBox>("Years");
    // The wheel would give it the focus before it turns.
    QVERIFY(list.focusPolicy() != Qt::WheelFocus);
    QVERIFY(!TakesWheel(list));
    QCOMPARE(list.currentIndex(), 0);
    list.setFocus();
    QVERIFY(TakesWheel(list));
    QCOMPARE(list.currentIndex(), 1);
}

void SettingsPanelTest::nothingMovesWhileOneTypes() {
    const std::pair<InsightQuestion, const char*> fields[] = {
        {InsightQuestion::YearByYear, "GROWTH_UTILITIES"},
        {InsightQuestion::EnergyPrices, "GROWTH_UTILITIES"},
        {InsightQuestion::TaxSaving, "DEDUCTION_STANDARD"},
        {InsightQuestion::Sale, "EXIT_APPRECIATION"}};
    for (const auto& [question, key] : fields) {
        Panel panel(question, key);
        panel.Find<QLabel>("Sentence").setFixedHeight(100); // its own lines may change
        const auto settle = [] {
            for (int round = 0; round < 5; ++round)
                QCoreApplication::processEvents();
        };
        settle();
        const QList<QRect> before = Places(panel);
        for (const char* text : {"3", "3x"}) {
            EnterSetting(panel, key, text);
            settle();
            // What appears has had its place before.
            for (const QRect& place : before)
                QVERIFY2(Places(panel).contains(place), key);
        }
    }
}

QTEST_MAIN(SettingsPanelTest)
#include "SettingsPanelTest.moc"
