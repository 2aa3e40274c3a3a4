#pragma once

#include <QString>

#include "reports/ReportChoices.h"

namespace Ledgrove {

/// What the user chose last for reports. It is stored with the recent files, under keys of its own. If a
/// choice cannot be stored, it is lost when the program ends.
class LastChoices {
public:
    /// `store` is the file with the choices.
    explicit LastChoices(QString store);

    /// The ticked sections of the last preview; all of them if there was none, or if the stored text is
    /// damaged.
    ReportSections Sections() const;
    void KeepSections(const ReportSections& sections) const;

    /// The paper of the last exported report; letter paper in portrait if there was none, or if the stored
    /// text is damaged.
    ReportPaper Paper() const;
    void KeepPaper(const ReportPaper& paper) const;

private:
    std::string Stored(const char* key) const;
    void Store(const char* key, const std::string& words) const;

    QString m_store;
};

/// The sections of the report selection in this store.
SectionMemory SectionsIn(const LastChoices& choices);

} // namespace Ledgrove
