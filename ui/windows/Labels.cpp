#include "ui/windows/Labels.h"

#include <QPainter>
#include <QStyle>
#include <utility>

namespace Ledgrove {

namespace {

constexpr const char* widestUsualFigure = "-$888,888,888";

} // namespace

ResultLabel::ResultLabel(const char* control, const QLabel& caption, QString column, QWidget* parent)
    : QLabel(parent)
    , m_caption(caption)
    , m_column(std::move(column)) {
    setObjectName(control);
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setTextInteractionFlags(Qt::NoTextInteraction);
    KeepPlaceWhileHidden(*this);
    Describe();
}

void ResultLabel::Describe() {
    const QString description = m_caption.text().simplified() + ", " + m_column;
    if (accessibleDescription() != description)
        setAccessibleDescription(description);
}

QSize ResultLabel::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    return {metrics.horizontalAdvance(widestUsualFigure) + 2 * margin(), metrics.height()};
}

void ResultLabel::paintEvent(QPaintEvent* event) {
    const QRect area = contentsRect();
    if (fontMetrics().horizontalAdvance(text()) <= area.width())
        return QLabel::paintEvent(event);
    QPainter painter(this);
    style()->drawItemText(&painter, area, static_cast<int>(alignment()), palette(), isEnabled(),
                          fontMetrics().elidedText(text(), Qt::ElideRight, area.width()), foregroundRole());
}

QLabel* TextLabel(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel* CaptionLabel(const char* control, QWidget* parent) {
    QLabel* label = TextLabel({}, parent);
    label->setObjectName(control);
    KeepPlaceWhileHidden(*label);
    return label;
}

void MakeBold(QWidget& widget) {
    QFont font = widget.font();
    font.setBold(true);
    widget.setFont(font);
}

void KeepPlaceWhileHidden(QWidget& widget) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

} // namespace Ledgrove
