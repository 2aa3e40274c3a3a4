#pragma once

#include "reports/PrintDocument.h"

#include <QByteArray>
#include <QString>
#include <functional>

class QPagedPaintDevice;

namespace Ledgrove {

/// Called before each page (counted from 1); returning false stops the printing cleanly.
using PageProgress = std::function<bool(std::size_t page)>;

enum class PrintOutcome { Done, Stopped, Failed };

/// Paints every page of an ended document on a device whose page already has the document's size and no
/// margins. All printing uses this loop. `dotsPerInch` is the device's resolution.
PrintOutcome PrintPages(QPagedPaintDevice& device, int dotsPerInch, const PrintDocument& document,
                        const PageProgress& progress = {});

/// Makes an ended document's PDF in memory.
PrintOutcome MakePdf(const PrintDocument& document, QByteArray& pdf, const PageProgress& progress = {});

/// Writes an ended document as PDF with embedded fonts and lossless pictures, and with its title, author and
/// bookmarks. Returns a message if the file
/// cannot be written, else "". A failed or stopped write leaves no file.
QString WritePdf(const PrintDocument& document, const QString& file, const PageProgress& progress = {});

} // namespace Ledgrove
