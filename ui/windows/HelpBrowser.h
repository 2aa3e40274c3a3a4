#pragma once

#include <QTextBrowser>

namespace Ledgrove {

/// Shows one help file. It reads nothing but this file and follows no link out of it.
class HelpBrowser : public QTextBrowser {
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget* parent = nullptr);

    /// Opens the file at the topic of this anchor. Without such a topic the file is shown from its start, and
    /// the answer is false.
    bool ShowTopic(const QString& path, const QString& anchor);
    /// The start of the file, where its contents are listed.
    void ShowContents();
    bool HasAnchor(const QString& name) const;

    /// In percent of the application's own text size. The text keeps its place.
    void SetZoom(int percent);
    int Zoom() const { return m_zoom; }

    QVariant loadResource(int type, const QUrl& name) override;

signals:
    /// A link out of the help was chosen, and nothing was opened.
    void LinkRefused(const QString& address);
    /// Ctrl and the wheel: 1 for larger, -1 for smaller.
    void ZoomStepped(int step);

protected:
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void Follow(const QUrl& link);
    void KeepSelectionVisible();
    int TopPosition() const;
    void ScrollTo(int position);

    QUrl m_file;            ///< without a topic
    QPalette m_application; ///< when it was last looked at
    int m_zoom = 100;
};

} // namespace Ledgrove
