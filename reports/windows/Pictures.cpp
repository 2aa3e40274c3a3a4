#include "reports/windows/Pictures.h"

#include "reports/windows/BmpCheck.h"
#include "reports/windows/JpegCheck.h"
#include "reports/windows/WmfPicture.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QtEndian>
#include <algorithm>

namespace Ledgrove {

namespace {

constexpr qint64 largestFile = 64LL * 1024 * 1024;

qint64 PixelsOf(const QSize& size) {
    return qint64{std::max(size.width(), 0)} * std::max(size.height(), 0);
}

/// The limit of pixels for a file of this size. Each pixel may use nine bytes on its way to the page, and a
/// small file cannot hold a photograph, whatever it claims.
qint64 MostPixels(qsizetype fileSize) {
    constexpr qsizetype smallFile = 4 * 1024;
    return fileSize < smallFile ? 4LL * 1000 * 1000 : 12LL * 1000 * 1000;
}

bool IsSensible(const QSize& size, qsizetype fileSize) {
    return PixelsOf(size) > 0 && PixelsOf(size) <= MostPixels(fileSize);
}

/// A reader for this format only. If QImageReader detected the format, it would load all format plug-ins and
/// pass the bytes to each.
struct PictureReader : QImageReader {
    PictureReader(QIODevice* device, const char* format)
        : QImageReader(device, format) {
        setAutoDetectImageFormat(false);
    }
};

/// Checks the size of the reader's current image and reads it.
QImage ReadCurrent(QImageReader& reader, qsizetype fileSize) {
    return IsSensible(reader.size(), fileSize) ? reader.read() : QImage();
}

QImage ReadBmp(const QByteArray& bytes) {
    const auto header = CheckBmp(bytes);
    if (!header || !IsSensible(header->Size, bytes.size()))
        return {};
    QBuffer buffer;
    buffer.setData(bytes);
    PictureReader reader(&buffer, "bmp");
    if (!header->RunLengthEncoded)
        return ReadCurrent(reader, bytes.size());
    // Runs may skip pixels. Qt draws into the given image, so it starts as background.
    QImage image(header->Size, QImage::Format_Indexed8);
    image.fill(0);
    return reader.read(&image) ? image : QImage();
}

constexpr qsizetype iconHead = 6;
constexpr qsizetype iconEntry = 16;

/// The pixels of an icon's image, whose directory entry must exist. If the image is a PNG, its own header
/// counts, because the directory says little about it.
qint64 IconPixels(const QByteArray& bytes, int index, const QSize& told) {
    const qsizetype entry = iconHead + iconEntry * index;
    const qint64 offset = qFromLittleEndian<quint32>(bytes.constData() + entry + 12);
    constexpr int pngHead = 24; // up to the end of its height
    if (offset + pngHead > bytes.size() || !bytes.mid(offset, 4).startsWith("\x89PNG"))
        return PixelsOf(told);
    const auto side = [&](qint64 at) {
        return std::min<qint64>(qFromBigEndian<quint32>(bytes.constData() + offset + at), 1 << 30);
    };
    return std::max(PixelsOf(told), side(16) * side(20));
}

QImage ReadLargestIcon(const QByteArray& bytes) {
    QBuffer buffer;
    buffer.setData(bytes);
    PictureReader reader(&buffer, "ico");
    QImage largest;
    // A few bytes may claim thousands of images, and a directory may name the same image a thousand times.
    constexpr qsizetype mostImages = 256;
    const auto count = static_cast<int>(
        std::min({qsizetype{reader.imageCount()}, (bytes.size() - iconHead) / iconEntry, mostImages}));
    qint64 pixelsLeft = MostPixels(bytes.size()); // for all images together
    for (int index = 0; index < count; ++index) {
        if (!reader.jumpToImage(index))
            continue;
        const qint64 pixels = IconPixels(bytes, index, reader.size());
        if (pixels <= 0 || pixels > pixelsLeft)
            continue;
        pixelsLeft -= pixels;
        const QImage image = reader.read();
        if (PixelsOf(image.size()) > PixelsOf(largest.size()))
            largest = image;
    }
    return largest;
}

QImage ReadPng(const QByteArray& bytes) {
    QBuffer buffer;
    buffer.setData(bytes);
    PictureReader reader(&buffer, "png");
    return ReadCurrent(reader, bytes.size());
}

QImage ReadJpeg(const QByteArray& bytes) {
    if (!IsWholeJpeg(bytes))
        return {};
    QBuffer buffer;
    buffer.setData(bytes);
    PictureReader reader(&buffer, "jpeg");
    reader.setAutoTransform(true); // cameras save a photograph as the sensor sees it, and how it was held
    return ReadCurrent(reader, bytes.size());
}

} // namespace

QImage ReadPicture(const QByteArray& bytes) {
    if (bytes.startsWith("BM"))
        return ReadBmp(bytes);
    if (bytes.startsWith(QByteArray::fromRawData("\0\0\1\0", 4)))
        return ReadLargestIcon(bytes);
    if (bytes.startsWith("\x89PNG"))
        return ReadPng(bytes);
    if (IsJpeg(bytes))
        return ReadJpeg(bytes);
    if (IsWmf(bytes))
        return ReadWmf(bytes);
    return {};
}

QImage LoadPicture(const std::filesystem::path& path) {
    QFile file(QString::fromStdString(path.string()));
    // A pipe or a device may never end.
    std::error_code fault;
    if (!std::filesystem::is_regular_file(path, fault) || file.size() > largestFile ||
        !file.open(QIODevice::ReadOnly))
        return {};
    return ReadPicture(file.readAll());
}

namespace {

/// Pages are white. A PDF file would store the transparency as a second picture.
QImage OnPaper(const QImage& picture) {
    if (!picture.hasAlphaChannel())
        return picture;
    QImage paper(picture.size(), QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter(&paper).drawImage(0, 0, picture);
    return paper;
}

/// The picture, made smaller if it does not fit.
QImage Within(const QSize& most, const QImage& picture) {
    if (picture.width() <= most.width() && picture.height() <= most.height())
        return picture;
    return picture.scaled(most, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace

const QImage& PictureStore::Load(const std::filesystem::path& file, const QSize& most) {
    const Key key(file, most.width(), most.height());
    const auto found = m_pictures.find(key);
    if (found != m_pictures.end())
        return found->second;
    return m_pictures.emplace(key, Within(most, OnPaper(LoadPicture(file)))).first->second;
}

} // namespace Ledgrove
