#pragma once

#include <QTextBrowser>

namespace Ledgrove {

/// Shows one help file. It reads only this file and follows no link outside it.
class HelpBrowser : public QTextBrowser {
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget* parent = nullptr);

    /// Opens the file at the topic of this anchor. If there is no such topic, it shows the start of the file
    /// and returns false.
    bool ShowTopic(const QString& path, const QString& anchor);
    /// Shows the start of the file, which lists its contents.
    void ShowContents();
    bool HasAnchor(const QString& name) const;

    /// In percent of the application's text size. The text keeps its position.
    void SetZoom(int percent);
    int Zoom() const { return m_zoom; }

    QVariant loadResource(int type, const QUrl& name) override;

signals:
    /// The user chose a link outside the help; nothing was opened.
    void LinkRefused(const QString& address);
    /// Ctrl with the wheel: 1 for larger, -1 for smaller.
    void ZoomStepped(int step);

protected:
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void Follow(const QUrl& link);
    void KeepSelectionVisible();
    int TopPosition() const;
    void ScrollTo(int position);

    QUrl m_file;            ///< without the anchor
    QPalette m_application; ///< the palette at the last change
    int m_zoom = 100;
};

} // namespace Ledgrove
