#include "ui/windows/ResultTable.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <algorithm>

#include "ui/windows/Identify.h"
#include "ui/windows/Labels.h"

namespace Ledgrove {

namespace {

QString Words(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString ControlName(LabelMember label) {
    return Words(LabelName(label));
}

QLabel* MakeCaption(const SheetRow& row) {
    QLabel* caption =
        row.CaptionLabel ? CaptionLabel(ControlName(row.CaptionLabel)) : TextLabel(Words(row.Caption));
    if (row.Weight == RowWeight::Total)
        MakeBold(*caption);
    caption->setToolTip(Words(row.Meaning));
    SetSpokenDescription(*caption, Words(row.Meaning));
    return caption;
}

} // namespace

ResultTable::ResultTable(const ResultSheet& sheet, QWidget* parent)
    : QWidget(parent)
    , m_grid(new QGridLayout(this)) {
    std::size_t head = 0;
    for (const auto cell : {&SheetRow::First, &SheetRow::Second}) {
        const bool isUsed = std::any_of(sheet.Rows.begin(), sheet.Rows.end(),
                                        [cell](const SheetRow& row) { return row.*cell; });
        if (isUsed)
            m_columns.push_back({cell, Words(sheet.Heads[head])});
        ++head;
    }
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(24);
    m_grid->setVerticalSpacing(8);
    m_grid->setColumnMinimumWidth(0, fontMetrics().averageCharWidth() * 28);
    AddHeads();
    for (const SheetRow& row : sheet.Rows)
        AddRow(row);
}

void ResultTable::AddHeads() {
    int place = 1;
    for (const Column& column : m_columns) {
        QLabel* label = TextLabel(column.Head);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        MakeBold(*label);
        m_grid->addWidget(label, 0, place++);
    }
}

void ResultTable::AddRule() {
    auto* rule = new QFrame;
    rule->setFrameShape(QFrame::HLine);
    rule->setFrameShadow(QFrame::Sunken);
    m_grid->addWidget(rule, m_grid->rowCount(), 0, 1, static_cast<int>(m_columns.size()) + 1);
}

void ResultTable::AddRow(const SheetRow& row) {
    if (row.Weight == RowWeight::Total)
        AddRule();
    QLabel* caption = MakeCaption(row);
    const int line = m_grid->rowCount();
    m_grid->addWidget(caption, line, 0);
    int place = 1;
    for (const Column& column : m_columns) {
        if (const LabelMember cell = row.*column.Cell) {
            auto* figure = new ResultLabel(ControlName(cell), *caption, column.Head);
            if (row.Stem)
                figure->ContinueCaption(*findChild<QLabel*>(ControlName(row.Stem)));
            if (!row.Meaning.empty())
                figure->Explain(Words(row.Meaning));
            if (row.Weight == RowWeight::Total)
                MakeBold(*figure);
            m_grid->addWidget(figure, line, place);
        }
        ++place;
    }
}

} // namespace Ledgrove
