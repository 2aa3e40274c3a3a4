#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QPalette>
#include <QSet>
#include <QTimer>

#include "insight/Sheet.h"

namespace Ledgrove {

/// The ground of what has just changed, with this palette.
QColor ChangedColour(const QPalette& palette);

/// A sheet as a table for views and screen readers. Cells that a new sheet changes are marked for a moment.
class SheetModel : public QAbstractTableModel {
    Q_OBJECT

public:
    /// The value to sort by: the number of a cell, or its text.
    static constexpr int SortRole = Qt::UserRole;

    explicit SheetModel(QObject* parent = nullptr);

    /// Shows this sheet. If it answers the same question as the one before, marks what changed.
    void Show(const Sheet& sheet);
    /// What the cell proposes to enter: its own entries, or those of its row's first cell.
    const std::vector<EntryText>& EntriesAt(const QModelIndex& index) const;

    /// Whether a cell of the column may break into lines.
    bool MayBreak(int column) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    bool IsWords(int column) const;
    QString Spoken(const QModelIndex& index) const;
    void MarkChanges(const Sheet& before);
    void ForgetChanges();

    Sheet m_sheet;
    QSet<QPair<int, int>> m_changed;
    QTimer m_highlight;
};

} // namespace Ledgrove
