#pragma once

#include <QString>
#include <QWidget>
#include <vector>

#include "ui/ResultSheets.h"

class QGridLayout;

namespace Ledgrove {

/// Shows the rows of a sheet: captions on the left, right-aligned figures in columns under their heads. A
/// column without figures is omitted.
class ResultTable : public QWidget {
    Q_OBJECT

public:
    explicit ResultTable(const ResultSheet& sheet, QWidget* parent = nullptr);

private:
    struct Column {
        LabelMember SheetRow::*Cell;
        QString Head;
    };

    void AddHeads();
    void AddRow(const SheetRow& row);
    void AddRule();

    std::vector<Column> m_columns;
    QGridLayout* m_grid;
};

} // namespace Ledgrove
