#pragma once

#include <QPointer>
#include <QTimer>
#include <QToolButton>

namespace Ledgrove {

class ResultLabel;

/// A mark that appears beside the result figure under the pointer: a click asks where the number comes from.
/// F2 asks the same for that figure, and so does the context menu of a figure.
class FigureMark : public QToolButton {
    Q_OBJECT

public:
    /// Watches the result figures of this window, which owns the mark.
    explicit FigureMark(QWidget& window);

signals:
    /// `label` is the figure's control, such as "lblGMHPITI"; empty without a figure under the pointer.
    void Asked(const QString& label);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void StandBeside(ResultLabel& figure);
    void OpenMenu(const ResultLabel& figure, const QPoint& at);
    void Ask();

    QWidget& m_window;
    QPointer<ResultLabel> m_figure;
    QTimer m_hiding;
};

} // namespace Ledgrove
