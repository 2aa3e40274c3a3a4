#include "reports/windows/PageView.h"

#include "reports/windows/PagePainter.h"
#include "ui/windows/Identify.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <cmath>
#include <optional>

namespace Ledgrove {

namespace {

constexpr int deskMargin = 14; ///< around the sheet
constexpr int shadowDepth = 4;

/// The position of the view's middle in its content, from 0 to 1.
double MiddleOf(const QScrollBar& bar) {
    const int content = bar.maximum() + bar.pageStep();
    return content > 0 ? (bar.value() + bar.pageStep() / 2.0) / content : 0;
}

void PutMiddle(QScrollBar& bar, double middle) {
    const int content = bar.maximum() + bar.pageStep();
    bar.setValue(static_cast<int>(std::lround(middle * content - bar.pageStep() / 2.0)));
}

/// The text of a page for screen readers: a line for each line of text or row of a table.
QString TextOf(const PrintPage& page) {
    QStringList lines;
    std::optional<Twips> lastTop;
    for (const PrintItem& item : page) {
        const auto* run = std::get_if<TextRun>(&item);
        const QString text = run ? QString::fromStdString(run->Text).trimmed() : QString();
        if (text.isEmpty())
            continue;
        if (lastTop == run->Y)
            lines.back() += ' ' + text;
        else
            lines += text;
        lastTop = run->Y;
    }
    return lines.join('\n');
}

} // namespace

PageView::PageView(const PrintDocument& document, QWidget* parent)
    : QAbstractScrollArea(parent)
    , m_document(document) {
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(280, 160);
    viewport()->setBackgroundRole(QPalette::Dark);
    viewport()->setAutoFillBackground(true);
    viewport()->setCursor(Qt::OpenHandCursor);
}

void PageView::ForgetPages() {
    m_page = 0;
    m_sheet = {};
    m_pictures = {};
}

void PageView::ShowPage(std::size_t number) {
    m_page = number;
    m_sheet = {};
    SetSpokenName(*this, QString("Report Preview, page %1 of %2").arg(number).arg(m_document.PageCount()));
    SetSpokenDescription(*this, TextOf(m_document.Page(number)));
    UpdateScrollBars();
    verticalScrollBar()->setValue(0);
    viewport()->update();
}

void PageView::SetZoom(int percent) {
    if (percent == m_zoom)
        return;
    const double across = MiddleOf(*horizontalScrollBar());
    const double down = MiddleOf(*verticalScrollBar());
    const bool atTop = verticalScrollBar()->value() == 0;
    m_zoom = percent;
    m_sheet = {};
    UpdateScrollBars();
    PutMiddle(*horizontalScrollBar(), across);
    if (!atTop)
        PutMiddle(*verticalScrollBar(), down);
    viewport()->update();
}

QSize PageView::sizeHint() const {
    return {700, 480};
}

QSize PageView::SheetSize() const {
    if (m_page == 0)
        return {};
    const auto pixels = [this](Twips length, int dotsPerInch) {
        return static_cast<int>(std::lround(length * m_zoom / 100.0 * dotsPerInch / TwipsPerInch));
    };
    return {pixels(m_document.Geometry.PageWidth, logicalDpiX()),
            pixels(m_document.Geometry.PageHeight, logicalDpiY())};
}

QRect PageView::SheetPlace() const {
    QRect place(QPoint(deskMargin, deskMargin), SheetSize());
    const QSize room = viewport()->size();
    const QSize desk = place.size() + 2 * QSize(deskMargin, deskMargin);
    place.translate(std::max(0, (room.width() - desk.width()) / 2),
                    std::max(0, (room.height() - desk.height()) / 2));
    return place.translated(-horizontalScrollBar()->value(), -verticalScrollBar()->value());
}

void PageView::UpdateScrollBars() {
    const QSize desk = SheetSize() + 2 * QSize(deskMargin, deskMargin);
    const QSize room = viewport()->size();
    horizontalScrollBar()->setPageStep(room.width());
    horizontalScrollBar()->setSingleStep(20);
    horizontalScrollBar()->setRange(0, std::max(0, desk.width() - room.width()));
    verticalScrollBar()->setPageStep(room.height());
    verticalScrollBar()->setSingleStep(20);
    verticalScrollBar()->setRange(0, std::max(0, desk.height() - room.height()));
}

const QPixmap& PageView::Sheet() {
    const QSize size = (QSizeF(SheetSize()) * devicePixelRatioF()).toSize();
    if (m_sheet.size() == size)
        return m_sheet;
    m_sheet = QPixmap(size);
    m_sheet.fill(Qt::white);
    {
        QPainter painter(&m_sheet);
        painter.scale(static_cast<double>(size.width()) / m_document.Geometry.PageWidth,
                      static_cast<double>(size.height()) / m_document.Geometry.PageHeight);
        PaintPage(painter, m_document.Page(m_page), m_pictures);
    }
    m_sheet.setDevicePixelRatio(devicePixelRatioF());
    return m_sheet;
}

void PageView::paintEvent(QPaintEvent* /*event*/) {
    if (SheetSize().isEmpty())
        return;
    const QRect place = SheetPlace();
    QPainter painter(viewport());
    painter.fillRect(place.translated(shadowDepth, shadowDepth), QColor(0, 0, 0, 90));
    painter.drawPixmap(place.topLeft(), Sheet());
    painter.setPen(hasFocus() ? palette().color(QPalette::Highlight) : QColor(Qt::darkGray));
    painter.drawRect(place.adjusted(-1, -1, 0, 0));
}

void PageView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    UpdateScrollBars();
}

void PageView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        return QAbstractScrollArea::keyPressEvent(event);
    default:
        // The window handles paging and zooming, wherever its focus is.
        event->ignore();
    }
}

void PageView::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void PageView::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

void PageView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    m_dragged = event->pos();
    viewport()->setCursor(Qt::ClosedHandCursor);
}

void PageView::mouseMoveEvent(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton))
        return;
    const QPoint moved = event->pos() - m_dragged;
    m_dragged = event->pos();
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - moved.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - moved.y());
}

void PageView::mouseReleaseEvent(QMouseEvent* /*event*/) {
    viewport()->setCursor(Qt::OpenHandCursor);
}

void PageView::mouseDoubleClickEvent(QMouseEvent* event) {
    m_dragged = event->pos();
    if (event->button() == Qt::LeftButton)
        emit ZoomStepped(1);
    else if (event->button() == Qt::RightButton)
        emit ZoomStepped(-1);
}

} // namespace Ledgrove
