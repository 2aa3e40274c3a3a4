#pragma once

#include <QAbstractListModel>

#include "engine/TypeDeclarations.h"

namespace Ledgrove {

/// The names of the houses for a list view, in their order.
class HouseListModel : public QAbstractListModel {
    Q_OBJECT

public:
    /// `houses` must outlive the model.
    explicit HouseListModel(const HouseList& houses, QObject* parent = nullptr);

    /// Tells the views when houses came or went. A name never changes.
    void Refresh();

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    const HouseList& m_houses;
    int m_count;
};

} // namespace Ledgrove
