#include "ui/windows/insight/ChainView.h"

#include <QComboBox>
#include <QHeaderView>
#include <QSet>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include "ui/windows/Identify.h"

namespace Ledgrove {

namespace {

enum Column { Caption, Value, Formula, Numbers, Why };

constexpr int nameRole = Qt::UserRole;

QString Words(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// Where a leaf comes from, in words.
QString SourceOf(const ExplainedFigure& leaf) {
    const QString from = Words(leaf.From);
    if (!leaf.Place.Control.empty())
        return "typed: " + from;
    return leaf.Place.Key.empty() ? from : "assumed: " + from + " in Ledgrove.ini";
}

/// The names of a line and of those above it: the same figure may stand in several branches.
QString PathOf(const QTreeWidgetItem* line) {
    QString path;
    for (; line; line = line->parent())
        path += '/' + line->data(Caption, nameRole).toString();
    return path;
}

} // namespace

ChainView::ChainView(QWidget* parent)
    : QWidget(parent)
    , m_list(new QComboBox)
    , m_tree(new QTreeWidget) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_list);
    column->addWidget(m_tree, 1);
    Identify(*m_list, "FigureList", "Figure");
    m_list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    connect(m_list, &QComboBox::activated, this,
            [this](int row) { emit FigureChosen(m_list->itemData(row).toString()); });
    Identify(*m_tree, "Chain", "How the figure is calculated");
    m_tree->setHeaderLabels({"Figure", "Value", "Formula", "With Numbers", "Why"});
    m_tree->setAlternatingRowColors(true);
    m_tree->setExpandsOnDoubleClick(false);
    connect(m_tree, &QTreeWidget::itemExpanded, this, &ChainView::Expand);
    connect(m_tree, &QTreeWidget::itemActivated, this, &ChainView::Activate);
}

const ExplainedFigure* ChainView::Find(const QString& figure) const {
    const auto place = m_places.constFind(figure);
    return place == m_places.constEnd() ? nullptr : &m_chain.Figures[static_cast<std::size_t>(*place)];
}

void ChainView::FillList(const std::string& chosen) {
    const QSignalBlocker nothingChosen(m_list);
    m_list->clear();
    m_list->setPlaceholderText("Choose a figure");
    for (const ExplainedFigure& figure : m_chain.Figures) {
        if (figure.Labels.empty())
            continue;
        m_list->addItem(Words(figure.Caption) + ": " + Words(figure.Text), Words(figure.Figure));
    }
    // A figure that no label shows is not in the list.
    m_list->setCurrentIndex(m_list->findData(Words(chosen)));
}

void ChainView::Show(const Explanation& chain, const std::string& figure) {
    QSet<QString> open;
    if (m_shown == Words(figure)) {
        for (QTreeWidgetItemIterator line(m_tree); *line; ++line)
            if ((*line)->isExpanded())
                open.insert(PathOf(*line));
    }
    m_chain = chain;
    m_shown = Words(figure);
    m_places.clear();
    for (std::size_t place = 0; place < m_chain.Figures.size(); ++place)
        m_places.insert(Words(m_chain.Figures[place].Figure), static_cast<qsizetype>(place));
    FillList(figure);
    m_tree->clear();
    const ExplainedFigure* const root = Find(m_shown);
    if (!root)
        return;
    m_tree->addTopLevelItem(MakeLine(*root));
    m_tree->topLevelItem(0)->setExpanded(true);
    for (QTreeWidgetItemIterator line(m_tree); *line; ++line)
        if (open.contains(PathOf(*line)))
            (*line)->setExpanded(true);
    FitColumns();
}

/// The tree scrolls sideways rather than cut a text. The last column takes the room that is left.
void ChainView::FitColumns() {
    m_tree->header()->setStretchLastSection(false);
    for (int at = Caption; at <= Why; ++at)
        m_tree->resizeColumnToContents(at);
    m_tree->header()->setStretchLastSection(m_tree->header()->length() < m_tree->viewport()->width());
}

void ChainView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    FitColumns();
}

QTreeWidgetItem* ChainView::MakeLine(const ExplainedFigure& figure) const {
    const bool isLeaf = figure.IsLeaf();
    auto* line = new QTreeWidgetItem({Words(figure.Caption), Words(figure.Text),
                                      isLeaf ? SourceOf(figure) : Words(figure.InWords),
                                      Words(figure.WithNumbers), Words(figure.Because)});
    line->setData(Caption, nameRole, Words(figure.Figure));
    line->setTextAlignment(Value, Qt::AlignRight | Qt::AlignVCenter);
    for (int at = Caption; at <= Why; ++at)
        line->setToolTip(at, line->text(at));
    const bool leads = !figure.Place.Control.empty() || !figure.Place.Key.empty();
    if (isLeaf && leads)
        line->setToolTip(Caption, "Double click: go to where this is entered.");
    line->setChildIndicatorPolicy(figure.Values.empty() ? QTreeWidgetItem::DontShowIndicator
                                                        : QTreeWidgetItem::ShowIndicator);
    return line;
}

/// Lines come when their branch is opened: the same figure stands in many branches.
void ChainView::Expand(QTreeWidgetItem* line) {
    const ExplainedFigure* const figure = Find(line->data(Caption, nameRole).toString());
    if (!figure || line->childCount() > 0)
        return;
    for (const std::string& name : figure->Values)
        if (const ExplainedFigure* const part = Find(Words(name)))
            line->addChild(MakeLine(*part));
    FitColumns();
}

void ChainView::Activate(QTreeWidgetItem* line) {
    const ExplainedFigure* const figure = Find(line->data(Caption, nameRole).toString());
    if (!figure)
        return;
    const bool leads = !figure->Place.Control.empty() || !figure->Place.Key.empty();
    if (figure->IsLeaf() && leads)
        emit LeafChosen(Words(figure->Place.Control), Words(figure->Place.Key));
    else
        line->setExpanded(!line->isExpanded());
}

} // namespace Ledgrove
