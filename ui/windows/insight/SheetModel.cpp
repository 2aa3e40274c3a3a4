#include "ui/windows/insight/SheetModel.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <algorithm>

#include "insight/SheetMarks.h"

namespace Ledgrove {

namespace {

constexpr int highlightMilliseconds = 1500;

QString Words(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

const SheetCell& CellAt(const Sheet& sheet, const QModelIndex& index) {
    return sheet.Rows[static_cast<std::size_t>(index.row())][static_cast<std::size_t>(index.column())];
}

QString MarkInWords(const Sheet& sheet, CellMark mark) {
    switch (mark) {
    case CellMark::Best:
        return ", the best of its column";
    case CellMark::Current:
        return ", chosen now";
    case CellMark::Idle:
        return ", " + Words(sheet.IdleWords);
    case CellMark::Bad:
    case CellMark::Turn: // the cell's text says what changes
    case CellMark::None:
        break;
    }
    return {};
}

} // namespace

QColor ChangedColour(const QPalette& palette) {
    const bool isDark = palette.color(QPalette::Base).lightness() < 128;
    return isDark ? QColor(0x5c, 0x4d, 0x14) : QColor(0xff, 0xf2, 0xb8);
}

SheetModel::SheetModel(QObject* parent)
    : QAbstractTableModel(parent) {
    m_highlight.setSingleShot(true);
    m_highlight.setInterval(highlightMilliseconds);
    connect(&m_highlight, &QTimer::timeout, this, &SheetModel::ForgetChanges);
}

void SheetModel::Show(const Sheet& sheet) {
    const Sheet before = std::move(m_sheet);
    const bool isSameShape = before.Heads == sheet.Heads && before.Rows.size() == sheet.Rows.size();
    if (!isSameShape) {
        beginResetModel();
        m_sheet = sheet;
        m_changed.clear();
        endResetModel();
        return;
    }
    m_sheet = sheet;
    MarkChanges(before);
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void SheetModel::MarkChanges(const Sheet& before) {
    m_changed.clear();
    if (before.Title != m_sheet.Title)
        return;
    for (std::size_t row = 0; row < m_sheet.Rows.size(); ++row) {
        for (std::size_t column = 0; column < m_sheet.Rows[row].size(); ++column) {
            if (m_sheet.Rows[row][column].Text != before.Rows[row][column].Text)
                m_changed.insert({static_cast<int>(row), static_cast<int>(column)});
        }
    }
    if (!m_changed.isEmpty())
        m_highlight.start();
}

void SheetModel::ForgetChanges() {
    m_changed.clear();
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1), {Qt::BackgroundRole});
}

const std::vector<EntryText>& SheetModel::EntriesAt(const QModelIndex& index) const {
    static const std::vector<EntryText> none;
    if (!index.isValid())
        return none;
    const SheetCell& cell = CellAt(m_sheet, index);
    return cell.Entries.empty() ? m_sheet.Rows[static_cast<std::size_t>(index.row())].front().Entries
                                : cell.Entries;
}

bool SheetModel::IsWords(int column) const {
    return Ledgrove::IsWords(m_sheet, static_cast<std::size_t>(column));
}

bool SheetModel::MayBreak(int column) const {
    const auto at = static_cast<std::size_t>(column);
    return IsWords(column) || std::ranges::any_of(m_sheet.Rows, [&](const auto& row) {
               return at < row.size() && Ledgrove::MayBreak(m_sheet, at, row[at]);
           });
}

int SheetModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_sheet.Rows.size());
}

int SheetModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_sheet.Heads.size());
}

/// Row and column are spoken with each cell, because a screen reader may go from cell to cell.
QString SheetModel::Spoken(const QModelIndex& index) const {
    const SheetCell& cell = CellAt(m_sheet, index);
    const auto& row = m_sheet.Rows[static_cast<std::size_t>(index.row())];
    const QString text = cell.Text.empty() ? "empty" : Words(cell.Text);
    if (index.column() == 0)
        return text + MarkInWords(m_sheet, cell.Mark);
    return Words(row.front().Text) + ", " + Words(m_sheet.Heads[static_cast<std::size_t>(index.column())]) +
           ": " + text + MarkInWords(m_sheet, cell.Mark);
}

QVariant SheetModel::data(const QModelIndex& index, int role) const {
    const SheetCell& cell = CellAt(m_sheet, index);
    switch (role) {
    case Qt::DisplayRole:
        return Words(MarkedText(cell));
    case Qt::AccessibleTextRole:
        return Spoken(index);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::Alignment(Qt::AlignVCenter) |
                                   (IsWords(index.column()) ? Qt::AlignLeft : Qt::AlignRight));
    case Qt::FontRole: {
        const bool isBold =
            cell.Mark == CellMark::Best || cell.Mark == CellMark::Current || cell.Mark == CellMark::Turn;
        // Most cells have the view's font, which is faster to measure.
        if (!isBold && cell.Mark != CellMark::Idle)
            return {};
        QFont font = QGuiApplication::font();
        font.setBold(isBold);
        font.setItalic(cell.Mark == CellMark::Idle);
        return font;
    }
    case Qt::BackgroundRole:
        if (!m_changed.contains({index.row(), index.column()}))
            return {};
        return ChangedColour(QGuiApplication::palette());
    case SortRole:
        return cell.Number ? QVariant(*cell.Number) : QVariant(Words(cell.Text));
    default:
        return {};
    }
}

QVariant SheetModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return Words(m_sheet.Heads[static_cast<std::size_t>(section)]);
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::Alignment(Qt::AlignVCenter) |
                                   (IsWords(section) ? Qt::AlignLeft : Qt::AlignRight));
    return {};
}

} // namespace Ledgrove
