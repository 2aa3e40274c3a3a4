#include "ui/windows/insight/SheetView.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QStyle>
#include <QStyledItemDelegate>
#include <algorithm>

#include "ui/windows/insight/SheetModel.h"
#include "ui/windows/insight/TableHeads.h"

namespace Ledgrove {

namespace {

constexpr int rowMargin = 4; ///< sets rows of several lines apart

/// Sorts numbers before words, because a column may hold both.
class SheetOrder : public QSortFilterProxyModel {
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override {
        const bool isNumber = IsNumber(left);
        if (isNumber != IsNumber(right))
            return isNumber;
        return QSortFilterProxyModel::lessThan(left, right);
    }

private:
    bool IsNumber(const QModelIndex& index) const {
        return index.data(sortRole()).typeId() == QMetaType::Double;
    }
};

} // namespace

SheetView::SheetView(SheetModel& model, QWidget* parent)
    : QTableView(parent)
    , m_model(model)
    , m_sorted(new SheetOrder(this))
    , m_heads(new TableHeads(this)) {
    m_sorted->setSourceModel(&model);
    m_sorted->setSortRole(SheetModel::SortRole);
    setModel(m_sorted);
    setHorizontalHeader(m_heads);
    setObjectName("AnswerTable");
    setAccessibleName("Answer");
    m_heads->setSortIndicator(-1, Qt::AscendingOrder);
    m_heads->setSortIndicatorClearable(true);
    m_heads->setHighlightSections(false);
    setSortingEnabled(true);
    verticalHeader()->hide();
    setShowGrid(false);
    setAlternatingRowColors(true);
    setWordWrap(true);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
    // A row of many lines may be higher than the view.
    setVerticalScrollMode(ScrollPerPixel);
    setSelectionMode(ContiguousSelection);
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { emit CellChanged(); });
    connect(this, &QTableView::doubleClicked, this, [this] { emit CellActivated(); });
}

QModelIndex SheetView::CurrentCell() const {
    return m_sorted->mapToSource(currentIndex());
}

void SheetView::GoToRow(int row) {
    if (CurrentCell().row() != row)
        setCurrentIndex(m_sorted->mapFromSource(m_model.index(row, 0)));
}

Sheet SheetView::InShownOrder(const Sheet& sheet) const {
    const int count = m_sorted->rowCount();
    Sheet shown = sheet;
    if (static_cast<int>(sheet.Rows.size()) != count)
        return shown;
    for (int row = 0; row < count; ++row) {
        const int own = m_sorted->mapToSource(m_sorted->index(row, 0)).row();
        shown.Rows[static_cast<std::size_t>(row)] = sheet.Rows[static_cast<std::size_t>(own)];
    }
    return shown;
}

void SheetView::Settle() {
    m_heads->setSortIndicator(-1, Qt::AscendingOrder);
    m_sorted->sort(-1);
    FitColumns();
}

void SheetView::FitColumns() {
    // Measuring every row of a long list would take seconds.
    constexpr int mostMeasured = 1000;
    const bool isLong = m_sorted->rowCount() > mostMeasured;
    setWordWrap(!isLong);
    // Measuring the cells takes longer than all the rest.
    QList<int> cells;
    for (int column = 0; column < m_heads->count(); ++column)
        cells += sizeHintForColumn(column);
    for (const bool breaksHeads : {false, true}) {
        m_heads->SetBreaking(breaksHeads);
        for (int column = 0; column < m_heads->count(); ++column)
            m_heads->resizeSection(column, std::max(cells[column], m_heads->sectionSizeHint(column)));
        if (!isLong)
            BreakWords();
        if (m_heads->length() <= Room())
            break;
    }
    if (isLong)
        verticalHeader()->setDefaultSectionSize(LineHeight());
    else
        resizeRowsToContents();
    updateGeometries();
    updateGeometry();
}

/// The width for all columns, without that of the vertical scroll bar even while it is hidden: narrower
/// columns make taller rows, and these may need the bar, so it would come and go.
int SheetView::Room() const {
    return contentsRect().width() - verticalScrollBar()->sizeHint().width();
}

