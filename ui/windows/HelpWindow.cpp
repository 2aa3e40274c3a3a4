#include "ui/windows/HelpWindow.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>
#include <QVBoxLayout>

namespace Ledgrove {

HelpWindow::HelpWindow(QWidget* parent)
    : QWidget(parent, Qt::Window)
    , m_browser(new QTextBrowser(this)) {
    setObjectName("HelpWindow");
    setWindowTitle("Ledgrove Help");
    m_browser->setAccessibleName("Help");
    m_browser->setOpenExternalLinks(false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_browser);
    resize(720, 560);
}

void HelpWindow::ShowTopic(const QString& path, const QString& anchor) {
    QUrl topic = QUrl::fromLocalFile(path);
    topic.setFragment(anchor);
    m_browser->setSource(topic, QTextDocument::HtmlResource);
    show();
    raise();
    activateWindow();
    m_browser->setFocus();
}

QString HelpFilePath(const std::filesystem::path& folder, const std::string& name) {
    const QDir place(QString::fromStdString(folder.string()));
    return QDir::cleanPath(place.absoluteFilePath(QString::fromStdString(name)));
}

std::optional<std::string> HelpComplaint(const std::filesystem::path& folder, const std::string& name) {
    if (QString::fromStdString(name).trimmed().isEmpty())
        return "There is no help because no help file is named. Write its name behind HELPFILE= in "
               "Ledgrove.ini, which lies in " +
               folder.string() + ".";
    const QString path = HelpFilePath(folder, name);
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const std::string quoted = '"' + name + '"';
    const std::string place = QFileInfo(path).absolutePath().toStdString();
    if (!QFileInfo::exists(path))
        return "The help file " + quoted + " is missing. It was looked for in " + place +
               ". Put it there, or name another one behind HELPFILE= in Ledgrove.ini.";
    return "The help file " + quoted + " in " + place +
           " cannot be read: " + file.errorString().toStdString() + ".";
}

void Help::Open(const QString& anchor) {
    if (const auto complaint = HelpComplaint(m_session.Folder, m_session.HelpFile)) {
        m_outside.ShowMessage({ApplicationTitle, *complaint, MessageIcon::Exclamation});
        return;
    }
    if (!m_window)
        m_window = new HelpWindow(&m_owner);
    m_window->ShowTopic(HelpFilePath(m_session.Folder, m_session.HelpFile), anchor);
}

} // namespace Ledgrove
