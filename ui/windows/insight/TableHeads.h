#pragma once

#include <QHeaderView>

namespace Ledgrove {

/// The heads of a table. They may break into two lines, so that columns of figures become narrower.
class TableHeads : public QHeaderView {
    Q_OBJECT

public:
    explicit TableHeads(QWidget* parent = nullptr);

    /// Whoever changes this has to fit the columns anew.
    void SetBreaking(bool isBreaking);

protected:
    QSize sectionSizeFromContents(int section) const override;
    void initStyleOptionForIndex(QStyleOptionHeader* option, int section) const override;

private:
    bool m_isBreaking = false;
};

} // namespace Ledgrove
