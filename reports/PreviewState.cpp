#include "reports/PreviewState.h"

#include "engine/NumberText.h"
#include "reports/PrinterWords.h"
#include "ui/FieldFormats.h"

#include <algorithm>

namespace Ledgrove {

namespace {

constexpr double mostCopies = 9999;              ///< of the copies field, and of print servers
constexpr Twips narrowestSheet = 7560 + 2 * 720; ///< the section tables plus the margins
constexpr Twips shortestSheet = 9000;

constexpr Twips maximizedHeightLess = 1300;
constexpr Twips maximizedWidthLess = 600;
constexpr int narrowestGap = 3;

/// Logical pixels, of which an inch has 96.
constexpr int Pixels(Twips length) {
    constexpr Twips twipsPerPixel = TwipsPerInch / 96;
    return (length + twipsPerPixel / 2) / twipsPerPixel;
}

std::string Inches(Twips length) {
    return Module1::FormatPicture(static_cast<double>(length) / TwipsPerInch, ".0");
}

/// A number with a blank in place of a plus sign.
std::string SignedNumber(int number) {
    return (number < 0 ? "" : " ") + std::to_string(number);
}

} // namespace

int ZoomStep(int index, int step) {
    return std::clamp(index + step, 0, static_cast<int>(ZoomItems.size()) - 1);
}

PageButton PageButtonAt(std::size_t shown, std::size_t pageCount) {
    const bool onFirst = shown == 1;
    return {pageCount > 1, onFirst ? "Page 2" : "Page 1", onFirst ? 2U : 1U};
}

PreviewFrame MaximizedFrame(int controlsHeight, int spareWidth) {
    const int rest = Pixels(maximizedHeightLess) - controlsHeight;
    const int gap = std::max(rest / 4, narrowestGap);
    return {std::clamp(spareWidth / 2, 0, Pixels(maximizedWidthLess) / 2), gap,
            std::max(rest - 3 * gap, narrowestGap)};
}

std::string StatusText(const PrinterDevice& device, const PrinterDetails& details) {
    const std::string resolution = details.Resolution ? SignedNumber(*details.Resolution) : "not known";
    return "DPI: " + resolution + "\nPort: " + ReadableAddress(device.Port) +
           "\nDriver: " + OneLine(device.Driver);
}

Paper PaperFor(const PrinterDetails& details) {
    const Paper paper = details.DefaultPaper.value_or(Paper{});
    return paper.Width < narrowestSheet || paper.Height < shortestSheet ? Paper{} : paper;
}

PageGeometry SheetOf(const Paper& paper, PageOrientation orientation) {
    PageGeometry sheet;
    sheet.PageWidth = paper.Width;
    sheet.PageHeight = paper.Height;
    return Oriented(sheet, orientation);
}

std::string SizeText(const PageGeometry& sheet) {
    return Inches(sheet.PageWidth) + "x" + Inches(sheet.PageHeight);
}

std::string CopiesText(std::string_view text) {
    const std::string whole = Module1::FormatFieldText(text, FieldFormat::Whole);
    return Module1::FormatPicture(std::clamp(Module1::ReadNumber(whole).value_or(1), 1.0, mostCopies),
                                  "###,##0");
}

int CopiesIn(std::string_view text) {
    return static_cast<int>(Module1::ReadNumber(CopiesText(text)).value_or(1));
}

std::string ProgressText(std::size_t page, std::string_view title, const PrinterDevice& device) {
    return "Now printing Page " + std::to_string(page) + " of\n" + std::string(title) + "\non the " +
           OneLine(device.Name) + " on " + ReadableAddress(device.Port);
}

} // namespace Ledgrove
