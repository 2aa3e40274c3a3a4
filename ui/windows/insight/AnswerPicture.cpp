#include "ui/windows/insight/AnswerPicture.h"

#include <QAccessible>
#include <QBuffer>
#include <QHelpEvent>
#include <QImage>
#include <QKeyEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <QSvgGenerator>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <utility>

#include "ui/windows/Identify.h"

namespace Ledgrove {

namespace {

constexpr QSize fileSize(960, 640);
constexpr int dotsPerPixel = 2;
constexpr double margin = 12;

QPalette Paper() {
    QPalette paper;
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Window, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    return paper;
}

void PaintOnPaper(QPainter& painter, const ChartFigures& chart, const QFont& font) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font);
    const QRectF page({0, 0}, QSizeF(fileSize));
    painter.fillRect(page, Qt::white);
    PaintPicture(painter, page.adjusted(margin, margin, -margin, -margin), chart, Paper());
}

} // namespace

AnswerPicture::AnswerPicture(CellWords words, QWidget* parent)
    : QWidget(parent)
    , m_words(std::move(words)) {
    setObjectName("AnswerPicture");
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void AnswerPicture::Show(const ChartFigures& chart) {
    if (m_chart == chart)
        return;
    if (chart.Kind != m_chart.Kind)
        m_cell.reset();
    m_chart = chart;
    Describe();
    updateGeometry();
    update();
}

void AnswerPicture::Describe() {
    SetSpokenName(*this, QString::fromStdString(m_chart.Title));
    const QString all = QString::fromStdString(m_chart.Sentence + ' ' + m_chart.Numbers);
    const bool hasCell = m_cell && m_chart.Kind == ChartKind::NetMap;
    const QString cell = hasCell ? m_words(m_chart.Grid, static_cast<std::size_t>(m_cell->Column),
                                           static_cast<std::size_t>(m_cell->Row))
                                 : QString();
    SetSpokenDescription(*this, hasCell ? cell : all);
    emit CellSaid(cell);
}

QByteArray AnswerPicture::AsPng() const {
    QImage image(fileSize * dotsPerPixel, QImage::Format_RGB32);
    image.setDevicePixelRatio(dotsPerPixel);
    QPainter painter(&image);
    PaintOnPaper(painter, m_chart, font());
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "PNG");
    return bytes;
}

QByteArray AnswerPicture::AsSvg() const {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(fileSize);
    generator.setResolution(96);
    generator.setViewBox(QRect({0, 0}, fileSize));
    generator.setTitle(QString::fromStdString(m_chart.Title));
    generator.setDescription(QString::fromStdString(m_chart.Sentence + ' ' + m_chart.Numbers));
    QPainter painter(&generator);
    PaintOnPaper(painter, m_chart, font());
    painter.end();
    return bytes;
}

QSize AnswerPicture::sizeHint() const {
    const int line = fontMetrics().height();
    const bool isMap = m_chart.Kind == ChartKind::NetMap;
    return {fontMetrics().averageCharWidth() * 80, line * (isMap ? 24 : 18)};
}

QSize AnswerPicture::minimumSizeHint() const {
    const double height = LeastPictureHeight(m_chart, QFontMetricsF(font()));
    return {fontMetrics().averageCharWidth() * 36, static_cast<int>(std::ceil(height))};
}

bool AnswerPicture::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto& help = static_cast<QHelpEvent&>(*event);
        const auto cell = CellAt(help.pos());
        const QString words = cell ? m_words(m_chart.Grid, static_cast<std::size_t>(cell->Column),
                                             static_cast<std::size_t>(cell->Row))
                                   : QString::fromStdString(m_chart.Sentence);
        QToolTip::showText(help.globalPos(), "<p>" + words.toHtmlEscaped() + "</p>", this);
        return true;
    }
    return QWidget::event(event);
}

void AnswerPicture::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintPicture(painter, rect(), m_chart, palette(), m_cell);
    if (!hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.backgroundColor = palette().color(QPalette::Window);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

std::optional<MapCell> AnswerPicture::CellAt(const QPointF& point) const {
    if (m_chart.Kind != ChartKind::NetMap)
        return std::nullopt;
    return MapCellAt(rect(), QFontMetricsF(font()), m_chart, point);
}

void AnswerPicture::PointAt(const std::optional<MapCell>& cell) {
    if (cell == m_cell)
        return;
    m_cell = cell;
    Describe();
    update();
}

void AnswerPicture::mouseMoveEvent(QMouseEvent* event) {
    PointAt(CellAt(event->position()));
}

void AnswerPicture::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    if (!hasFocus())
        PointAt(std::nullopt);
}

void AnswerPicture::Choose() {
    if (m_cell)
        emit CellChosen(static_cast<std::size_t>(m_cell->Column), static_cast<std::size_t>(m_cell->Row));
}

void AnswerPicture::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    PointAt(CellAt(event->position()));
    Choose();
}

void AnswerPicture::keyPressEvent(QKeyEvent* event) {
    if (m_chart.Kind != ChartKind::NetMap)
        return QWidget::keyPressEvent(event);
    const int columns = static_cast<int>(m_chart.Grid.Columns.size());
    const int rows = static_cast<int>(m_chart.Grid.Rows.size());
    MapCell cell = m_cell.value_or(MapCell{columns / 2, rows / 2});
    switch (event->key()) {
    case Qt::Key_Left:
        --cell.Column;
        break;
    case Qt::Key_Right:
        ++cell.Column;
        break;
    case Qt::Key_Up:
        ++cell.Row;
        break;
    case Qt::Key_Down:
        --cell.Row;
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Choose();
    default:
        return QWidget::keyPressEvent(event);
    }
    PointAt(MapCell{std::clamp(cell.Column, 0, columns - 1), std::clamp(cell.Row, 0, rows - 1)});
}

void AnswerPicture::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void AnswerPicture::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    PointAt(std::nullopt);
    update();
}

} // namespace Ledgrove
