#pragma once

#include <QLayout>

namespace Ledgrove {

/// Lays its items out from left to right, and continues in another row where there is no
/// room. Rows are half as far apart as items.
class FlowLayout : public QLayout {
public:
    explicit FlowLayout(QWidget* parent);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem* itemAt(int index) const override { return m_items.value(index); }
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& place) override;

private:
    /// Returns the height. Moves the items only if `moves`.
    int Arrange(const QRect& place, bool moves) const;

    QList<QLayoutItem*> m_items;
};

} // namespace Ledgrove
