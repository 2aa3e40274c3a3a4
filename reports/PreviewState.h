#pragma once

#include "reports/PrintDocument.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

// The logic of the preview window, without the window.
namespace Ledgrove {

/// The zoom list, in percent.
inline constexpr std::array<const char*, 7> ZoomItems{"25", "50", "60", "65", "75", "100", "125"};
inline constexpr int ZoomAtActivation = 2; ///< index of ZoomItems

/// The next item up (1) or down (-1) the list from `index`; stops at the ends.
int ZoomStep(int index, int step);

/// The button that switches between the first two pages.
struct PageButton {
    bool Visible = false;
    const char* Caption = "Page 2";
    std::size_t Leads = 2; ///< the page that it opens

    bool operator==(const PageButton&) const = default;
};

/// The button while page `shown` of `pageCount` is shown. It intentionally never goes beyond the second page.
PageButton PageButtonAt(std::size_t shown, std::size_t pageCount);

/// The room around the preview in the maximized window, in logical pixels.
struct PreviewFrame {
    int Side = 0;   ///< left and right of it
    int Gap = 0;    ///< above the header, below it, and above the controls
    int Bottom = 0; ///< below the controls

    bool operator==(const PreviewFrame&) const = default;
};

/// The frame that makes the preview 1300 twips lower and 600 twips narrower than the window. The header and
/// the controls below the preview have `controlsHeight` together, and the window is `spareWidth` wider than
/// they need; if this is too little room, the preview becomes smaller.
PreviewFrame MaximizedFrame(int controlsHeight, int spareWidth);

struct PrinterDevice {
    std::string Name;
    std::string Port;
    std::string Driver;
    bool IsDefault = false;
};

/// A paper size in portrait, with the printer's name for it.
struct Paper {
    std::string Name = "na_letter_8.5x11in";
    Twips Width = PageGeometry{}.PageWidth;
    Twips Height = PageGeometry{}.PageHeight;

    bool operator==(const Paper&) const = default;
};

/// The details that a printer reports.
struct PrinterDetails {
    std::optional<int> Resolution; ///< dots per inch
    std::optional<Paper> DefaultPaper;
};

/// Three lines: resolution, port and driver. Neither name breaks its line, and the port is decoded.
std::string StatusText(const PrinterDevice& device, const PrinterDetails& details);

/// The printer's default paper; letter if it has none, or one that is too small for the report's tables.
Paper PaperFor(const PrinterDetails& details);

/// The sheet with the report's margins.
PageGeometry SheetOf(const Paper& paper, PageOrientation orientation);

/// Width and height in inches, such as "8.5x11.0".
std::string SizeText(const PageGeometry& sheet);

/// The text that the copies field shows for a text that the field rules accept: a whole number from 1 to
/// 9,999.
///     "2.5" -> "3"    "0" -> "1"    "" -> "1"    "10000" -> "9,999"
std::string CopiesText(std::string_view text);

/// The number in CopiesText.
int CopiesIn(std::string_view text);

/// Names the page, the title and the printer in three lines.
std::string ProgressText(std::size_t page, std::string_view title, const PrinterDevice& device);

} // namespace Ledgrove
