#pragma once

#include <QPushButton>

#include "ui/InsightQuestions.h"

namespace Ledgrove {

/// A quiet link beside the tabs with the question that belongs to the shown tab.
class QuestionLink : public QPushButton {
    Q_OBJECT

public:
    explicit QuestionLink(QWidget* parent = nullptr);

    void ShowTab(int tab);

    QSize sizeHint() const override;

signals:
    void Asked(InsightQuestion question);

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void TakeLinkColour();
    void MeasureQuestions();

    const QuestionRow* m_row = nullptr; ///< nullptr on a tab without a question
    int m_longest = 0;                  ///< pixels of the longest question in the link's font
};

} // namespace Ledgrove
