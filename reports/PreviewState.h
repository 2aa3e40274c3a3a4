#pragma once

#include "reports/PrintDocument.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

// What the preview window shows and decides, without its window.
namespace Ledgrove {

/// The zoom list, in percent.
inline constexpr std::array<const char*, 7> ZoomItems{"25", "50", "60", "65", "75", "100", "125"};
inline constexpr int ZoomAtActivation = 2; ///< index of ZoomItems

/// The item one step up (1) or down (-1) the list from `index`, the same one at its end.
int ZoomStep(int index, int step);

/// The button that switches between the first two pages.
struct PageButton {
    bool Visible = false;
    const char* Caption = "Page 2";
    std::size_t Leads = 2; ///< the page that it goes to

    bool operator==(const PageButton&) const = default;
};

/// The button while page `shown` of `pageCount` is shown. It never goes beyond the second page, on purpose.
PageButton PageButtonAt(std::size_t shown, std::size_t pageCount);

struct PrinterDevice {
    std::string Name;
    std::string Port;
    std::string Driver;
    bool IsDefault = false;
};

/// A sheet as its printer calls it, upright.
struct Paper {
    std::string Name = "na_letter_8.5x11in";
    Twips Width = PageGeometry{}.PageWidth;
    Twips Height = PageGeometry{}.PageHeight;

    bool operator==(const Paper&) const = default;
};

/// What a printer tells when it is asked.
struct PrinterDetails {
    std::optional<int> Resolution; ///< dots per inch
    std::optional<Paper> DefaultPaper;
};

/// Three lines: resolution, port and driver.
std::string StatusText(const PrinterDevice& device, const PrinterDetails& details);

/// The printer's own default paper; letter where it has none, or one that the report's tables do not fit.
Paper PaperFor(const PrinterDetails& details);

/// The sheet with the report's margins.
PageGeometry SheetOf(const Paper& paper, PageOrientation orientation);

/// Width and height in inches, "8.5x11.0".
std::string SizeText(const PageGeometry& sheet);

/// The number of copies that a text asks for: 1 to 9999, the most that print servers take. Nothing for any
/// other text.
std::optional<int> CopiesIn(std::string_view text);

/// What is wrong with a text that asks for no such number.
std::string CopiesComplaint(std::string_view text);

/// What is being printed where, in three lines.
std::string ProgressText(std::size_t page, std::string_view title, const PrinterDevice& device);

} // namespace Ledgrove
