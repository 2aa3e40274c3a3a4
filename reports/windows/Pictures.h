#pragma once

#include <QByteArray>
#include <QImage>
#include <filesystem>
#include <map>

namespace Ledgrove {

/// Reads the picture in `bytes`. Its content, not its file name, determines the format: BMP (also
/// RLE-compressed), ICO (its largest image), WMF or PNG. Null for anything else, and for a picture that is
/// truncated, damaged or larger than 12 million pixels.
QImage ReadPicture(const QByteArray& bytes);

/// Reads the picture of a file; null if there is none. Files above 64 MB are not read.
QImage LoadPicture(const std::filesystem::path& file);

/// Keeps the pictures of one report as they look on its paper, so that each one is read only once for all
/// pages.
class PictureStore {
public:
    const QImage& Load(const std::filesystem::path& file);

private:
    std::map<std::filesystem::path, QImage> m_pictures;
};

} // namespace Ledgrove
