#include "ui/windows/FormStyle.h"

#include <QApplication>
#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPixmapCache>
#include <QStyleOption>
#include <algorithm>

namespace Ledgrove {

namespace {

// In pixels.
constexpr int sampleSize = 16;
constexpr int gapBelowTitle = 4;

// What the toolkit's picture of a group's frame lays over the window.
constexpr QColor groupEdge(113, 113, 113, 49);
constexpr QColor groupInside(0, 0, 0, 3);

QColor Over(const QColor& window, const QColor& veil) {
    const auto mixed = [&veil](int below, int above) {
        return (below * (255 - veil.alpha()) + above * veil.alpha()) / 255;
    };
    return {mixed(window.red(), veil.red()), mixed(window.green(), veil.green()),
            mixed(window.blue(), veil.blue())};
}

/// Full rectangles, which are neither blended nor shared among threads as a drawn outline is.
void FillEdge(QPainter& painter, const QRect& frame, const QColor& colour) {
    painter.fillRect(frame.left(), frame.top(), frame.width(), 1, colour);
    painter.fillRect(frame.left(), frame.bottom(), frame.width(), 1, colour);
    painter.fillRect(frame.left(), frame.top(), 1, frame.height(), colour);
    painter.fillRect(frame.right(), frame.top(), 1, frame.height(), colour);
}

QRect Inner(const QRect& frame) {
    return frame.adjusted(1, 1, -1, -1);
}

class ArrowIcon : public QIconEngine {
public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        QStyleOption option;
        option.rect = rect;
        option.palette = QApplication::palette();
        option.state = mode == QIcon::Disabled ? QStyle::State_None : QStyle::State_Enabled;
        QApplication::style()->drawPrimitive(QStyle::PE_IndicatorArrowRight, &option, painter);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap drawn(size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        paint(&painter, drawn.rect(), mode, state);
        return drawn;
    }
    QIconEngine* clone() const override { return new ArrowIcon(*this); }
};

} // namespace

FormStyle::FormStyle(QStyle* base)
    : QProxyStyle(base) {}

void FormStyle::Use() {
    QFont font = QApplication::font();
    font.setStyleStrategy(QFont::PreferNoShaping);
    QApplication::setFont(font);
    QApplication::setStyle(new FormStyle(QApplication::style()));
}

bool FormStyle::IsToolkitsOwn() const {
    return baseStyle()->name() == "fusion";
}

void FormStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    if (!IsToolkitsOwn())
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    switch (element) {
    case PE_FrameTabWidget:
        return DrawTabFrame(*option, *painter, widget);
    case PE_FrameLineEdit:
        return DrawFieldFrame(*option, *painter, widget);
    case PE_FrameGroupBox:
        return DrawGroupFrame(*option, *painter, widget);
    default:
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

/// The colours, which go on in the tab above, are taken from a small frame of the base style.
void FormStyle::DrawTabFrame(const QStyleOption& option, QPainter& painter, const QWidget* widget) const {
    QImage sample(sampleSize, sampleSize, QImage::Format_RGB32);
    sample.fill(option.palette.color(QPalette::Window));
    QStyleOptionTabWidgetFrame small;
    if (const auto* frame = qstyleoption_cast<const QStyleOptionTabWidgetFrame*>(&option))
        small = *frame;
    small.rect = sample.rect();
    QPainter samplePainter(&sample);
    QProxyStyle::drawPrimitive(PE_FrameTabWidget, &small, &samplePainter, widget);
    samplePainter.end();
    const int middle = sampleSize / 2;
    const QRect frame = option.rect.adjusted(0, 0, 0, -1);
    painter.fillRect(frame, sample.pixelColor(middle, middle));
    FillEdge(painter, frame, sample.pixelColor(0, middle));
    FillEdge(painter, Inner(frame), sample.pixelColor(1, middle));
    const QRect shadow(option.rect.bottomLeft(), option.rect.bottomRight());
    painter.fillRect(shadow, sample.pixelColor(middle, sampleSize - 1));
}

void FormStyle::DrawFieldFrame(const QStyleOption& option, QPainter& painter, const QWidget* widget) const {
    const double scale = painter.device()->devicePixelRatio();
    const QString key = QString("FormStyle field %1x%2 %3 %4 %5")
                            .arg(option.rect.width())
                            .arg(option.rect.height())
                            .arg(scale)
                            .arg(option.state.toInt())
                            .arg(option.palette.cacheKey());
    QPixmap kept;
    if (!QPixmapCache::find(key, &kept)) {
        kept = QPixmap(option.rect.size() * scale);
        kept.setDevicePixelRatio(scale);
        kept.fill(Qt::transparent);
        QStyleOptionFrame moved;
        moved.QStyleOption::operator=(option);
        moved.rect.moveTo(0, 0);
        QPainter keptPainter(&kept);
        QProxyStyle::drawPrimitive(PE_FrameLineEdit, &moved, &keptPainter, widget);
        QPixmapCache::insert(key, kept);
    }
    painter.drawPixmap(option.rect.topLeft(), kept);
}

void FormStyle::DrawGroupFrame(const QStyleOption& option, QPainter& painter, const QWidget* widget) const {
    const int title =
        std::max(proxy()->pixelMetric(PM_IndicatorHeight, &option, widget), option.fontMetrics.height());
    const QColor window = option.palette.color(QPalette::Window);
    const QRect frame = option.rect.adjusted(1, title + gapBelowTitle, 0, 0);
    painter.fillRect(frame, Over(window, groupInside));
    FillEdge(painter, frame, Over(window, groupEdge));
}

QIcon FormStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const {
    if (icon == SP_ToolBarHorizontalExtensionButton && IsToolkitsOwn())
        return QIcon(new ArrowIcon);
    return QProxyStyle::standardIcon(icon, option, widget);
}

} // namespace Ledgrove
