#pragma once

#include <QString>
#include <QWidget>
#include <vector>

class QGridLayout;
class QLabel;

namespace Ledgrove {

/// A total stands bold under a line.
enum class RowWeight { Plain, Total };

struct ResultRow {
    QLabel* Caption;
    std::vector<const char*> Figures; ///< control names, one a column; nullptr leaves the cell empty
    RowWeight Weight = RowWeight::Plain;
};

/// Captions at the left, right-aligned figures in columns under their heads.
class ResultTable : public QWidget {
    Q_OBJECT

public:
    explicit ResultTable(std::vector<QString> heads, QWidget* parent = nullptr);

    void AddRow(const ResultRow& row);

private:
    void AddRule();

    std::vector<QString> m_heads;
    QGridLayout* m_grid;
    int m_nextRow = 0;
};

} // namespace Ledgrove
