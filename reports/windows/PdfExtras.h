#pragma once

#include <QByteArray>
#include <string>
#include <vector>

namespace Ledgrove {

/// An entry of the list of sections that PDF readers show beside the pages.
struct PdfOutlineEntry {
    std::string Title;        ///< UTF-8
    std::size_t Page = 0;     ///< counted from 0
    double PointsFromTop = 0; ///< of the page, 72 per inch
};

/// What QPdfWriter cannot write.
struct PdfExtras {
    std::string Author;    ///< UTF-8; none if empty
    std::string Language;  ///< of the texts, such as "en-US"
    double PageHeight = 0; ///< in points
    std::vector<PdfOutlineEntry> Outline;
};

/// A file of QPdfWriter with the extras, as an incremental update (ISO 32000-1, 7.5.6): the file's own bytes
/// stay, and new versions of its catalog and document information follow them. A PDF library would do the
/// same, but loading one takes longer than writing a page. Returns `pdf` itself if it is not such a file.
QByteArray WithExtras(const QByteArray& pdf, const PdfExtras& extras);

} // namespace Ledgrove
