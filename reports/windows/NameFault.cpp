#include "reports/windows/NameFault.h"

#include "base/Text.h"
#include "reports/windows/PagePainter.h"

#include <QFontMetricsF>
#include <algorithm>

namespace Ledgrove {

namespace {

/// Characters without a glyph of their own: marks of direction, joiners, variation selectors, blanks.
bool NeedsNoGlyph(char32_t character) {
    const QChar::Category category = QChar::category(character);
    return category == QChar::Other_Format || category == QChar::Other_Control ||
           category == QChar::Separator_Space || category == QChar::Mark_NonSpacing;
}

} // namespace

std::string NameFault(const std::string& name) {
    const QFontMetricsF metrics(PrintFont({}));
    const QList<uint> characters = QString::fromStdString(name).toUcs4();
    const auto missing = std::find_if(characters.begin(), characters.end(), [&metrics](uint character) {
        return !NeedsNoGlyph(character) && !metrics.inFontUcs4(character);
    });
    if (missing == characters.end())
        return {};
    return "The name " + Quoted(name) +
           " does not print in full: no font of this computer has the character U+" +
           QString::number(*missing, 16).rightJustified(4, '0').toUpper().toStdString() +
           ". Install a font for its script, such as the package fonts-noto-core.";
}

} // namespace Ledgrove
