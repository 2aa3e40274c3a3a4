#include "ui/windows/insight/AnswerPage.h"

#include <QScrollBar>
#include <QVBoxLayout>

namespace Ledgrove {

namespace {

/// A scroll area asks for the height at a width and takes the answer for the least one.
class LeastHigh : public QWidget {
public:
    int heightForWidth(int width) const override { return layout()->minimumHeightForWidth(width); }
};

} // namespace

AnswerPage::AnswerPage(QWidget* parent)
    : ScrolledAnswer(parent) {
    auto* content = new LeastHigh;
    m_column = new QVBoxLayout(content);
    m_column->setContentsMargins(8, 0, 0, 0);
    setWidget(content);
}

void AnswerPage::ShowTop() {
    verticalScrollBar()->setValue(0);
}

} // namespace Ledgrove
