#include "reports/PrintDocument.h"

#include "base/Text.h"
#include "reports/TextWrap.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Ledgrove {

namespace {

/// The distance between text and a picture next to it.
constexpr Twips pictureGap = 120;

/// The three parts of a footer, separated by "|".
std::array<std::string, 3> FooterParts(std::string_view footer, std::size_t pageNumber) {
    std::array<std::string, 3> parts;
    std::size_t part = 0;
    for (std::size_t at = 0; at < footer.size(); ++at) {
        if (footer[at] == '|' && part < 2) {
            ++part;
        } else if (footer.substr(at, 2) == "%d") {
            parts[part] += std::to_string(pageNumber);
            ++at;
        } else {
            parts[part] += footer[at];
        }
    }
    return parts;
}

} // namespace

PageGeometry Oriented(const PageGeometry& portrait, PageOrientation orientation) {
    PageGeometry turned = portrait;
    if (orientation == PageOrientation::Landscape)
        std::swap(turned.PageWidth, turned.PageHeight);
    return turned;
}

PrintDocument::PrintDocument(const TextMeasure& measure)
    : m_measure(measure) {}

TextStyle PrintDocument::CurrentStyle() const {
    return {FontName, FontSize, FontBold, FontItalic, FontUnderline, TextColor};
}

void PrintDocument::Start() {
    m_pages.clear();
    m_bookmarks.clear();
    m_state = State::Open;
    NewPage();
}

bool PrintDocument::End() {
    if (m_state != State::Open)
        return false;
    for (std::size_t number = 1; number <= m_pages.size(); ++number)
        AddFooter(m_pages[number - 1], number);
    m_state = State::Ended;
    return true;
}

bool PrintDocument::NewPage() {
    if (m_state != State::Open)
        return false;
    m_pages.emplace_back();
    m_picturesOnPage.clear();
    m_openLine.clear();
    m_table.reset();
    m_covered = 0;
    CurrentX = Geometry.MarginLeft;
    CurrentY = Geometry.MarginTop;
    if (Heading && m_pages.size() > 1)
        WriteHeading();
    return true;
}

void PrintDocument::WriteHeading() {
    const PrintAttributes before = *this;
    // Taken away meanwhile, so that its own height does not count as a heading's.
    const auto heading = std::exchange(Heading, nullptr);
    heading(*this);
    Heading = heading;
    const Twips below = CurrentY;
    PrintAttributes::operator=(before);
    CurrentY = below;
}

Twips PrintDocument::PageRoom() const {
    return BottomLimit() - Geometry.MarginTop - (Heading ? HeightOf(Heading) : 0);
}

PrintDocument::Limits PrintDocument::LineLimits(Twips height) const {
    Limits limits{Geometry.MarginLeft, Geometry.PageWidth - Geometry.MarginRight};
    const Twips centre = (limits.Left + limits.Right) / 2;
    for (const PrintBox& picture : m_picturesOnPage) {
        if (picture.Y2 <= CurrentY || picture.Y1 >= CurrentY + height)
            continue;
        if ((picture.X1 + picture.X2) / 2 < centre)
            limits.Left = std::max(limits.Left, picture.X2 + pictureGap);
        else
            limits.Right = std::min(limits.Right, picture.X1 - pictureGap);
    }
    if (TextAlign == 1) {
        const Twips half = std::min(centre - limits.Left, limits.Right - centre);
        limits = {centre - half, centre + half};
    }
    return limits;
}

void PrintDocument::MakeRoom(Twips height) {
    if (CurrentY + height > BottomLimit() && CurrentY > Geometry.MarginTop)
        NewPage();
}

void PrintDocument::CentreOpenLine() {
    Twips width = 0;
    for (const std::size_t item : m_openLine)
        width += std::get<TextRun>(CurrentPage()[item]).Width;
    const Limits limits = LineLimits(m_measure.LineHeight(CurrentStyle()));
    Twips x = (limits.Left + limits.Right - width) / 2;
    for (const std::size_t item : m_openLine) {
        auto& run = std::get<TextRun>(CurrentPage()[item]);
        run.X = x;
        x += run.Width;
    }
    CurrentX = x;
}

void PrintDocument::PlaceOnLine(std::string_view text) {
    const TextStyle style = CurrentStyle();
    const Twips left = LineLimits(m_measure.LineHeight(style)).Left;
    const Twips x = m_openLine.empty() ? std::max(CurrentX, left) : CurrentX;
    const Twips width = m_measure.Width(text, style);
    m_openLineTop = CurrentY;
    m_openLine.push_back(CurrentPage().size());
    CurrentPage().push_back(
        TextRun{x, CurrentY, CurrentY + m_measure.Ascent(style), width, std::string(text), style});
    CurrentX = x + width;
    Covers(CurrentY + m_measure.LineHeight(style));
    if (TextAlign == 1)
        CentreOpenLine();
}

