#pragma once

#include "app/windows/CurrentFile.h"
#include "app/windows/LastChoices.h"

// The commands that export the comparison. They report faults through `outside`.
namespace Ledgrove {

/// The objects that the export commands work on.
struct ExportContext {
    frmMain& Window;
    Session& State;
    Host& Outside;
    const CurrentFile& File;
    FileQuestions Questions;
    LastChoices Choices;
    std::function<void()> Brief = {};   ///< previews the buyer's brief
    std::function<void()> Compare = {}; ///< opens the window "What changed?"
};

/// Asks for the paper and a file name, and writes the whole report there.
void ExportPdf(const ExportContext& context);

/// Asks for a file name and writes the inputs and main results there, for a spreadsheet.
void ExportCsv(const ExportContext& context);

enum class TabForm { Text, Spreadsheet };

/// Copies the texts of the current tab to the clipboard.
void CopyTab(const ExportContext& context, TabForm form);

} // namespace Ledgrove
