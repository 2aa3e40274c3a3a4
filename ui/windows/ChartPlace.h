#pragma once

#include <QLabel>
#include <QWidget>
#include <functional>

#include "engine/Host.h"
#include "engine/Session.h"
#include "ui/windows/ChartWidget.h"
#include "ui/windows/FileQuestions.h"

namespace Ledgrove {

/// The source of charts: the factory, or a message that says why there is none.
struct ChartSource {
    ChartFactory* Factory = nullptr;
    QString Fault;
};

/// What a chart's place needs from the window.
struct ChartContext {
    const Session& State;
    Host& Outside;
    std::function<ChartSource()> Source; ///< called when the first chart is shown
    FileQuestions Questions;
};

/// The place of a chart on its tab. It creates the chart when the tab is first shown, and updates the chart
/// while it is visible.
class ChartPlace : public QWidget {
    Q_OBJECT

public:
    explicit ChartPlace(ChartKind kind, QWidget* parent = nullptr);

    void Connect(ChartContext context);

    /// Shows the current figures of the session.
    void Refresh();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void showEvent(QShowEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void TakeChart();
    void SavePicture(PictureFormat format);

    ChartKind m_kind;
    std::optional<ChartContext> m_context;
    ChartWidget* m_chart = nullptr;
    bool m_isAsked = false;
};

} // namespace Ledgrove
