#include "ui/windows/Labels.h"

#include <QAccessibleWidget>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>
#include <utility>

#include "ui/ResultSheets.h"
#include "ui/windows/Identify.h"

namespace Ledgrove {

namespace {

constexpr const char* widestUsualFigure = "-$888,888,888";

/// Qt keeps every child in the tree that screen readers walk, so a decoration is there but invisible.
class DecorationAccessible : public QAccessibleWidget {
public:
    explicit DecorationAccessible(QWidget* label)
        : QAccessibleWidget(label, QAccessible::Graphic) {}
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.invisible = true;
        return state;
    }
};

QAccessibleInterface* MakeDecorationAccessible(const QString&, QObject* object) {
    auto* label = qobject_cast<DecorationLabel*>(object);
    return label ? new DecorationAccessible(label) : nullptr;
}

} // namespace

ElidedLabel::ElidedLabel(QWidget* parent)
    : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 8, QLabel::minimumSizeHint().height()};
}

bool ElidedLabel::IsTooLong() const {
    return fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty() || !IsTooLong())
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent* event) {
    if (!IsTooLong())
        return QLabel::paintEvent(event);
    const QRect area = contentsRect();
    QPainter painter(this);
    style()->drawItemText(&painter, area, static_cast<int>(alignment()), palette(), isEnabled(),
                          fontMetrics().elidedText(text(), Qt::ElideRight, area.width()), foregroundRole());
}

DecorationLabel::DecorationLabel(QWidget* parent)
    : QLabel(parent) {
    QAccessible::installFactory(MakeDecorationAccessible); // Qt ignores a factory that is already installed
}

ResultLabel::ResultLabel(const QString& control, const QLabel& caption, QString column, QWidget* parent)
    : ElidedLabel(parent)
    , m_caption(caption)
    , m_column(std::move(column)) {
    setObjectName(control);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setTextInteractionFlags(Qt::NoTextInteraction);
    KeepPlaceWhileHidden(*this);
    Describe();
}

void ResultLabel::ContinueCaption(const QLabel& stem) {
    m_stem = &stem;
    Describe();
}

void ResultLabel::Explain(const QString& meaning) {
    m_meaning = meaning;
    setToolTip(meaning);
    Describe();
}

void ResultLabel::Describe() {
    const std::string stem = m_stem ? m_stem->text().toStdString() : std::string();
    const QString caption = QString::fromStdString(WholeCaption(stem, m_caption.text().toStdString()));
    const QString description = caption.simplified() + ", " + m_column;
    SetSpokenDescription(*this, m_meaning.isEmpty() ? description : description + ". " + m_meaning);
}

QSize ResultLabel::sizeHint() const {
    const int width = fontMetrics().horizontalAdvance(text()) + 2 * margin();
    return minimumSizeHint().expandedTo({width, 0});
}

QSize ResultLabel::minimumSizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    return {metrics.horizontalAdvance(widestUsualFigure) + 2 * margin(), metrics.height()};
}

QLabel* TextLabel(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel* CaptionLabel(const QString& control, QWidget* parent) {
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
