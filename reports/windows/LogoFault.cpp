#include "reports/windows/LogoFault.h"

#include "base/FileKind.h"
#include "base/Text.h"
#include "reports/modPrint.h"
#include "reports/windows/Pictures.h"

#include <QFile>
#include <filesystem>
#include <system_error>

namespace Ledgrove {

namespace {

std::string WhyUnread(const std::filesystem::path& path) {
    std::error_code fault;
    if (!std::filesystem::exists(path, fault))
        return fault ? fault.message() : "there is no such file";
    if (const std::string reason = NotAFile(path); !reason.empty())
        return reason;
    QFile file(QString::fromStdString(path.string()));
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString().toStdString();
    return "it is not a picture that can be read (BMP, RLE, ICO, WMF, PNG or JPEG)";
}

} // namespace

std::string LogoFault(const Session& session, int logoOption) {
    constexpr int usersFile = 2;
    const std::filesystem::path path = LogoPicture(session, logoOption);
    if (path.empty())
        return logoOption == usersFile ? "The report was written without a logo: no file is chosen for it "
                                         "(LOGOFILE in Ledgrove.ini)."
                                       : "";
    if (!LoadPicture(path).isNull())
        return {};
    return "The report was written without the logo " + Quoted(path.string()) + ": " + WhyUnread(path) + ".";
}

} // namespace Ledgrove
