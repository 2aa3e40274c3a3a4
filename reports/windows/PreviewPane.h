#pragma once

#include "reports/PrintDocument.h"

#include <QWidget>

class QKeyEvent;
class QLabel;
class QToolButton;

namespace Ledgrove {

class PageView;

/// The preview of a document: one page, and its own navigation to all of them.
class PreviewPane : public QWidget {
    Q_OBJECT

public:
    /// `document` must outlive the pane; nothing is shown before it has ended.
    explicit PreviewPane(const PrintDocument& document, QWidget* parent = nullptr);

    /// The document's pages were replaced. The page that was chosen stays, as far as it is still there.
    void Refresh();
    /// Counted from 1; the nearest one for a page that is not there.
    void ShowPage(std::size_t number);
    std::size_t ShownPage() const { return m_page; }
    void SetZoom(int percent);
    void ShowNavigation(bool shown);

    /// Takes the keys that turn pages.
    bool TakeKey(const QKeyEvent& key);

signals:
    void PageShown();
    /// One step larger (1) or smaller (-1) is asked for.
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
