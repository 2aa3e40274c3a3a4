// Reads any bytes as a picture file.

#include "Fuzz.h"

#include "reports/windows/Pictures.h"
#include "reports/windows/WmfPicture.h"

#include <QCoreApplication>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // Qt reports each broken picture on standard error.
    static const auto quiet =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    static_cast<void>(quiet);
    const auto bytes =
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    // Small, because the library also paints the picture and this target only tests reading.
    const QImage image = Ledgrove::IsWmf(bytes) ? Ledgrove::ReadWmf(bytes, 64) : Ledgrove::ReadPicture(bytes);
    const qint64 pixels = qint64{image.width()} * image.height();
    Ledgrove::Fuzz::Require(pixels <= 12'000'000, "no picture is huge");
    if (pixels <= 100'000)
        static_cast<void>(image.convertToFormat(QImage::Format_RGB32));
    return 0;
}
