#include "reports/windows/PdfOutput.h"

#include "base/FileKind.h"
#include "reports/windows/PagePainter.h"
#include "reports/windows/PdfExtras.h"
#include "ui/windows/CommitWhole.h"

#include <QBuffer>
#include <QFile>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

namespace Ledgrove {

namespace {

QPageLayout LayoutOf(const PageGeometry& geometry) {
    const QSizeF points(geometry.PageWidth * 72.0 / TwipsPerInch, geometry.PageHeight * 72.0 / TwipsPerInch);
    return {QPageSize(points, QPageSize::Point, QString(), QPageSize::ExactMatch), QPageLayout::Portrait,
            QMarginsF()};
}

QString Unwritable(const QString& name, const QString& reason) {
    return QString("The report was not written: \"%1\" cannot be written (%2). Choose another place for it.")
        .arg(name, reason);
}

PdfExtras ExtrasOf(const PrintDocument& document) {
    constexpr double twipsPerPoint = TwipsPerInch / 72.0;
    PdfExtras extras{document.Author, "en-US", document.Geometry.PageHeight / twipsPerPoint, {}};
    for (const Bookmark& bookmark : document.Bookmarks())
        extras.Outline.push_back({bookmark.Title, bookmark.Page - 1, bookmark.Y / twipsPerPoint});
    return extras;
}

} // namespace

PrintOutcome PrintPages(QPagedPaintDevice& device, int dotsPerInch, const PrintDocument& document,
                        const PageProgress& progress) {
    PictureStore pictures;
    QPainter painter;
    if (!painter.begin(&device))
        return PrintOutcome::Failed;
    const double scale = static_cast<double>(dotsPerInch) / TwipsPerInch;
    for (std::size_t number = 1; number <= document.PageCount(); ++number) {
        if (progress && !progress(number))
            return PrintOutcome::Stopped;
        if (number > 1 && !device.newPage())
            return PrintOutcome::Failed;
        painter.resetTransform();
        painter.scale(scale, scale);
        PaintPage(painter, document.Page(number), pictures);
    }
    return painter.end() ? PrintOutcome::Done : PrintOutcome::Failed;
}

PrintOutcome MakePdf(const PrintDocument& document, QByteArray& pdf, const PageProgress& progress) {
    QBuffer pages;
    pages.open(QIODevice::WriteOnly);
    PrintOutcome outcome = PrintOutcome::Failed;
    {
        QPdfWriter writer(&pages);
        writer.setTitle(
            QString::fromStdString(document.PdfTitle.empty() ? document.Title : document.PdfTitle));
        writer.setCreator("Ledgrove");
        writer.setResolution(TwipsPerInch);
        writer.setPageLayout(LayoutOf(document.Geometry));
        outcome = PrintPages(writer, TwipsPerInch, document, progress);
    }
    if (outcome == PrintOutcome::Done)
        pdf = WithExtras(pages.data(), ExtrasOf(document));
    return outcome;
}

QString WritePdf(const PrintDocument& document, const QString& name, const PageProgress& progress) {
    // The new file would take the place of a pipe or a device.
    if (const std::string reason = NotAFile(QFile::encodeName(name).toStdString()); !reason.empty())
        return Unwritable(name, QString::fromStdString(reason));
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly))
        return Unwritable(name, file.errorString());
    QByteArray pdf;
    const PrintOutcome outcome = MakePdf(document, pdf, progress);
    if (outcome == PrintOutcome::Stopped) {
        file.cancelWriting();
        return {};
    }
    const bool written = outcome == PrintOutcome::Done && file.write(pdf) == pdf.size();
    return written && CommitWhole(file) ? QString() : Unwritable(name, file.errorString());
}

} // namespace Ledgrove
