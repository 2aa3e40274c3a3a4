#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "ui/windows/insight/PicturePainter.h"

namespace Ledgrove {

/// The picture of an answer. On a map, the cell under the pointer or the cursor keys says what it stands for,
/// and a double click or Enter chooses it.
class AnswerPicture : public QWidget {
    Q_OBJECT

public:
    using CellWords = std::function<QString(const ChartGrid&, std::size_t column, std::size_t row)>;

    /// `words` describes a cell of the map.
    explicit AnswerPicture(CellWords words, QWidget* parent = nullptr);

    void Show(const ChartFigures& chart);
    const ChartFigures& Shown() const { return m_chart; }

    /// The picture as a file, on white.
    QByteArray AsPng() const;
    QByteArray AsSvg() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The words of the cell under the pointer or the cursor; empty without one.
    void CellSaid(const QString& words);
    void CellChosen(std::size_t column, std::size_t row);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    std::optional<MapCell> CellAt(const QPointF& point) const;
    void PointAt(const std::optional<MapCell>& cell);
    void Choose();
    void Describe();

    CellWords m_words;
    ChartFigures m_chart;
    std::optional<MapCell> m_cell;
};

} // namespace Ledgrove
