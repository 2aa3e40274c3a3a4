#pragma once

#include "reports/PrintDocument.h"

#include <QWidget>

class QKeyEvent;
class QLabel;
class QToolButton;

namespace Ledgrove {

class PageView;

/// The preview of a document: one page, with navigation to all pages.
class PreviewPane : public QWidget {
    Q_OBJECT

public:
    /// `document` must outlive the pane. The pane shows nothing before the document has ended.
    explicit PreviewPane(const PrintDocument& document, QWidget* parent = nullptr);

    /// Call this when the document's pages have been replaced. The chosen page stays if it still exists.
    void Refresh();
    /// Shows page `number`, counted from 1; for a page that does not exist, the nearest one.
    void ShowPage(std::size_t number);
    std::size_t ShownPage() const { return m_page; }
    void SetZoom(int percent);
    void ShowNavigation(bool shown);

    /// Handles the keys that turn pages.
    bool TakeKey(const QKeyEvent& key);

signals:
    void PageShown();
    /// The user requests one step larger (1) or smaller (-1).
    void ZoomStepped(int step);

private:
    QWidget* MakeNavigation();
    QToolButton* MakeArrow(const char* control, const QString& humanName, Qt::ArrowType arrow);

    const PrintDocument& m_document;
    std::size_t m_page = 1;
    PageView* m_view;
    QWidget* m_navigation = nullptr;
    QToolButton* m_previous = nullptr;
    QToolButton* m_next = nullptr;
    QLabel* m_place = nullptr;
};

} // namespace Ledgrove
