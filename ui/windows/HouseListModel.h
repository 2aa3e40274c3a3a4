#pragma once

#include <QAbstractListModel>

#include "engine/TypeDeclarations.h"

namespace Ledgrove {

/// The names of the houses for a list view, in order.
class HouseListModel : public QAbstractListModel {
    Q_OBJECT

public:
    /// `houses` must outlive the model.
    explicit HouseListModel(const HouseList& houses, QObject* parent = nullptr);

    /// Notifies the views of added and removed houses. Names never change.
    void Refresh();

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    const HouseList& m_houses;
    int m_count;
};

} // namespace Ledgrove
