#include "reports/TableBands.h"

#include <algorithm>

namespace Ledgrove {

namespace {

using Kind = TableBand::Kind;

/// The fewest rows that may stand alone on a page.
constexpr std::size_t fewestRows = 2;

class TableBreaker {
public:
    TableBreaker(const std::vector<TableBand>& bands, const TableRoom& room)
        : m_bands(bands)
        , m_room(room)
        , m_left(room.Here)
        , m_freshPage(room.Here >= room.Page) {}

    std::vector<BandsOfPage> Pages() {
        for (std::size_t first = 0; first < m_bands.size();) {
            std::size_t last = first + 1;
            while (last < m_bands.size() && !m_bands[last].MayBreak)
                ++last;
            AddPart(first, last);
            first = last;
        }
        return std::move(m_pages);
    }

private:
    bool IsRowOrMore(std::size_t band) const {
        return m_bands[band].Is == Kind::Row || m_bands[band].Is == Kind::More;
    }
    bool IsBlank(std::size_t band) const { return m_bands[band].Is == Kind::Blank; }

    /// Without the empty rows at the end.
    Twips HeightOf(std::size_t first, std::size_t last) const {
        while (last > first && IsBlank(last - 1))
            --last;
        Twips height = 0;
        for (; first < last; ++first)
            height += m_bands[first].Height;
        return height;
    }

    /// The lines of a long row count as rows: two of them may stand on a page.
    std::size_t RowsIn(std::size_t first, std::size_t last) const {
        std::size_t rows = 0;
        for (; first < last; ++first)
            rows += IsRowOrMore(first) ? 1 : 0;
        return rows;
    }

    std::size_t SkipBlanks(std::size_t band, std::size_t last) const {
        while (band < last && IsBlank(band))
            ++band;
        return band;
    }

    void Put(std::size_t first, std::size_t last) {
        for (; first < last; ++first) {
            m_pages.back().push_back(first);
            m_left -= m_bands[first].Height;
            if (m_bands[first].Is == Kind::Title && !m_repeating)
                m_titles.push_back(first);
        }
    }

    void PutAgain(const BandsOfPage& bands) {
        m_repeating = true;
        for (const std::size_t band : bands)
            Put(band, band + 1);
        m_repeating = false;
    }

    void StartPage() {
        m_pages.emplace_back();
        m_left = m_room.Page;
        m_freshPage = true;
        PutAgain(m_titles);
    }

    Twips TitleHeight() const {
        Twips height = 0;
        for (const std::size_t title : m_titles)
            height += m_bands[title].Height;
        return height;
    }

    /// Adds the bands from `first` to before `last`, whole if they fit on a page.
    void AddPart(std::size_t first, std::size_t last) {
        const Twips height = HeightOf(first, last);
        if (height > m_left) {
            if (!m_room.KeepWhole || TitleHeight() + HeightOf(SkipBlanks(first, last), last) > m_room.Page)
                return Split(first, last);
            StartPage();
            first = SkipBlanks(first, last);
        }
        Put(first, last);
        m_freshPage = false;
    }

    /// Adds a part that is longer than a page.
    void Split(std::size_t first, std::size_t last) {
        std::size_t row = first;
        while (row < last && m_bands[row].Is != Kind::Row)
            ++row;
        BandsOfPage headings;
        for (std::size_t band = first; band < row; ++band)
            if (m_bands[band].Is == Kind::Heading)
                headings.push_back(band);
        if (!m_freshPage && HeightOf(first, EndOfRows(row, last, fewestRows)) > m_left) {
            StartPage();
            first = SkipBlanks(first, last);
        }
        Put(first, row);
        for (;;) {
            const std::size_t end = EndOnPage(row, last);
            Put(row, end);
            m_freshPage = false;
            row = SkipBlanks(end, last);
            if (row == last)
                return Put(end, last); // the empty rows at the end
            StartPage();
            PutAgain(headings);
        }
    }

    /// The end of the first `count` rows, or of all.
    std::size_t EndOfRows(std::size_t row, std::size_t last, std::size_t count) const {
        while (row < last && count > 0)
            count -= IsRowOrMore(row++) ? 1 : 0;
        return row;
    }

    /// The end of the rows that go on the current page: as many as fit, but at least one, so that each page
    /// takes something.
    std::size_t EndOnPage(std::size_t row, std::size_t last) const {
        std::size_t end = row + 1;
        while (end < last && HeightOf(row, end + 1) <= m_left)
            ++end;
        while (RowsIn(end, last) > 0 && RowsIn(end, last) < fewestRows && RowsIn(row, end) > fewestRows)
            --end;
        return end;
    }

    const std::vector<TableBand>& m_bands;
    TableRoom m_room;
    Twips m_left;
    bool m_freshPage; ///< nothing but repeated heads on the current page
    bool m_repeating = false;
    BandsOfPage m_titles;
    std::vector<BandsOfPage> m_pages{1};
};

} // namespace

std::vector<BandsOfPage> BreakTable(const std::vector<TableBand>& bands, const TableRoom& room) {
    return TableBreaker(bands, room).Pages();
}

} // namespace Ledgrove