/// The columns that may break share the room that the others leave.
void SheetView::BreakWords() {
    QHeaderView& heads = *m_heads;
    constexpr int narrow = 14, readable = 24; // letters, unless a word is longer
    m_breaking.clear();
    int figures = 0;
    for (int column = 0; column < heads.count(); ++column) {
        if (m_model.MayBreak(column))
            m_breaking += column;
        else
            figures += heads.sectionSize(column);
    }
    // A table that is too wide without its words does not fit anyway.
    const int letters = figures > Room() ? readable : narrow;
    const auto least = [&](int column) {
        return std::max(
            {fontMetrics().averageCharWidth() * letters, heads.sectionSizeHint(column), WidestWord(column)});
    };
    int others = 0;
    QList<int> wide;
    for (int column = 0; column < heads.count(); ++column) {
        if (m_breaking.contains(column) && heads.sectionSize(column) > least(column))
            wide += column;
        else
            others += heads.sectionSize(column);
    }
    int room = Room() - others;
    std::sort(wide.begin(), wide.end(),
              [&heads](int a, int b) { return heads.sectionSize(a) < heads.sectionSize(b); });
    for (qsizetype i = 0; i < wide.size(); ++i) {
        const int share = std::max(least(wide[i]), room / static_cast<int>(wide.size() - i));
        const int width = std::min(heads.sectionSize(wide[i]), share);
        heads.resizeSection(wide[i], width);
        room -= width;
    }
}

/// The width that the column needs so that no word is cut.
int SheetView::WidestWord(int column) const {
    constexpr int longest = 40; // letters; no name of a house is one word of that length
    int widest = 0;
    for (int row = 0; row < m_sorted->rowCount(); ++row) {
        const QString text = m_sorted->index(row, column).data().toString();
        for (const QStringView word : QStringView(text).split(' ', Qt::SkipEmptyParts))
            widest = std::max(widest, fontMetrics().horizontalAdvance(word.toString()));
    }
    // The style leaves a margin at both sides, and the grid a line.
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    return std::min(widest, fontMetrics().averageCharWidth() * longest) + 2 * margin + 1;
}

int SheetView::sizeHintForRow(int row) const {
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.features |= QStyleOptionViewItem::WrapText;
    int height = 0;
    for (const int column : m_breaking) {
        option.rect = QRect(0, 0, columnWidth(column), 1); // an empty one would not break the text
        const QModelIndex cell = m_sorted->index(row, column);
        height = std::max(height, itemDelegateForIndex(cell)->sizeHint(option, cell).height());
    }
    return height + rowMargin;
}

void SheetView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        FitColumns();
}

QSize SheetView::sizeHint() const {
    const int rows = verticalHeader()->length() + m_heads->sizeHint().height() + 2 * frameWidth();
    return {m_heads->length() + 2 * frameWidth(), rows};
}

int SheetView::LineHeight() const {
    return fontMetrics().height() + rowMargin;
}

/// Room for a few rows, or for all if there are fewer. A row of sentences counts as two lines.
QSize SheetView::minimumSizeHint() const {
    constexpr int leastRows = 5;
    int rows = 0;
    for (int row = 0; row < std::min(leastRows, verticalHeader()->count()); ++row)
        rows += std::min(verticalHeader()->sectionSize(row), 2 * LineHeight());
    const bool scrolls = m_heads->length() > viewport()->width();
    const int bar = scrolls ? horizontalScrollBar()->sizeHint().height() : 0;
    return {fontMetrics().averageCharWidth() * 30,
            m_heads->sizeHint().height() + rows + bar + 2 * frameWidth()};
}

void SheetView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        emit CellActivated();
        return;
    }
    if (!event->matches(QKeySequence::Copy))
        return QTableView::keyPressEvent(event);
    const QItemSelection chosen = selectionModel()->selection();
    if (chosen.isEmpty())
        return;
    const QItemSelectionRange range = chosen.first();
    QStringList lines;
    for (int row = range.top(); row <= range.bottom(); ++row) {
        QStringList cells;
        for (int column = range.left(); column <= range.right(); ++column)
            cells += m_sorted->index(row, column).data().toString();
        lines += cells.join('\t');
    }
    QGuiApplication::clipboard()->setText(lines.join('\n'));
}

} // namespace Ledgrove
