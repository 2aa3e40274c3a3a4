#include "ui/windows/HelpFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

namespace Ledgrove {

namespace {

constexpr qint64 longestHelp = 16 * 1024 * 1024;

/// A byte that does not occur in text in the encodings of HTML.
bool IsRubbish(char byte) {
    const auto code = static_cast<unsigned char>(byte);
    return code < ' ' && byte != '\t' && byte != '\n' && byte != '\r' && byte != '\f';
}

/// The fault of an existing file, or "".
QString FaultOf(const QFileInfo& info) {
    // Other kinds of file, such as a pipe, might never end.
    if (info.isDir())
        return "cannot be read: it is a folder";
    if (!info.isFile())
        return "cannot be read: it is not an ordinary file";
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly))
        return "cannot be read: " + file.errorString();
    if (file.size() > longestHelp)
        return "is too large for a help file";
    const QByteArray content = file.readAll();
    if (content.trimmed().isEmpty())
        return "is empty";
    if (std::any_of(content.begin(), content.end(), IsRubbish))
        return "holds no text: it is damaged or is another kind of file";
    return {};
}

} // namespace

QString HelpFilePath(const std::filesystem::path& folder, const std::string& name) {
    const QDir place(QString::fromStdString(folder.string()));
    return QDir::cleanPath(place.absoluteFilePath(QString::fromStdString(name)));
}

std::optional<std::string> HelpComplaint(const std::filesystem::path& folder, const std::string& name) {
    if (QString::fromStdString(name).trimmed().isEmpty())
        return "There is no help because no help file is named. Write its name after HELPFILE= in "
               "Ledgrove.ini, in the folder " +
               folder.string() + ".";
    const QFileInfo info(HelpFilePath(folder, name));
    const std::string quoted = '"' + name + '"';
    const std::string place = info.absolutePath().toStdString();
    if (!info.exists())
        return "The help file " + quoted + " is missing. Put it into " + place +
               ", or name another one after HELPFILE= in Ledgrove.ini.";
    const QString fault = FaultOf(info);
    if (fault.isEmpty())
        return std::nullopt;
    return "The help file " + quoted + " in " + place + ' ' + fault.toStdString() +
           ". Copy the one that came with the program there, or name another one after HELPFILE= in "
           "Ledgrove.ini.";
}

} // namespace Ledgrove
