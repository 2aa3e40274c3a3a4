#include "app/report/PdfCommand.h"

#include "app/batch/OneComparison.h"
#include "app/batch/OutputTarget.h"
#include "base/Text.h"
#include "reports/windows/LogoFault.h"
#include "reports/windows/NameFault.h"
#include "settings/HeaderSettings.h"

namespace Ledgrove {

namespace {

/// Letters with their accents as single characters, for which fonts have glyphs.
std::string Composed(const std::string& name) {
    return QString::fromStdString(name).normalized(QString::NormalizationForm_C).toStdString();
}

/// Writes the PDF to a stream. Returns a message if that failed, else "".
std::string Send(const PageMaker& pages, const OutputTarget& target) {
    QByteArray pdf;
    if (const QString fault = pages.Make(pdf); !fault.isEmpty())
        return fault.toStdString();
    return target.Write({pdf.constData(), static_cast<std::size_t>(pdf.size())});
}

/// Warns of what the pages lack.
void WarnOfGaps(const Session& session, int logo) {
    for (const std::string& name : {session.Header.BuilderName, session.Header.HomeBuyer})
        if (const std::string unprinted = NameFault(name); !unprinted.empty())
            Complain(unprinted, AllWell);
    if (const std::string missing = LogoFault(session, logo); !missing.empty())
        Complain(missing, AllWell);
}

} // namespace

int RunPdfCommand(const std::string& folder, const std::string& input, const PaperArguments& arguments,
                  const PageMaker& pages) {
    const OutputTarget target(arguments.Output, input);
    if (!target.Refusal().empty())
        return Complain(target.Refusal(), CannotRun);
    const QString file = QString::fromStdString(arguments.Output);
    if (!target.IsStream() && !file.endsWith(".pdf", Qt::CaseInsensitive))
        return Complain("Name the report's file *.pdf, not " + Quoted(arguments.Output) + ".", CannotRun);
    OneComparison comparison = CompareOne(folder, input);
    if (comparison.Status != AllWell)
        return Complain(comparison.Complaint, comparison.Status);
    Session& session = comparison.State;
    session.Header.HomeBuyer = Composed(arguments.Buyer);
    if (arguments.Builder)
        session.Header.BuilderName = Composed(*arguments.Builder);
    const auto saved = Module1::GetLogoOption(SettingsFile(session.Folder));
    const int logo = arguments.LogoOption.value_or(saved ? *saved : 0);
    if (const QString missing = pages.Prepare(session, logo); !missing.isEmpty())
        return Complain((input == "-" ? "" : input + ": ") + missing.toStdString(), SomeRefused);
    const std::string fault = target.IsStream() ? Send(pages, target) : pages.Write(file).toStdString();
    if (!fault.empty())
        return Complain(fault, CannotRun);
    WarnOfGaps(session, logo);
    return AllWell;
}

} // namespace Ledgrove
