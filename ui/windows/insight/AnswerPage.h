#pragma once

#include "ui/windows/insight/ScrolledAnswer.h"

class QVBoxLayout;

namespace Ledgrove {

/// A column of controls that has the height of the view. It scrolls only if not even their least heights fit.
class AnswerPage : public ScrolledAnswer {
    Q_OBJECT

public:
    explicit AnswerPage(QWidget* parent = nullptr);

    QVBoxLayout& Column() { return *m_column; }

    void ShowTop();

private:
    QVBoxLayout* m_column;
};

} // namespace Ledgrove
