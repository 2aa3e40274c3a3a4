#include "ui/windows/ChartPlace.h"

#include <QAccessibleWidget>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <QVBoxLayout>
#include <utility>

#include "ui/windows/Identify.h"
#include "ui/windows/Labels.h"
#include "ui/windows/SafeFile.h"
#include "ui/windows/UsersFolder.h"

namespace Ledgrove {

namespace {

/// Presents the chart to a screen reader as one picture with a description, without its parts.
class ChartAccessible : public QAccessibleWidget {
public:
    explicit ChartAccessible(QWidget* place)
        : QAccessibleWidget(place, QAccessible::Graphic) {}
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
};

QAccessibleInterface* MakeChartAccessible(const QString&, QObject* object) {
    auto* place = qobject_cast<ChartPlace*>(object);
    return place ? new ChartAccessible(place) : nullptr;
}

} // namespace

ChartPlace::ChartPlace(ChartKind kind, QWidget* parent)
    : QWidget(parent)
    , m_kind(kind) {
    QAccessible::installFactory(MakeChartAccessible); // Qt ignores a factory that is already installed
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ChartPlace::Connect(ChartContext context) {
    m_context.emplace(std::move(context));
    // With the focus, the keyboard can open the chart's menu, and a screen reader reads its description.
    setFocusPolicy(Qt::StrongFocus);
}

QSize ChartPlace::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 84, fontMetrics().height() * 11};
}

QSize ChartPlace::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 42, fontMetrics().height() * 7};
}

void ChartPlace::TakeChart() {
    if (std::exchange(m_isAsked, true))
        return;
    const ChartSource source = m_context->Source();
    if (source.Factory) {
        m_chart = source.Factory->Make(m_kind, this);
        m_chart->setObjectName("Chart");
        layout()->addWidget(m_chart);
        return;
    }
    QLabel* why = TextLabel(source.Fault);
    why->setWordWrap(true);
    layout()->addWidget(why);
}

void ChartPlace::Refresh() {
    if (!m_context || !isVisible())
        return;
    TakeChart();
    if (!m_chart)
        return;
    m_chart->Show(MakeChart(m_kind, m_context->State));
    SetSpokenName(*this, m_chart->accessibleName());
    SetSpokenDescription(*this, m_chart->accessibleDescription());
}

void ChartPlace::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    Refresh();
}

void ChartPlace::contextMenuEvent(QContextMenuEvent* event) {
    if (!m_chart)
        return;
    QMenu menu(this);
    menu.addAction("Save as &PNG…", this, [this] { SavePicture(PictureFormat::Png); });
    menu.addAction("Save as &SVG…", this, [this] { SavePicture(PictureFormat::Svg); });
    menu.addSeparator();
    menu.addAction("&Copy Picture", this, [this] {
        QGuiApplication::clipboard()->setImage(QImage::fromData(m_chart->Picture(PictureFormat::Png)));
    });
    menu.addAction("Copy &Numbers", this,
                   [this] { QGuiApplication::clipboard()->setText(m_chart->accessibleDescription()); });
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    menu.exec(byKey ? mapToGlobal(rect().center()) : event->globalPos());
}

void ChartPlace::SavePicture(PictureFormat format) {
    const bool isPng = format == PictureFormat::Png;
    const QString suffix = isPng ? ".png" : ".svg";
    const QString folder = UsersFolder(QStandardPaths::PicturesLocation);
    const QString name = m_chart->accessibleName().toLower().replace(' ', '-');
    const QString file = m_context->Questions.SaveName(
        *this, {"Save Chart", folder + '/' + name + suffix,
                (isPng ? "PNG pictures (*.png)" : "SVG pictures (*.svg)"), suffix});
    if (file.isEmpty())
        return;
    const QString fault = WriteWholeFile(file, m_chart->Picture(format));
    if (!fault.isEmpty())
        m_context->Outside.ShowMessage({ApplicationTitle, fault.toStdString(), MessageIcon::Exclamation});
}

void ChartPlace::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    if (!hasFocus())
        return;
    QStylePainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.backgroundColor = palette().color(QPalette::Base);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

void ChartPlace::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void ChartPlace::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

} // namespace Ledgrove
