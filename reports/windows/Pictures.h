#pragma once

#include <QByteArray>
#include <QImage>
#include <filesystem>
#include <map>
#include <tuple>

namespace Ledgrove {

/// Reads the picture in `bytes`. Its content, not its file name, determines the format: BMP (also
/// RLE-compressed), ICO (its largest image), WMF, PNG or JPEG (turned as its EXIF data say). Null for
/// anything else, and for a picture that is truncated, damaged or larger than 12 million pixels.
QImage ReadPicture(const QByteArray& bytes);

/// Reads the picture of a file; null if there is none. Files above 64 MB are not read.
QImage LoadPicture(const std::filesystem::path& file);

/// Keeps the pictures of one report as they look on its paper, so that each one is read only once for all
/// pages.
class PictureStore {
public:
    /// The picture with at most the pixels that a place of this size shows; the sides keep their proportions.
    const QImage& Load(const std::filesystem::path& file, const QSize& most);

private:
    using Key = std::tuple<std::filesystem::path, int, int>; ///< with the place's width and height
    std::map<Key, QImage> m_pictures;
};

} // namespace Ledgrove
