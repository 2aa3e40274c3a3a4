#pragma once

#include <string>
#include <vector>

#include "app/windows/CurrentFile.h"
#include "ui/windows/ChangesWindow.h"

namespace Ledgrove {

/// The comparisons that the window "What changed?" can compare: the screen, the kept versions of the open
/// comparison, and the files that were added with their versions.
class ChangesList {
public:
    /// Both must outlive the object.
    ChangesList(const Session& session, const CurrentFile& file);

    ChangesChoices Choices() const;

    /// Compares with the session's assumptions. A choice that is gone counts as the screen.
    ChangesAnswer Answer(const ChangesAsk& ask) const;

    struct Added {
        std::string Fault; ///< why the file was not added, as a sentence; empty if it was
        std::string Note;  ///< what could not be read of it, as a sentence; empty if nothing
        std::string Id;    ///< of the file's comparison
    };
    /// Reads a file and adds it, or reads it again.
    Added Add(const QString& file);

private:
    struct Compared {
        ChangesChoice Choice;
        std::string Name; ///< within a sentence
        InputRecord Inputs;
    };
    struct AddedFile {
        QString Path;
        InputRecord Inputs;
        KeptVersions Versions;
    };

    std::vector<Compared> All() const;
    void AppendFile(std::vector<Compared>& all, const AddedFile& file) const;
    std::string NameOf(const AddedFile& file) const;

    const Session& m_session;
    const CurrentFile& m_current;
    std::vector<AddedFile> m_files;
};

} // namespace Ledgrove