void PrintDocument::EndLine() {
    Twips height = m_measure.LineHeight(CurrentStyle());
    for (const std::size_t item : m_openLine)
        height = std::max(height, m_measure.LineHeight(std::get<TextRun>(CurrentPage()[item]).Style));
    m_openLine.clear();
    CurrentX = Geometry.MarginLeft;
    CurrentY += height;
}

bool PrintDocument::Text(std::string_view text) {
    if (m_state != State::Open)
        return false;
    const TextStyle style = CurrentStyle();
    const Twips height = m_measure.LineHeight(style);
    // If the pen was moved, the open line ends.
    if (m_openLineTop != CurrentY)
        m_openLine.clear();
    if (m_openLine.empty())
        MakeRoom(height);
    const Limits limits = LineLimits(height);
    if (!m_openLine.empty() && CurrentX + m_measure.Width(text, style) > limits.Right)
        EndLine();
    const auto lines = WrapText(text, std::max(limits.Right - limits.Left, 1), style, m_measure);
    for (const std::string& line : lines) {
        if (&line != &lines.front()) {
            EndLine();
            MakeRoom(height);
        }
        PlaceOnLine(line);
    }
    return true;
}

bool PrintDocument::Paragraph(std::string_view text) {
    if (m_state != State::Open)
        return false;
    if (m_openLineTop != CurrentY)
        m_openLine.clear();
    if (!IsBlank(text))
        Text(text);
    EndLine();
    return true;
}

bool PrintDocument::DrawRectangle(const PrintBox& box) {
    if (m_state != State::Open)
        return false;
    CurrentPage().push_back(FilledRectangle{box, BrushColor});
    Covers(box.Y2);
    return true;
}

bool PrintDocument::Picture(const std::filesystem::path& file, const PrintBox& box) {
    if (m_state != State::Open)
        return false;
    CurrentPage().push_back(PlacedPicture{box, file});
    m_picturesOnPage.push_back(box);
    Covers(box.Y2);
    return true;
}

bool PrintDocument::Chart(std::shared_ptr<const ChartFigures> figures, Twips width, Twips height) {
    if (m_state != State::Open)
        return false;
    MakeRoom(height);
    m_openLine.clear();
    const Twips left = Geometry.MarginLeft;
    const PrintBox box{left, CurrentY, left + std::min(width, LineWidth()), CurrentY + height};
    CurrentPage().push_back(PlacedChart{box, std::move(figures), CurrentStyle()});
    Covers(box.Y2);
    CurrentX = left;
    CurrentY = box.Y2;
    return true;
}

bool PrintDocument::AddBookmark(std::string_view title) {
    if (m_state != State::Open)
        return false;
    m_bookmarks.push_back({std::string(title), PageCount(), CurrentY});
    return true;
}

void PrintDocument::Covers(Twips bottom) {
    m_covered = std::max(m_covered, bottom);
}

Twips PrintDocument::HeightOf(const std::function<void(PrintDocument& trial)>& write) const {
    constexpr Twips endless = 1'000'000'000;
    PrintDocument trial(m_measure);
    trial.PrintAttributes::operator=(*this);
    trial.Geometry.PageHeight = endless;
    trial.Start();
    const Twips top = trial.CurrentY;
    write(trial);
    return std::max(trial.m_covered - top, 0);
}

void PrintDocument::AddFooter(PrintPage& page, std::size_t number) const {
    if (Footer.empty())
        return;
    const auto parts = FooterParts(Footer, number);
    const Twips top = BottomLimit() + (Geometry.MarginBottom - m_measure.LineHeight(FooterFont)) / 2;
    const Twips left = Geometry.MarginLeft;
    const Twips right = Geometry.PageWidth - Geometry.MarginRight;
    for (std::size_t part = 0; part < parts.size(); ++part) {
        if (parts[part].empty())
            continue;
        const Twips width = m_measure.Width(parts[part], FooterFont);
        const Twips x = part == 0 ? left : part == 1 ? (left + right - width) / 2 : right - width;
        page.push_back(TextRun{x, top, top + m_measure.Ascent(FooterFont), width, parts[part], FooterFont});
    }
}

} // namespace Ledgrove
