#pragma once

#include <QByteArray>
#include <QImage>
#include <filesystem>
#include <map>

namespace Ledgrove {

/// The picture in `bytes`, told by its content whatever its file was called: BMP (RLE-compressed too), ICO
/// (its largest image), WMF, PNG. Null for anything else, and for a picture that is cut short, damaged or
/// larger than 12 million pixels.
QImage ReadPicture(const QByteArray& bytes);

/// The picture of a file, null where there is none. Files above 64 MB are not read.
QImage LoadPicture(const std::filesystem::path& file);

/// Keeps the pictures of one report as they look on its paper, so that each is read once for all its pages.
class PictureStore {
public:
    const QImage& Load(const std::filesystem::path& file);

private:
    std::map<std::filesystem::path, QImage> m_pictures;
};

} // namespace Ledgrove
