// Compares the frames of the program's style with those of Qt's.

#include "ui/windows/FormStyle.h"

#include <QDir>
#include <QGroupBox>
#include <QLineEdit>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTest>
#include <algorithm>
#include <cstdlib>
#include <initializer_list>
#include <memory>

using Ledgrove::FormStyle;

namespace {

constexpr QSize formSize(300, 400);
constexpr int roundedCorners = 4 * 5; // pixels of a group's frame, which FormStyle does not round

/// The largest difference between the two pictures at one pixel, from 0 to 255.
int Difference(const QImage& one, const QImage& other, int x, int y) {
    const QColor a = one.pixelColor(x, y);
    const QColor b = other.pixelColor(x, y);
    return std::max(
        {std::abs(a.red() - b.red()), std::abs(a.green() - b.green()), std::abs(a.blue() - b.blue())});
}

int PixelsThatDifferBy(int more, const QImage& one, const QImage& other) {
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            count += Difference(one, other, x, y) > more ? 1 : 0;
    }
    return count;
}

QImage Painted(QWidget& widget, QStyle& style) {
    widget.setStyle(&style);
    widget.resize(formSize);
    widget.show();
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// The same widget in a Qt style, and in the program's style on top of that style.
struct Pictures {
    QImage Plain;
    QImage Form;
};

template <class Widget>
Pictures PaintedBoth(Widget& widget, const char* name) {
    const std::unique_ptr<QStyle> plain(QStyleFactory::create(name));
    FormStyle form(QStyleFactory::create(name));
    Pictures pictures{Painted(widget, *plain), Painted(widget, form)};
    widget.setStyle(nullptr);
    return pictures;
}

qsizetype Threads() {
    return QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
}

QPalette Dark() {
    QPalette palette(QColor(60, 60, 60), QColor(45, 45, 45));
    palette.setColor(QPalette::WindowText, Qt::white);
    return palette;
}

} // namespace

class FormStyleTest : public QObject {
    Q_OBJECT

private slots:
    void FramesStartNoThread();
    void ATabsFrameIsTheToolkits();
    void AGroupsFrameIsNearlyTheToolkits();
    void AFieldsFrameIsTheToolkits();
    void FieldsOfAnotherColourAreRedrawn();
    void OtherStylesAreNotChanged();
    void ANarrowMenuBarHasItsArrow();
};

// This must be the first test: the others paint Qt's own frames, and the threads for that stay.
void FormStyleTest::FramesStartNoThread() {
    FormStyle style(QStyleFactory::create("fusion"));
    const qsizetype before = Threads();
    QGroupBox group("Buyer");
    QTabWidget tabs;
    tabs.addTab(new QWidget, "Welcome");
    Painted(group, style);
    Painted(tabs, style);
    QCOMPARE(Threads(), before);
}

void FormStyleTest::ATabsFrameIsTheToolkits() {
    for (const QPalette& palette : {QPalette(QColor(239, 239, 239)), Dark()}) {
        QTabWidget tabs;
        tabs.setPalette(palette);
        tabs.addTab(new QWidget, "Welcome");
        tabs.addTab(new QWidget, "Cash Flow");
        const Pictures pictures = PaintedBoth(tabs, "fusion");
        QCOMPARE(PixelsThatDifferBy(2, pictures.Plain, pictures.Form), 0);
    }
}

void FormStyleTest::AGroupsFrameIsNearlyTheToolkits() {
    for (const QPalette& palette : {QPalette(QColor(239, 239, 239)), Dark()}) {
        QGroupBox group("Homes");
        group.setPalette(palette);
        const Pictures pictures = PaintedBoth(group, "fusion");
        QVERIFY(PixelsThatDifferBy(8, pictures.Plain, pictures.Form) <= roundedCorners);
    }
}

void FormStyleTest::AFieldsFrameIsTheToolkits() {
    for (const bool enabled : {true, false}) {
        QLineEdit field("250,000");
        field.setEnabled(enabled);
        const Pictures pictures = PaintedBoth(field, "fusion");
        QCOMPARE(PixelsThatDifferBy(2, pictures.Plain, pictures.Form), 0);
    }
}

void FormStyleTest::FieldsOfAnotherColourAreRedrawn() {
    FormStyle style(QStyleFactory::create("fusion"));
    QLineEdit field;
    const QImage light = Painted(field, style);
    field.setPalette(Dark());
    const QImage dark = Painted(field, style);
    QVERIFY(Difference(light, dark, 0, formSize.height() / 2) > 20);
    field.setStyle(nullptr);
}

void FormStyleTest::OtherStylesAreNotChanged() {
    QGroupBox group("Homes");
    QTabWidget tabs;
    tabs.addTab(new QWidget, "Welcome");
    QLineEdit field;
    for (QWidget* widget : std::initializer_list<QWidget*>{&group, &tabs, &field}) {
        const Pictures pictures = PaintedBoth(*widget, "windows");
        QCOMPARE(PixelsThatDifferBy(0, pictures.Plain, pictures.Form), 0);
    }
}

void FormStyleTest::ANarrowMenuBarHasItsArrow() {
    const FormStyle style(QStyleFactory::create("fusion"));
    const QIcon icon = style.standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton, nullptr, nullptr);
    const QImage arrow = icon.pixmap(16, 16).toImage();
    int inked = 0;
    for (int y = 0; y < arrow.height(); ++y) {
        for (int x = 0; x < arrow.width(); ++x)
            inked += arrow.pixelColor(x, y).alpha() > 0 ? 1 : 0;
    }
    QVERIFY(inked > 8);
    QVERIFY(inked < arrow.width() * arrow.height() / 2);
}

QTEST_MAIN(FormStyleTest)
#include "FormStyleTest.moc"
