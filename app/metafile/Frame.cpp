#include "app/metafile/Frame.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <utility>

namespace Ledgrove {

namespace {

constexpr std::string_view placeableKey("\xD7\xCD\xC6\x9A");
constexpr std::size_t placeableSize = 22;
constexpr std::size_t headerSize = 18;
constexpr std::size_t recordHead = 6; ///< size in words, function

constexpr int setWindowOrigin = 0x020B;
constexpr int setWindowExtent = 0x020C;
constexpr int createPen = 0x02FA;
constexpr int selectObject = 0x012D;
constexpr int rectangle = 0x041B;
constexpr int endOfFile = 0;

/// The records that set the mapping: mode, window and viewport with their origins, offsets and scales.
constexpr std::array<int, 9> mappingFunctions{0x0103, setWindowOrigin, setWindowExtent, 0x020D, 0x020E,
                                              0x020F, 0x0211,          0x0410,          0x0412};

/// A number of `bytes` bytes, low byte first. The bytes must exist.
std::uint32_t NumberAt(std::string_view text, std::size_t at, std::size_t bytes) {
    std::uint32_t number = 0;
    for (std::size_t i = bytes; i-- > 0;)
        number = number << 8U | static_cast<unsigned char>(text[at + i]);
    return number;
}

int WordAt(std::string_view text, std::size_t at) {
    return static_cast<std::int16_t>(NumberAt(text, at, 2));
}

void Append(std::string& out, std::uint32_t number, std::size_t bytes) {
    for (; bytes > 0; --bytes, number >>= 8U)
        out += static_cast<char>(number & 0xFFU);
}

struct Area {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
};

/// The area between two corners in any order.
Area Between(int x1, int y1, int x2, int y2) {
    return {std::min(x1, x2), std::min(y1, y2), std::abs(x2 - x1), std::abs(y2 - y1)};
}

/// The first record of each function that sets the mapping, and the window that they set.
class Mapping {
public:
    explicit Mapping(std::string_view records) {
        while (records.size() >= recordHead) {
            const std::uint64_t size = std::uint64_t{2} * NumberAt(records, 0, 4);
            if (size < recordHead || size > records.size())
                return;
            Take(records.substr(0, size));
            records.remove_prefix(size);
        }
    }

    const std::string& Records() const { return m_records; }

    std::optional<Area> Window() const {
        if (m_width == 0 || m_height == 0)
            return std::nullopt;
        return Between(m_x, m_y, m_x + m_width, m_y + m_height);
    }

private:
    void Take(std::string_view record) {
        const int function = WordAt(record, 4);
        const auto* found = std::find(mappingFunctions.begin(), mappingFunctions.end(), function);
        if (found == mappingFunctions.end() ||
            std::exchange(m_seen[static_cast<std::size_t>(found - mappingFunctions.begin())], true))
            return;
        m_records += record;
        if (record.size() < recordHead + 4)
            return;
        const int y = WordAt(record, recordHead);
        const int x = WordAt(record, recordHead + 2);
        if (function == setWindowOrigin) {
            m_x = x;
            m_y = y;
        } else if (function == setWindowExtent) {
            m_width = x;
            m_height = y;
        }
    }

    std::string m_records;
    std::array<bool, mappingFunctions.size()> m_seen{};
    int m_x = 0;
    int m_y = 0;
    int m_width = 0;
    int m_height = 0;
};

/// Whether both are the same area, in different units.
bool DifferOnlyInUnits(const Area& frame, const Area& window) {
    const double scale = static_cast<double>(window.Width) / frame.Width;
    const double tolerance = 0.02 * std::max(window.Width, window.Height);
    const auto agree = [&](int length, int other) { return std::abs(length * scale - other) <= tolerance; };
    return agree(frame.Height, window.Height) && agree(frame.Left, window.Left) &&
           agree(frame.Top, window.Top);
}

std::string Record(int function, std::initializer_list<int> words) {
    std::string record;
    Append(record, static_cast<std::uint32_t>(recordHead / 2 + words.size()), 4);
    Append(record, static_cast<std::uint32_t>(function), 2);
    for (const int word : words)
        Append(record, static_cast<std::uint32_t>(word), 2);
    return record;
}

/// Draws the area without a pen, whose width would count.
std::string Filling(const Area& area) {
    constexpr int noPen = 5;
    return Record(createPen, {noPen, 0, 0, 0, 0}) + Record(selectObject, {0}) +
           Record(rectangle, {area.Top + area.Height, area.Left + area.Width, area.Top, area.Left});
}

} // namespace

std::string FrameMetafile(std::string_view metafile) {
    if (!metafile.starts_with(placeableKey) || metafile.size() < placeableSize + headerSize)
        return {};
    Area frame =
        Between(WordAt(metafile, 6), WordAt(metafile, 8), WordAt(metafile, 10), WordAt(metafile, 12));
    if (frame.Width == 0 || frame.Height == 0)
        return {};
    const Mapping mapping(metafile.substr(placeableSize + headerSize));
    const std::optional<Area> window = mapping.Window();
    // Players fit the window to the frame, whatever the units of the frame are.
    if (window && DifferOnlyInUnits(frame, *window))
        frame = *window;
    const std::string records = mapping.Records() + Filling(frame) + Record(endOfFile, {});

    std::string result(metafile.substr(0, placeableSize + 6)); // with the header's type, size and version
    Append(result, static_cast<std::uint32_t>((headerSize + records.size()) / 2), 4);
    Append(result, 1, 2);                                              // objects
    Append(result, static_cast<std::uint32_t>(records.size() / 2), 4); // no record is longer
    Append(result, 0, 2);
    return result + records;
}

} // namespace Ledgrove
