#include "app/windows/ExportCommands.h"

#include <QClipboard>
#include <QGuiApplication>

#include "app/files/CsvExport.h"
#include "app/files/TabText.h"
#include "app/windows/frmExportPdf.h"
#include "reports/windows/ReportFile.h"
#include "settings/HeaderSettings.h"
#include "ui/windows/SafeFile.h"

namespace Ledgrove {

namespace {

QString AskName(const ExportContext& context, const QString& title, const QString& kind,
                const QString& suffix) {
    return context.Questions.SaveName(context.Window, {title, context.File.NameBeside(suffix),
                                                       kind + " (*" + suffix + ");;All files (*)", suffix});
}

void TellFault(Host& outside, const QString& sentence) {
    if (!sentence.isEmpty())
        outside.ShowMessage({ApplicationTitle, sentence.toStdString(), MessageIcon::Exclamation});
}

} // namespace

void ExportPdf(const ExportContext& context) {
    if (!context.Window.CommitEntry())
        return;
    frmExportPdf dialog(context.Choices.Paper(), context.State, context.Outside, &context.Window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    context.Choices.KeepPaper(dialog.Paper());
    const QString file = AskName(context, "Export PDF", "PDF documents", ".pdf");
    if (file.isEmpty())
        return;
    const auto logo = Module1::GetLogoOption(SettingsFile(context.State.Folder));
    TellFault(context.Outside,
              WriteReportFile(context.State, {AllSections, dialog.Paper(), logo ? *logo : 0, file}));
}

void ExportCsv(const ExportContext& context) {
    if (!context.Window.CommitEntry())
        return;
    const QString file = AskName(context, "Export CSV", "Tables for spreadsheets", ".csv");
    if (!file.isEmpty())
        TellFault(context.Outside,
                  WriteWholeFile(file, QByteArray::fromStdString(ComparisonCsv(context.State))));
}

void CopyTab(const ExportContext& context, TabForm form) {
    if (!context.Window.CommitEntry())
        return;
    const TabTable table = TabContent(context.State.Screen, context.State.Screen.SSTab1);
    const std::string text = form == TabForm::Text ? AlignedText(table) : SpreadsheetText(table);
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}

} // namespace Ledgrove
