#include "reports/windows/Pictures.h"

#include "reports/windows/BmpCheck.h"
#include "reports/windows/WmfCheck.h"
#include "reports/windows/WmfPicture.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>

namespace Ledgrove {

namespace {

constexpr qint64 largestFile = 64LL * 1024 * 1024;
constexpr qint64 mostPixels = 12LL * 1000 * 1000; // 48 MB at four bytes a pixel

bool IsSensible(const QSize& size) {
    return size.width() > 0 && size.height() > 0 && qint64{size.width()} * size.height() <= mostPixels;
}

/// Reads the image that the reader stands at, after a look at its size.
QImage ReadCurrent(QImageReader& reader) {
    return IsSensible(reader.size()) ? reader.read() : QImage();
}

QImage ReadBmp(const QByteArray& bytes) {
    const auto header = CheckBmp(bytes);
    if (!header || !IsSensible(header->Size))
        return {};
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer, "bmp");
    if (!header->RunLengthEncoded)
        return ReadCurrent(reader);
    // Runs may leave pixels out; Qt draws them into the image it is given, and this one is all background.
    QImage image(header->Size, QImage::Format_Indexed8);
    image.fill(0);
    return reader.read(&image) ? image : QImage();
}

QImage ReadLargestIcon(const QByteArray& bytes) {
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer, "ico");
    QImage largest;
    for (int index = 0; index < reader.imageCount(); ++index) {
        if (!reader.jumpToImage(index))
            continue;
        const QImage image = ReadCurrent(reader);
        if (qint64{image.width()} * image.height() > qint64{largest.width()} * largest.height())
            largest = image;
    }
    return largest;
}

QImage ReadPng(const QByteArray& bytes) {
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer, "png");
    return ReadCurrent(reader);
}

} // namespace

QImage ReadPicture(const QByteArray& bytes) {
    if (bytes.startsWith("BM"))
        return ReadBmp(bytes);
    if (bytes.startsWith(QByteArray::fromRawData("\0\0\1\0", 4)))
        return ReadLargestIcon(bytes);
    if (bytes.startsWith("\x89PNG"))
        return ReadPng(bytes);
    if (IsWmf(bytes))
        return ReadWmf(bytes);
    return {};
}

QImage LoadPicture(const std::filesystem::path& path) {
    QFile file(QString::fromStdString(path.string()));
    // A pipe or a device has no end to read to.
    std::error_code fault;
    if (!std::filesystem::is_regular_file(path, fault) || file.size() > largestFile ||
        !file.open(QIODevice::ReadOnly))
        return {};
    return ReadPicture(file.readAll());
}

const QImage& PictureStore::Load(const std::filesystem::path& file) {
    const auto found = m_pictures.find(file);
    return found != m_pictures.end() ? found->second
                                     : m_pictures.emplace(file, LoadPicture(file)).first->second;
}

} // namespace Ledgrove
