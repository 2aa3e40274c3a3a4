#include "ui/windows/insight/AnswerText.h"

#include <QLabel>

namespace Ledgrove {

QLabel* MakeAnswerText(const char* control) {
    auto* label = new QLabel;
    label->setObjectName(control);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setTextFormat(Qt::PlainText);
    return label;
}

void MakeLarger(QLabel& label) {
    QFont larger = label.font();
    larger.setPointSizeF(larger.pointSizeF() * 1.25);
    label.setFont(larger);
}

} // namespace Ledgrove
