#include "reports/windows/WmfPicture.h"

#include "base/ProgramFolder.h"

#include <QProcess>
#include <QtEndian>

namespace Ledgrove {

namespace {

constexpr int mostMilliseconds = 1500;

QString Player() {
    return QString::fromStdString((ProgramFolder() / "ledgrove-metafile").string());
}

} // namespace

bool IsWmf(const QByteArray& bytes) {
    constexpr qsizetype headerSize = 18;
    if (bytes.startsWith("\xD7\xCD\xC6\x9A")) // placeable
        return true;
    // A plain header: type 1 or 2, length 9 words, version 1.0 or 3.0.
    if (bytes.size() < headerSize)
        return false;
    const auto word = [&bytes](qsizetype at) { return qFromLittleEndian<quint16>(bytes.constData() + at); };
    return (word(0) == 1 || word(0) == 2) && word(2) == 9 && (word(4) == 0x0100 || word(4) == 0x0300);
}

QImage ReadWmf(const QByteArray& bytes, int longestSide) {
    QProcess player;
    player.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    player.start(Player(), {QString::number(longestSide)});
    player.write(bytes);
    player.closeWriteChannel();
    if (!player.waitForFinished(mostMilliseconds)) {
        player.kill();
        player.waitForFinished();
        return {};
    }
    if (player.exitStatus() != QProcess::NormalExit || player.exitCode() != 0)
        return {};
    return QImage::fromData(player.readAllStandardOutput(), "png");
}

} // namespace Ledgrove
