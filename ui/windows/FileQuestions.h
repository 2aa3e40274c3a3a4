#pragma once

#include <QString>
#include <QWidget>
#include <functional>

namespace Ledgrove {

enum class SaveAnswer { Save, Discard, Cancel };

/// What a file dialog is asked for: "Open Comparison", where to begin, "Comparisons (*.ledgrove.json)".
struct FileRequest {
    QString Title;
    QString Start; ///< a folder, or a folder with a suggested name
    QString Filter;
    QString Suffix; ///< what the name of a file to be written ends in
};

/// What the file commands ask the person at the screen. Tests answer instead.
struct FileQuestions {
    /// The name of a file to open or to write, "" when none was chosen. A file that is there is written over
    /// only after a question of its own.
    std::function<QString(QWidget& above, const FileRequest&)> OpenName;
    std::function<QString(QWidget& above, const FileRequest&)> SaveName;
    /// Whether the unsaved inputs of `name` are to be saved.
    std::function<SaveAnswer(QWidget& above, const QString& name)> Unsaved;
};

/// The questions as dialogs.
FileQuestions AskAtScreen();

/// `name` with `suffix` behind it where it does not end so, in capitals or not.
QString WithSuffix(const QString& name, const QString& suffix);

} // namespace Ledgrove
