#pragma once

#include "reports/PrintDocument.h"
#include "reports/windows/Pictures.h"

#include <QAbstractScrollArea>
#include <QPixmap>
#include <QPoint>

namespace Ledgrove {

/// Shows one page of a document as a sheet of paper, painted as it is printed. The left mouse button drags
/// the sheet.
class PageView : public QAbstractScrollArea {
    Q_OBJECT

public:
    /// `document` must outlive the view.
    explicit PageView(const PrintDocument& document, QWidget* parent = nullptr);

    /// Call this when the document's pages have been replaced, before showing one of them.
    void ForgetPages();
    /// Shows page `number` (from 1) of the ended document.
    void ShowPage(std::size_t number);
    /// In percent of the paper's real size. The middle of the view stays in place.
    void SetZoom(int percent);

    QSize sizeHint() const override;

signals:
    /// The user requests one step larger (1) or smaller (-1).
    void ZoomStepped(int step);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    QSize SheetSize() const;
    QRect SheetPlace() const;
    void UpdateScrollBars();
    const QPixmap& Sheet();

    const PrintDocument& m_document;
    PictureStore m_pictures;
    std::size_t m_page = 0; ///< 0 while no page is shown
    int m_zoom = 100;
    QPixmap m_sheet; ///< null until painted
    QPoint m_dragged;
};

} // namespace Ledgrove
