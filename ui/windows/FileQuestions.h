#pragma once

#include <QString>
#include <QWidget>
#include <functional>

namespace Ledgrove {

enum class SaveAnswer { Save, Discard, Cancel };

/// The settings of a file dialog: title such as "Open Comparison", start folder, filter such as "Comparisons
/// (*.ledgrove.json)".
struct FileRequest {
    QString Title;
    QString Start; ///< a folder, or a folder with a suggested name
    QString Filter;
    QString Suffix; ///< the ending for the name of a new file
};

/// The questions that the file commands ask the user. Tests replace them.
struct FileQuestions {
    /// The name of a file to open or to write, "" if none was chosen. An existing file is overwritten only
    /// after another question.
    std::function<QString(QWidget& above, const FileRequest&)> OpenName;
    std::function<QString(QWidget& above, const FileRequest&)> SaveName;
    /// Whether to save the unsaved inputs of `name`.
    std::function<SaveAnswer(QWidget& above, const QString& name)> Unsaved;
    /// The name for a version of the comparison, "" if it is not to be kept.
    std::function<QString(QWidget& above, const QString& suggested)> VersionName;
};

/// The questions as dialogs.
FileQuestions AskAtScreen();

/// The name under which a typed name is written: with `suffix`, and after a question if the file exists. ""
/// if nothing was typed or the answer is No.
QString NameToWrite(QWidget& above, const QString& typed, const QString& suffix);

/// `name` with `suffix`, which is appended unless the name already ends in it or in its last part, ignoring
/// case: with ".ledgrove.json", "plain" becomes "plain.ledgrove.json", and "plain.json" stays. Any other
/// ending counts as a part of the name, because it would promise another kind of file.
QString WithSuffix(const QString& name, const QString& suffix);

} // namespace Ledgrove
