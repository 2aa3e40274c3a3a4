#pragma once

#include <QByteArray>
#include <QString>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "ui/ChangesAnswer.h"
#include "ui/windows/FileQuestions.h"

namespace Ledgrove {

/// A comparison in the lists of the window "What changed?".
struct ChangesChoice {
    std::string Id;   ///< the same as long as the comparison is in the lists
    std::string Text; ///< in the list
    std::string Tip;  ///< says more; may be empty
};

struct ChangesChoices {
    std::vector<ChangesChoice> All; ///< the first is the screen
    /// The one to begin with: the last kept version, or the screen without any.
    std::string Usual;
};

/// What the window asks: what changes from one comparison to another, and the parts of which figure.
struct ChangesAsk {
    std::string From; ///< the ids of two choices
    std::string To;
    std::string Figure; ///< a figure's name; another text gives the monthly net
};

/// What the window needs from the program. The window has no code of the calculation and reads no files.
struct ChangesContext {
    std::function<ChangesChoices()> Choices;
    std::function<ChangesAnswer(const ChangesAsk&)> Answer;
    /// Asks for a comparison file and adds it to the choices. Returns its id, "" if none was added.
    std::function<std::string(QWidget& above)> AddFile;
    /// Previews the answer for printing.
    std::function<void(const ChangesAsk&)> Print;
    std::function<void()> Help;
    /// A part of the answer as lines of text: its sentence, then its table in aligned columns.
    std::function<std::string(const Sheet&)> Text;
    FileQuestions Questions; ///< asks where to save the picture
    /// Replaces a whole file; reports a fault to the user.
    std::function<void(const QString& file, const QByteArray& content)> Write;
};

/// The window that says what differs between two comparisons. It has no meta-object, because the program and
/// the library that makes it would each have their own copy.
class ChangesWindow : public QWidget {
public:
    using QWidget::QWidget;

    /// Begins with the usual choices if both sides are the same comparison: the last kept version and the
    /// screen. Without a version, asks for a file.
    virtual void Begin() = 0;

    /// Reads the choices again and compares anew, after an entry in the main window or a new version.
    virtual void Follow() = 0;
};

} // namespace Ledgrove
