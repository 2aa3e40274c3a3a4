#include "reports/PreviewState.h"

#include "engine/NumberText.h"

#include <algorithm>
#include <cmath>

namespace Ledgrove {

namespace {

constexpr int mostCopies = 9999;
constexpr Twips narrowestSheet = 7560 + 2 * 720; ///< the section tables plus the margins
constexpr Twips shortestSheet = 9000;

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

std::string StatusText(const PrinterDevice& device, const PrinterDetails& details) {
    const std::string resolution = details.Resolution ? SignedNumber(*details.Resolution) : "not known";
    return "DPI: " + resolution + "\nPort: " + device.Port + "\nDriver: " + device.Driver;
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

std::optional<int> CopiesIn(std::string_view text) {
    const auto number = Module1::ReadNumber(text);
    if (!number || *number < 1 || *number > mostCopies || *number != std::floor(*number))
        return std::nullopt;
    return static_cast<int>(*number);
}

std::string CopiesComplaint(std::string_view text) {
    return "The report was not printed: \"" + std::string(text) +
           "\" is not a number of copies. Type a whole number from 1 to " + std::to_string(mostCopies) + ".";
}

std::string ProgressText(std::size_t page, std::string_view title, const PrinterDevice& device) {
    return "Now printing Page " + std::to_string(page) + " of\n" + std::string(title) + "\non the " +
           device.Name + " on " + device.Port;
}

} // namespace Ledgrove
