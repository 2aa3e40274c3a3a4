#include "ui/windows/HouseListModel.h"

namespace Ledgrove {

HouseListModel::HouseListModel(const HouseList& houses, QObject* parent)
    : QAbstractListModel(parent)
    , m_houses(houses)
    , m_count(static_cast<int>(houses.size())) {}

void HouseListModel::Refresh() {
    const int count = static_cast<int>(m_houses.size());
    if (count == m_count)
        return;
    beginResetModel();
    m_count = count;
    endResetModel();
}

int HouseListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_count;
}

QVariant HouseListModel::data(const QModelIndex& index, int role) const {
    const auto row = static_cast<std::size_t>(index.row());
    const bool shown = role == Qt::DisplayRole || role == Qt::ToolTipRole;
    if (!shown || !index.isValid() || row >= m_houses.size())
        return {};
    return QString::fromStdString(m_houses[row].Name);
}

} // namespace Ledgrove
