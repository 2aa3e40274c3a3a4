#include "ui/windows/insight/AnswerText.h"

#include <QLabel>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace Ledgrove {

namespace {

/// Shows that it has the focus; Qt's label shows a text cursor at most.
class ReadableLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override {
        QLabel::paintEvent(event);
        if (!hasFocus())
            return;
        QStylePainter painter(this);
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.backgroundColor = palette().color(QPalette::Window);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
    }

    void focusInEvent(QFocusEvent* event) override {
        QLabel::focusInEvent(event);
        update();
    }

    void focusOutEvent(QFocusEvent* event) override {
        QLabel::focusOutEvent(event);
        update();
    }
};

QLabel* Prepared(QLabel* label, const char* control) {
    label->setObjectName(control);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

QLabel* MakeWrappedText(const char* control) {
    return Prepared(new QLabel, control);
}

QLabel* MakeAnswerText(const char* control) {
    QLabel* label = Prepared(new ReadableLabel, control);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setFocusPolicy(Qt::StrongFocus); // the flags alone give a click the focus
    return label;
}

void MakeLarger(QLabel& label) {
    QFont larger = label.font();
    larger.setPointSizeF(larger.pointSizeF() * 1.25);
    label.setFont(larger);
}

} // namespace Ledgrove
