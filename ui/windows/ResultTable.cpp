#include "ui/windows/ResultTable.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <utility>

#include "ui/windows/Labels.h"

namespace Ledgrove {

ResultTable::ResultTable(std::vector<QString> heads, QWidget* parent)
    : QWidget(parent)
    , m_heads(std::move(heads))
    , m_grid(new QGridLayout(this)) {
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(24);
    m_grid->setVerticalSpacing(8);
    m_grid->setColumnMinimumWidth(0, fontMetrics().averageCharWidth() * 28);
    int column = 1;
    for (const QString& head : m_heads) {
        QLabel* label = TextLabel(head);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        MakeBold(*label);
        m_grid->addWidget(label, 0, column++);
    }
    m_nextRow = 1;
}

void ResultTable::AddRule() {
    auto* rule = new QFrame;
    rule->setFrameShape(QFrame::HLine);
    rule->setFrameShadow(QFrame::Sunken);
    m_grid->addWidget(rule, m_nextRow++, 0, 1, static_cast<int>(m_heads.size()) + 1);
}

void ResultTable::AddRow(const ResultRow& row) {
    if (row.Weight == RowWeight::Total) {
        AddRule();
        MakeBold(*row.Caption);
    }
    m_grid->addWidget(row.Caption, m_nextRow, 0);
    for (std::size_t i = 0; i < row.Figures.size(); ++i) {
        if (!row.Figures[i])
            continue;
        auto* figure = new ResultLabel(row.Figures[i], *row.Caption, m_heads[i]);
        if (row.Weight == RowWeight::Total)
            MakeBold(*figure);
        m_grid->addWidget(figure, m_nextRow, static_cast<int>(i) + 1);
    }
    ++m_nextRow;
}

} // namespace Ledgrove
