#include "ui/windows/FigureMark.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QShortcut>

#include "ui/windows/Identify.h"
#include "ui/windows/Labels.h"

namespace Ledgrove {

namespace {

constexpr const char* question = "Where does this number come from?";
/// Long enough to reach the mark with the pointer.
constexpr int hidingMilliseconds = 400;

} // namespace

FigureMark::FigureMark(QWidget& window)
    : QToolButton(&window)
    , m_window(window) {
    Identify(*this, "bFigure", question);
    setText("?");
    setToolTip(QString(question) + " (F2)");
    setAutoRaise(true);
    // The keyboard has F2.
    setFocusPolicy(Qt::NoFocus);
    hide();
    m_hiding.setSingleShot(true);
    m_hiding.setInterval(hidingMilliseconds);
    connect(&m_hiding, &QTimer::timeout, this, [this] {
        if (!underMouse() && !(m_figure && m_figure->underMouse()))
            hide();
    });
    connect(this, &QToolButton::clicked, this, &FigureMark::Ask);
    connect(new QShortcut(Qt::Key_F2, &window), &QShortcut::activated, this, &FigureMark::Ask);
    for (ResultLabel* figure : window.findChildren<ResultLabel*>())
        figure->installEventFilter(this);
}

bool FigureMark::eventFilter(QObject* watched, QEvent* event) {
    auto* figure = qobject_cast<ResultLabel*>(watched);
    if (!figure)
        return false;
    if (event->type() == QEvent::Enter)
        StandBeside(*figure);
    else if (event->type() == QEvent::Leave)
        m_hiding.start();
    else if (event->type() == QEvent::ContextMenu)
        OpenMenu(*figure, static_cast<QContextMenuEvent*>(event)->globalPos());
    return event->type() == QEvent::ContextMenu;
}

void FigureMark::leaveEvent(QEvent* event) {
    QToolButton::leaveEvent(event);
    m_hiding.start();
}

/// In the free room on the right of the figure.
void FigureMark::StandBeside(ResultLabel& figure) {
    m_figure = &figure;
    const int side = figure.height();
    const QPoint corner = figure.mapTo(&m_window, QPoint(figure.width(), 0));
    setGeometry(corner.x() + 1, corner.y(), side, side);
    show();
    raise();
}

void FigureMark::OpenMenu(const ResultLabel& figure, const QPoint& at) {
    QMenu menu(this);
    menu.addAction(question, this, [this, &figure] { emit Asked(figure.objectName()); });
    menu.exec(at);
}

void FigureMark::Ask() {
    const bool isShown = m_figure && m_figure->isVisible() && (m_figure->underMouse() || underMouse());
    emit Asked(isShown ? m_figure->objectName() : QString());
}

} // namespace Ledgrove
