#include "app/windows/LastChoices.h"

#include <QSettings>
#include <utility>

namespace Ledgrove {

namespace {

constexpr const char* sectionsKey = "ReportSections";
constexpr const char* paperKey = "ExportPaper";

} // namespace

LastChoices::LastChoices(QString store)
    : m_store(std::move(store)) {}

ReportSections LastChoices::Sections() const {
    return RememberedSections(Stored(sectionsKey));
}

void LastChoices::KeepSections(const ReportSections& sections) const {
    Store(sectionsKey, NamesOf(sections));
}

ReportPaper LastChoices::Paper() const {
    return RememberedPaper(Stored(paperKey));
}

void LastChoices::KeepPaper(const ReportPaper& paper) const {
    Store(paperKey, NamesOf(paper));
}

std::string LastChoices::Stored(const char* key) const {
    // Read again each time, because another window of the program may have stored a choice.
    return QSettings(m_store, QSettings::IniFormat).value(key).toString().toStdString();
}

void LastChoices::Store(const char* key, const std::string& words) const {
    QSettings(m_store, QSettings::IniFormat).setValue(key, QString::fromStdString(words));
}

SectionMemory SectionsIn(const LastChoices& choices) {
    return {[choices] { return choices.Sections(); },
            [choices](const ReportSections& sections) { choices.KeepSections(sections); }};
}

} // namespace Ledgrove
