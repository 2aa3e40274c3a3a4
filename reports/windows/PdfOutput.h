#pragma once

#include "reports/PrintDocument.h"

#include <QString>
#include <functional>

class QPagedPaintDevice;

namespace Ledgrove {

/// Told before each page (counted from 1); false stops the printing cleanly.
using PageProgress = std::function<bool(std::size_t page)>;

enum class PrintOutcome { Done, Stopped, Failed };

/// Paints every page of an ended document onto a device whose page already has the document's size and no
/// margins. The one loop that prints. `dotsPerInch` is the device's.
PrintOutcome PrintPages(QPagedPaintDevice& device, int dotsPerInch, const PrintDocument& document,
                        const PageProgress& progress = {});

/// Writes an ended document as PDF, fonts embedded and pictures lossless. Gives a sentence when the file
/// cannot be written, else "". A failed or stopped writing leaves no file.
QString WritePdf(const PrintDocument& document, const QString& file, const PageProgress& progress = {});

} // namespace Ledgrove
