#include "reports/windows/WmfPicture.h"

#include "base/ProgramFolder.h"
#include "reports/windows/WmfCheck.h"

#include <QProcess>

namespace Ledgrove {

namespace {

constexpr int mostMilliseconds = 1500;

QString Player() {
    return QString::fromStdString((ProgramFolder() / "ledgrove-metafile").string());
}

} // namespace

QImage ReadWmf(const QByteArray& bytes, int longestSide) {
    if (!CheckWmf(bytes))
        return {};
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
