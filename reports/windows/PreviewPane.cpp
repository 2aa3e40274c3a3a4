#include "reports/windows/PreviewPane.h"

#include "reports/windows/PageView.h"
#include "ui/windows/Identify.h"
#include "ui/windows/Labels.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

namespace Ledgrove {

PreviewPane::PreviewPane(const PrintDocument& document, QWidget* parent)
    : QWidget(parent)
    , m_document(document)
    , m_view(new PageView(document)) {
    Identify(*this, "vsPrinter", "Report Preview");
    setToolTip("Hold down left mouse to drag report within window. Left double-click to enlarge. Right "
               "double-click to reduce.");
    setFocusProxy(m_view);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_view, 1);
    m_navigation = MakeNavigation();
    layout->addWidget(m_navigation);
    connect(m_view, &PageView::ZoomStepped, this, &PreviewPane::ZoomStepped);
    connect(m_previous, &QToolButton::clicked, this, [this] { ShowPage(m_page - 1); });
    connect(m_next, &QToolButton::clicked, this, [this] { ShowPage(m_page + 1); });
}

QWidget* PreviewPane::MakeNavigation() {
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    m_previous = MakeArrow("bPreviousPage", "Previous Page", Qt::LeftArrow);
    m_next = MakeArrow("bNextPage", "Next Page", Qt::RightArrow);
    m_place = TextLabel({});
    m_place->setObjectName("lblPlace");
    layout->addStretch();
    layout->addWidget(m_previous);
    layout->addWidget(m_place);
    layout->addWidget(m_next);
    layout->addStretch();
    return row;
}

QToolButton* PreviewPane::MakeArrow(const char* control, const QString& humanName, Qt::ArrowType arrow) {
    auto* button = new QToolButton;
    Identify(*button, control, humanName);
    button->setToolTip(humanName);
    button->setArrowType(arrow);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

void PreviewPane::Refresh() {
    m_view->ForgetPages();
    ShowPage(m_page);
}

void PreviewPane::ShowPage(std::size_t number) {
    const std::size_t count = m_document.PageCount();
    if (m_document.CurrentState() != PrintDocument::State::Ended || count == 0)
        return;
    m_page = std::clamp<std::size_t>(number, 1, count);
    m_view->ShowPage(m_page);
    m_place->setText(QString("Page %1 of %2").arg(m_page).arg(count));
    m_previous->setEnabled(m_page > 1);
    m_next->setEnabled(m_page < count);
    emit PageShown();
}

void PreviewPane::SetZoom(int percent) {
    m_view->SetZoom(percent);
}

void PreviewPane::ShowNavigation(bool shown) {
    m_navigation->setVisible(shown);
}

bool PreviewPane::TakeKey(const QKeyEvent& key) {
    switch (key.key()) {
    case Qt::Key_PageUp:
        ShowPage(m_page - 1);
        return true;
    case Qt::Key_PageDown:
        ShowPage(m_page + 1);
        return true;
    case Qt::Key_Home:
        ShowPage(1);
        return true;
    case Qt::Key_End:
        ShowPage(m_document.PageCount());
        return true;
    default:
        return false;
    }
}

} // namespace Ledgrove
