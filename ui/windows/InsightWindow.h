#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "ui/InsightAnswers.h"
#include "ui/windows/ChangesWindow.h"
#include "ui/windows/FileQuestions.h"
#include "ui/windows/ModelsContext.h"

namespace Ledgrove {

/// What the Insight window needs from the program. The window has no code of the calculation.
struct InsightContext {
    std::function<InsightAnswer(const InsightAsk&)> Answer;
    /// Tries a text for a setting of the answers. Returns a sentence if it cannot be used, else "".
    std::function<std::string(std::string_view key, const std::string& text)> Try;
    /// Saves the tried settings of a question's fields, or goes back to the kept ones.
    std::function<void(InsightQuestion)> Keep;
    std::function<void(InsightQuestion)> GoBack;
    /// Goes to where an input is typed (`control`) or an assumption is kept (`key`).
    std::function<void(const QString& control, const QString& key)> GoTo;
    /// What a cell of the map stands for, and what entering it means.
    std::function<std::string(const ChartGrid&, std::size_t column, std::size_t row)> CellText;
    std::function<std::vector<EntryText>(const ChartGrid&, std::size_t column, std::size_t row)> CellEntries;
    /// Enters texts into the main window as if they were typed there.
    std::function<void(const std::vector<EntryText>&)> Enter;
    /// Takes back the last entry of the main window, or brings it again.
    std::function<void()> Undo;
    std::function<void()> Redo;
    /// Previews the answers to these questions for printing, with the figure and the year of `ask`.
    std::function<void(const std::vector<InsightQuestion>&, const InsightAsk& ask)> Print;
    ModelsContext Models;
    std::function<void()> Help;
    FileQuestions Questions; ///< asks where to save a picture or a table
    /// The answer as lines of text: its sentence, then its table in aligned columns.
    std::function<std::string(const Sheet&)> Text;
    /// The table as a CSV file.
    std::function<std::string(const Sheet&)> Csv;
    /// Replaces a whole file; reports a fault to the user.
    std::function<void(const QString& file, const QByteArray& content)> Write;
};

/// The window that says what the figures mean. It has no meta-object, because the program and the library
/// that makes it would each have their own copy.
class InsightWindow : public QWidget {
public:
    using QWidget::QWidget;

    /// Shows the answer to this question.
    virtual void Ask(InsightQuestion question) = 0;

    /// Shows where a figure comes from, by its name or a label that shows it.
    virtual void Explain(const std::string& figure) = 0;

    /// Computes the shown answer anew, after an entry in the main window.
    virtual void Follow() = 0;
};

/// Makes the windows. They are in a separate library that is loaded when one is first needed, so the program
/// starts without it.
class InsightFactory {
public:
    virtual ~InsightFactory() = default;

    virtual InsightWindow* Make(InsightContext context) = 0;
    virtual ChangesWindow* MakeChanges(ChangesContext context) = 0;
};

} // namespace Ledgrove

#define LEDGROVE_INSIGHT_FACTORY "ledgrove.InsightFactory"
Q_DECLARE_INTERFACE(Ledgrove::InsightFactory, LEDGROVE_INSIGHT_FACTORY)
