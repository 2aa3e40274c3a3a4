#pragma once

#include <QTextBrowser>
#include <optional>

namespace Ledgrove {

/// Shows one help file. It reads only this file and follows no link outside it.
class HelpBrowser : public QTextBrowser {
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget* parent = nullptr);

    // Each of these moves the caret to what it shows, so that reading and selecting start there.

    /// Opens the file at the topic of this anchor. If there is no such topic, it shows the start of the file
    /// and returns false.
    bool ShowTopic(const QString& path, const QString& anchor);
    /// Shows the start of the file, which lists its contents.
    void ShowContents();
    void backward() override;
    void forward() override;

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
    /// Where the anchor of this name is in the text; nothing if there is none.
    std::optional<int> PositionOf(const QString& anchor) const;
    void PlaceCaret();
    void KeepSelectionVisible();
    int TopPosition() const;
    void ScrollTo(int position);

    QUrl m_file;            ///< without the anchor
    QPalette m_application; ///< the palette at the last change
    int m_zoom = 100;
};

} // namespace Ledgrove
