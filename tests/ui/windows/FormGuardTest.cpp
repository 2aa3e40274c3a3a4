#include "ui/windows/FormGuard.h"

#include <QComboBox>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

#include "WindowTest.h"
#include "ui/windows/EntryField.h"

using namespace Ledgrove;

namespace {

/// A field, a button, a pick list and a slider in one column.
struct Form {
    explicit Form(WheelChanges wheel) {
        auto* layout = new QVBoxLayout(&Window);
        for (QWidget* control : QList<QWidget*>{Figure, Other, List, Slider})
            layout->addWidget(control);
        List->addItems({"one", "two"});
        List->setFocusPolicy(Qt::StrongFocus);
        Slider->setValue(50);
        new FormGuard(Window, wheel);
        Window.show();
        if (!QTest::qWaitForWindowActive(&Window))
            qFatal("the form does not become active");
        Figure->setFocus();
    }

    QWidget Window;
    EntryField* Figure = new EntryField;
    QPushButton* Other = new QPushButton("&Other");
    QComboBox* List = new QComboBox;
    QSlider* Slider = new QSlider(Qt::Horizontal);
};

/// Turns the wheel by one notch, towards the user, over the middle of the widget. Returns whether it takes
/// it.
bool Takes(QWidget& widget) {
    const QPointF middle = widget.rect().center();
    QWheelEvent event(middle, widget.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
    return event.isAccepted();
}

} // namespace

/// Input that acts without moving the focus first.
class FormGuardTest : public QObject {
    Q_OBJECT

private slots:
    void wheelChangesNothing();
    void wheelChangesWhatHasTheFocus();
    void accessKeysTypeNoLetter();
};

void FormGuardTest::wheelChangesNothing() {
    Form form(WheelChanges::Nothing);
    // The surroundings get what a control does not take, so they can scroll.
    for (QWidget* control : QList<QWidget*>{form.List, form.Slider}) {
        QVERIFY(!Takes(*control));
        control->setFocus();
        QVERIFY(!Takes(*control));
    }
    QCOMPARE(form.List->currentIndex(), 0);
    QCOMPARE(form.Slider->value(), 50);
}

void FormGuardTest::wheelChangesWhatHasTheFocus() {
    Form form(WheelChanges::Focused);
    for (QWidget* control : QList<QWidget*>{form.List, form.Slider}) {
        QVERIFY(!Takes(*control));
        control->setFocus();
        QVERIFY(Takes(*control));
    }
    QCOMPARE(form.List->currentIndex(), 1);
    QVERIFY(form.Slider->value() != 50);
}

void FormGuardTest::accessKeysTypeNoLetter() {
    Form form(WheelChanges::Nothing);
    form.Figure->setText("5");
    // No control has the one key, and the other's control is disabled.
    form.Other->setEnabled(false);
    for (const char letter : {'z', 'o'}) {
        QTest::keyClick(form.Figure, letter, Qt::AltModifier);
        QTest::keyClick(form.Figure, letter, Qt::AltModifier | Qt::ShiftModifier);
    }
    QCOMPARE(form.Figure->text(), "5");
    // Keys that type a sign with AltGr on some keyboards still do.
    QTest::keyClick(form.Figure, '6', Qt::GroupSwitchModifier);
    QVERIFY(form.Figure->text().endsWith('6'));
}

QTEST_MAIN(FormGuardTest)
#include "FormGuardTest.moc"
