#include "reports/windows/WmfPicture.h"

#include "reports/windows/WmfCheck.h"

#include <QProcess>
#include <filesystem>

namespace Ledgrove {

namespace {

constexpr int mostMilliseconds = 1500;

/// In the folder of the running program.
QString Player() {
    std::error_code fault;
    const auto self = std::filesystem::read_symlink("/proc/self/exe", fault);
    return QString::fromStdString((self.parent_path() / "ledgrove-metafile").string());
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
