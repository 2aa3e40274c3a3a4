#pragma once

#include <QTableView>

#include "insight/Sheet.h"

class QSortFilterProxyModel;

namespace Ledgrove {

class SheetModel;
class TableHeads;

/// The table of an answer: sorted by a click on a head, a third click restores its own order.
class SheetView : public QTableView {
    Q_OBJECT

public:
    explicit SheetView(SheetModel& model, QWidget* parent = nullptr);

    /// The model's index of the current cell; invalid without one.
    QModelIndex CurrentCell() const;

    /// Makes the first cell of this row of the model the current one, unless the current one is in the row.
    void GoToRow(int row);

    /// The sheet that the model shows, with its rows in the order on the screen. Another sheet and that of an
    /// empty table stay as they are.
    Sheet InShownOrder(const Sheet& sheet) const;

    /// Gives each column the width of its contents. Long texts break, and then the heads, so that the table
    /// fits if it can.
    void FitColumns();

    /// The same, and restores the sheet's own order.
    void Settle();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void CellChanged();
    void CellActivated();

protected:
    /// Only columns that may break can need several lines, and measuring a text is slow.
    int sizeHintForRow(int row) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    int Room() const;
    void BreakWords();
    int LineHeight() const; ///< of a row of one line
    int WidestWord(int column) const;

    SheetModel& m_model;
    QSortFilterProxyModel* m_sorted;
    TableHeads* m_heads;
    QList<int> m_breaking; ///< the columns that may break into lines
};

} // namespace Ledgrove
