#pragma once

#include <QHash>
#include <QWidget>

#include "insight/Explain.h"

class QComboBox;
class QTreeWidget;
class QTreeWidgetItem;

namespace Ledgrove {

/// A figure as a tree: below each line the figures that it is calculated from, down to what was typed or
/// assumed.
class ChainView : public QWidget {
    Q_OBJECT

public:
    explicit ChainView(QWidget* parent = nullptr);

    /// Shows this figure of the explanation. The branches that were open stay open.
    void Show(const Explanation& chain, const std::string& figure);

signals:
    /// The user chose another figure.
    void FigureChosen(const QString& figure);
    /// A double click on what was typed or assumed.
    void LeafChosen(const QString& control, const QString& key);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    const ExplainedFigure* Find(const QString& figure) const;
    void FillList(const std::string& chosen);
    QTreeWidgetItem* MakeLine(const ExplainedFigure& figure) const;
    void Expand(QTreeWidgetItem* line);
    void FitColumns();
    void Activate(QTreeWidgetItem* line);

    Explanation m_chain;
    QHash<QString, qsizetype> m_places; ///< of the figures by name
    QString m_shown;
    QComboBox* m_list;
    QTreeWidget* m_tree;
};

} // namespace Ledgrove
