#pragma once

#include "app/windows/CurrentFile.h"

// What takes the comparison out of the program. All complain through `outside`.
namespace Ledgrove {

/// What the export commands work on.
struct ExportContext {
    frmMain& Window;
    Session& State;
    Host& Outside;
    const CurrentFile& File;
    FileQuestions Questions;
};

/// Asks for a name and writes the whole report there.
void ExportPdf(const ExportContext& context);

/// Asks for a name and writes the inputs and main results there, for a spreadsheet.
void ExportCsv(const ExportContext& context);

enum class TabForm { Text, Spreadsheet };

/// Puts what the shown tab says on the clipboard.
void CopyTab(const ExportContext& context, TabForm form);

} // namespace Ledgrove
