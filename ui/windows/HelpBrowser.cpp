#include "ui/windows/HelpBrowser.h"

#include "ui/windows/SilentDocument.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QWheelEvent>

namespace Ledgrove {

HelpBrowser::HelpBrowser(QWidget* parent)
    : QTextBrowser(parent) {
    setObjectName("HelpText");
    setAccessibleName("Help");
    setDocument(new SilentDocument(this));
    setOpenLinks(false);
    setOpenExternalLinks(false);
    // For reading with the keyboard: Tab moves between the links and the arrow keys scroll.
    setTextInteractionFlags(Qt::TextBrowserInteraction);
    connect(this, &QTextBrowser::anchorClicked, this, &HelpBrowser::Follow);
    KeepSelectionVisible();
}

bool HelpBrowser::ShowTopic(const QString& path, const QString& anchor) {
    m_file = QUrl::fromLocalFile(path);
    QUrl topic = m_file;
    topic.setFragment(anchor);
    setSource(topic, QTextDocument::HtmlResource);
    const bool found = PositionOf(anchor).has_value();
    if (!found)
        verticalScrollBar()->setValue(0);
    PlaceCaret();
    return found;
}

void HelpBrowser::ShowContents() {
    setSource(m_file, QTextDocument::HtmlResource);
    verticalScrollBar()->setValue(0);
    PlaceCaret();
}

void HelpBrowser::backward() {
    QTextBrowser::backward();
    PlaceCaret();
}

void HelpBrowser::forward() {
    QTextBrowser::forward();
    PlaceCaret();
}

std::optional<int> HelpBrowser::PositionOf(const QString& anchor) const {
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            if (part.fragment().charFormat().anchorNames().contains(anchor))
                return part.fragment().position();
        }
    }
    return std::nullopt;
}

void HelpBrowser::PlaceCaret() {
    // Moving the caret scrolls to it, but the topic is already shown, with its heading at the top.
    const int shown = verticalScrollBar()->value();
    QTextCursor caret(document());
    caret.setPosition(PositionOf(source().fragment()).value_or(0));
    setTextCursor(caret);
    verticalScrollBar()->setValue(shown);
}

void HelpBrowser::SetZoom(int percent) {
    if (percent == m_zoom)
        return;
    const int reading = TopPosition();
    m_zoom = percent;
    // The document uses the widget's font, and all its sizes are relative to that font.
    QFont font = QApplication::font(this);
    font.setPointSizeF(font.pointSizeF() * percent / 100);
    setFont(font);
    ScrollTo(reading);
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
    const bool isTheFile = name.adjusted(QUrl::RemoveFragment) == m_file;
    return isTheFile ? QTextBrowser::loadResource(type, name) : QVariant();
}

void HelpBrowser::Follow(const QUrl& link) {
    if (link.adjusted(QUrl::RemoveFragment) != m_file) {
        emit LinkRefused(link.toDisplayString());
        return;
    }
    setSource(link, QTextDocument::HtmlResource);
    PlaceCaret();
}

void HelpBrowser::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    // KeepSelectionVisible below also changes the palette and causes this event.
    if (event->type() != QEvent::PaletteChange || QApplication::palette() == m_application)
        return;
    KeepSelectionVisible();
    if (source().isEmpty())
        return;
    // Links got their colour from the palette when the file was read.
    const int reading = TopPosition();
    reload();
    ScrollTo(reading);
}

void HelpBrowser::wheelEvent(QWheelEvent* event) {
    if (!(event->modifiers() & Qt::ControlModifier))
        return QTextBrowser::wheelEvent(event);
    event->accept();
    if (const int turn = event->angleDelta().y())
        emit ZoomStepped(turn > 0 ? 1 : -1);
}

/// Keeps the match marked while the focus is still in the find field.
void HelpBrowser::KeepSelectionVisible() {
    m_application = QApplication::palette();
    QPalette own;
    own.setResolveMask(0);
    own.setColor(QPalette::Inactive, QPalette::Highlight,
                 m_application.color(QPalette::Active, QPalette::Highlight));
    own.setColor(QPalette::Inactive, QPalette::HighlightedText,
                 m_application.color(QPalette::Active, QPalette::HighlightedText));
    setPalette(own);
}

int HelpBrowser::TopPosition() const {
    return cursorForPosition(QPoint(0, 0)).position();
}

void HelpBrowser::ScrollTo(int position) {
    const QTextBlock block = document()->findBlock(position);
    const QRectF place = document()->documentLayout()->blockBoundingRect(block);
    verticalScrollBar()->setValue(qRound(place.top()));
}

} // namespace Ledgrove
