#include "app/windows/ChangesList.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cctype>
#include <utility>

#include "app/batch/Comparison.h"
#include "app/files/ComparisonFile.h"
#include "app/files/ScreenInputs.h"
#include "base/Text.h"

namespace Ledgrove {

namespace {

constexpr const char* screenId = "screen";

/// Ids are never shown. A line break does not occur in what they are made of.
std::string IdOf(const std::string& file, const KeptVersion& version) {
    return file + '\n' + version.Name + '\n' + version.Kept;
}

std::string Texted(const KeptVersion& version) {
    return version.Kept.empty() ? version.Name : version.Name + " (" + version.Kept + ")";
}

std::string Refused(std::string name, const std::string& fault) {
    name[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(name[0])));
    return name + " cannot be compared: " + fault;
}

std::string LeftOut(const QString& file, std::size_t count) {
    return (count == 1 ? "A version" : std::to_string(count) + " versions") + " in " +
           Quoted(file.toStdString()) + " cannot be read and " + (count == 1 ? "is" : "are") +
           " not in the lists.";
}

} // namespace

ChangesList::ChangesList(const Session& session, const CurrentFile& file)
    : m_session(session)
    , m_current(file) {}

ChangesChoices ChangesList::Choices() const {
    ChangesChoices choices;
    for (Compared& compared : All())
        choices.All.push_back(std::move(compared.Choice));
    const KeptVersions& versions = m_current.Versions();
    choices.Usual = versions.empty() ? screenId : IdOf({}, versions.back());
    return choices;
}

ChangesAnswer ChangesList::Answer(const ChangesAsk& ask) const {
    const std::vector<Compared> all = All();
    const auto choice = [&all](const std::string& id) -> const Compared& {
        const auto found =
            std::ranges::find_if(all, [&id](const Compared& compared) { return compared.Choice.Id == id; });
        return found == all.end() ? all.front() : *found;
    };
    const Compared& from = choice(ask.From);
    const Compared& to = choice(ask.To);
    if (&from == &to)
        return {.Missing = "Nothing differs, because From and To are the same comparison: choose another one "
                           "for either of them."};
    const InputsResult a = ComparisonOf(from.Inputs, m_session, m_current.Start());
    const InputsResult b = ComparisonOf(to.Inputs, m_session, m_current.Start());
    if (!a.Fault.empty())
        return {.Missing = Refused(from.Name, a.Fault)};
    if (!b.Fault.empty())
        return {.Missing = Refused(to.Name, b.Fault)};
    return CompareSides({from.Name, &a.State}, {to.Name, &b.State}, ask.Figure);
}

ChangesList::Added ChangesList::Add(const QString& file) {
    if (IsUndecodable(file))
        return {UndecodableName(file), {}, {}};
    const std::filesystem::path path = QFile::encodeName(file).toStdString();
    Session read = m_session;
    CollectingHost unheard;
    if (const auto fault = OpenComparison(path, read, m_current.Start(), unheard))
        return {*fault, {}, {}};
    VersionsOfFile versions = VersionsIn(path);
    AddedFile added{QFileInfo(file).absoluteFilePath(), ScreenInputs(read.Screen),
                    std::move(versions.Versions)};
    const std::string id = added.Path.toStdString();
    std::erase_if(m_files, [&added](const AddedFile& old) { return old.Path == added.Path; });
    m_files.push_back(std::move(added));
    return {{}, versions.Unreadable > 0 ? LeftOut(file, versions.Unreadable) : "", id};
}

std::vector<ChangesList::Compared> ChangesList::All() const {
    std::vector<Compared> all{{{screenId, "The screen", "The comparison as it is now in the main window"},
                               "the screen",
                               ScreenInputs(m_session.Screen)}};
    for (const KeptVersion& version : m_current.Versions())
        all.push_back(
            {{IdOf({}, version), Texted(version), Texted(version)}, Quoted(version.Name), version.Inputs});
    for (const AddedFile& file : m_files)
        AppendFile(all, file);
    return all;
}

void ChangesList::AppendFile(std::vector<Compared>& all, const AddedFile& file) const {
    const std::string path = file.Path.toStdString();
    const std::string tip = QDir::toNativeSeparators(file.Path).toStdString();
    const std::string name = NameOf(file);
    all.push_back({{path, name, tip}, Quoted(name), file.Inputs});
    for (const KeptVersion& version : file.Versions) {
        const std::string text = name + ": " + version.Name;
        all.push_back(
            {{IdOf(path, version), text, tip + ": " + Texted(version)}, Quoted(text), version.Inputs});
    }
}

std::string ChangesList::NameOf(const AddedFile& file) const {
    const QString name = QFileInfo(file.Path).fileName();
    const auto count = std::ranges::count_if(
        m_files, [&name](const AddedFile& one) { return QFileInfo(one.Path).fileName() == name; });
    return (count == 1 ? name : QDir::toNativeSeparators(file.Path)).toStdString();
}

} // namespace Ledgrove
