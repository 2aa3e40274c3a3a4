#include "reports/windows/HelpPages.h"

#include "reports/PreviewState.h"
#include "ui/windows/CommitWhole.h"
#include "ui/windows/SilentDocument.h"

#include <QAbstractTextDocumentLayout>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextCursor>
#include <QTextDocumentFragment>
#include <QTextFrame>

namespace Ledgrove {

namespace {

// In twips.
constexpr qreal margin = 1080;
constexpr qreal footHeight = 480;

QSizeF PageSize() {
    const Paper letter;
    return {static_cast<qreal>(letter.Width), static_cast<qreal>(letter.Height)};
}

QSizeF TextSize() {
    return PageSize() - QSizeF(2 * margin, 2 * margin + footHeight);
}

QFont PageFont(qreal points) {
    QFont font("Arial");
    font.setPointSizeF(points);
    return font;
}

void Blacken(QTextDocument& document) {
    QTextCursor all(&document);
    all.select(QTextCursor::Document);
    QTextCharFormat black;
    black.setForeground(Qt::black);
    black.setBackground(Qt::NoBrush);
    all.mergeCharFormat(black);
    QTextBlockFormat plain;
    plain.setBackground(Qt::NoBrush);
    all.mergeBlockFormat(plain);
    QList<QTextFrame*> frames{document.rootFrame()};
    while (!frames.isEmpty()) {
        QTextFrame* frame = frames.takeLast();
        frames += frame->childFrames();
        QTextFrameFormat format = frame->frameFormat();
        format.setBackground(Qt::NoBrush);
        format.setBorderBrush(Qt::black);
        frame->setFrameFormat(format);
    }
}

void PaintText(QPainter& painter, const QTextDocument& document, int page) {
    const QSizeF text = TextSize();
    const QRectF part(0, (page - 1) * text.height(), text.width(), text.height());
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = QPalette(Qt::black, Qt::white);
    context.palette.setColor(QPalette::Text, Qt::black);
    context.clip = part;
    painter.save();
    painter.translate(margin, margin - part.top());
    painter.setClipRect(part);
    document.documentLayout()->draw(&painter, context);
    painter.restore();
}

void PaintFoot(QPainter& painter, int page, int pageCount) {
    const QSizeF size = PageSize();
    const qreal height = footHeight / 2;
    const QRectF foot(margin, size.height() - margin - height, size.width() - 2 * margin, height);
    painter.setFont(PageFont(8));
    painter.setPen(Qt::black);
    painter.drawText(foot, Qt::AlignLeft | Qt::AlignVCenter, "Ledgrove Help");
    painter.drawText(foot, Qt::AlignRight | Qt::AlignVCenter,
                     QString("Page %1 of %2").arg(page).arg(pageCount));
}

QString Unwritable(const QSaveFile& file) {
    return QString("The help was not written: \"%1\" cannot be written (%2). Choose another place for it.")
        .arg(file.fileName(), file.errorString());
}

} // namespace

HelpPages::HelpPages(const QTextDocument& help)
    : m_ruler(1, 1, QImage::Format_RGB32)
    , m_document(std::make_unique<SilentDocument>()) {
    const int dotsPerMetre = qRound(TwipsPerInch / 0.0254);
    m_ruler.setDotsPerMeterX(dotsPerMetre);
    m_ruler.setDotsPerMeterY(dotsPerMetre);
    m_document->setUndoRedoEnabled(false);
    m_document->setDefaultFont(PageFont(9.5));
    m_document->setDocumentMargin(0);
    QTextCursor(m_document.get()).insertFragment(QTextDocumentFragment(&help));
    Blacken(*m_document);
    m_document->documentLayout()->setPaintDevice(&m_ruler);
    m_document->setPageSize(TextSize());
}

HelpPages::~HelpPages() = default;

int HelpPages::Count() const {
    return m_document->pageCount();
}

QString HelpPages::Write(const QString& name) const {
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly))
        return Unwritable(file);
    bool done = false;
    {
        QPdfWriter writer(&file);
        writer.setTitle("Ledgrove Help");
        writer.setCreator("Ledgrove");
        writer.setResolution(TwipsPerInch);
        writer.setPageLayout(
            {QPageSize(QPageSize::Letter), QPageLayout::Portrait, QMarginsF(), QPageLayout::Point});
        QPainter painter;
        done = painter.begin(&writer);
        for (int page = 1; done && page <= Count(); ++page) {
            done = page == 1 || writer.newPage();
            PaintText(painter, *m_document, page);
            PaintFoot(painter, page, Count());
        }
        done = painter.end() && done;
    }
    return done && CommitWhole(file) ? QString() : Unwritable(file);
}

} // namespace Ledgrove
