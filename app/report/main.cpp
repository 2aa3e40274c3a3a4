// `ledgrove-cli report` starts this program, because layout and painting need Qt, which ledgrove-cli does not
// use.

#include <optional>
#include <sstream>
#include <string>

#include <QGuiApplication>

#include "app/batch/OneComparison.h"
#include "app/batch/OutputTarget.h"
#include "app/options/CommandLine.h"
#include "app/windows/Offscreen.h"
#include "base/ProgramFolder.h"
#include "base/Text.h"
#include "reports/ReportChoices.h"
#include "reports/windows/LogoFault.h"
#include "reports/windows/NameFault.h"
#include "reports/windows/ReportFile.h"
#include "settings/HeaderSettings.h"

namespace {

using namespace Ledgrove;

struct Arguments {
    std::string Folder = ProgramFolder().string();
    std::string Output;
    ReportSections Sections = AllSections;
    ReportPaper Paper;
    std::optional<int> LogoOption; ///< empty: as in the settings file
    std::optional<std::string> Builder;
    std::string Buyer;
    std::string Input = "-";
};

/// Sets `sections` and returns an empty text, or returns a message for an unknown name.
std::string ReadSections(const std::string& names, ReportSections& sections) {
    sections = {};
    std::istringstream list(names);
    for (std::string name; std::getline(list, name, ',');) {
        const std::string section(Trimmed(name));
        if (!AddSection(section, sections)) {
            return Quoted(section) + " is not a section. Choose from cashflow, morehome, affordability, "
                                     "summary and assumptions, or give all or "
                                     "none.";
        }
    }
    return {};
}

std::string ReadPaper(const std::string& name, PaperSize& size) {
    const auto named = PaperNamed(name);
    if (!named)
        return "The paper must be letter, a4 or legal.";
    size = *named;
    return {};
}

std::string ReadOrientation(const std::string& name, PageOrientation& orientation) {
    const auto named = OrientationNamed(name);
    if (!named)
        return "The orientation must be portrait or landscape.";
    orientation = *named;
    return {};
}

std::string ReadLogo(const std::string& name, std::optional<int>& option) {
    constexpr std::string_view names[] = {"none", "generic", "user"};
    for (int index = 0; index < 3; ++index)
        if (name == names[index])
            option = index;
    return option ? "" : "The logo must be none, generic or user.";
}

void AddOptions(CLI::App& app, Arguments& arguments) {
    CommandOptions options(app, "ledgrove-cli report", arguments.Folder, "ledgrove-report");
    options.Take("--output", arguments.Output);
    options.Read("--sections",
                 [&](const std::string& names) { return ReadSections(names, arguments.Sections); });
    options.Read("--paper", [&](const std::string& name) { return ReadPaper(name, arguments.Paper.Size); });
    options.Read("--orientation",
                 [&](const std::string& name) { return ReadOrientation(name, arguments.Paper.Orientation); });
    options.Read("--logo", [&](const std::string& name) { return ReadLogo(name, arguments.LogoOption); });
    options.Take("--builder", arguments.Builder);
    options.Take("--buyer", arguments.Buyer);
    options.Take("FILE", arguments.Input);
}

/// Letters with their accents as single characters, for which fonts have glyphs.
std::string Composed(const std::string& name) {
    return QString::fromStdString(name).normalized(QString::NormalizationForm_C).toStdString();
}

/// Writes the PDF to a stream. Returns a message if that failed, else "".
std::string Send(Session& session, const ReportFileRequest& request, const OutputTarget& target) {
    QByteArray pdf;
    if (const QString fault = MakeReport(session, request, pdf); !fault.isEmpty())
        return fault.toStdString();
    return target.Write({pdf.constData(), static_cast<std::size_t>(pdf.size())});
}

int Report(const Arguments& arguments) {
    const OutputTarget target(arguments.Output, arguments.Input);
    if (!target.Refusal().empty())
        return Complain(target.Refusal(), CannotRun);
    if (!target.IsStream() && !QString::fromStdString(arguments.Output).endsWith(".pdf", Qt::CaseInsensitive))
        return Complain("Name the report's file *.pdf, not " + Quoted(arguments.Output) + ".", CannotRun);
    OneComparison comparison = CompareOne(arguments.Folder, arguments.Input);
    if (comparison.Status != AllWell)
        return Complain(comparison.Complaint, comparison.Status);
    Session& session = comparison.State;
    session.Header.HomeBuyer = Composed(arguments.Buyer);
    if (arguments.Builder)
        session.Header.BuilderName = Composed(*arguments.Builder);
    const auto saved = Module1::GetLogoOption(SettingsFile(session.Folder));
    const int logo = arguments.LogoOption.value_or(saved ? *saved : 0);
    const ReportFileRequest request{arguments.Sections, arguments.Paper, logo,
                                    QString::fromStdString(arguments.Output)};
    const std::string fault =
        target.IsStream() ? Send(session, request, target) : WriteReportFile(session, request).toStdString();
    if (!fault.empty())
        return Complain(fault, CannotRun);
    for (const std::string& name : {session.Header.BuilderName, session.Header.HomeBuyer})
        if (const std::string unprinted = NameFault(name); !unprinted.empty())
            Complain(unprinted, AllWell);
    if (const std::string missing = LogoFault(session, logo); !missing.empty())
        Complain(missing, AllWell);
    return AllWell;
}

} // namespace

int main(int argc, char** argv) {
    WorkOffscreen();
    const QGuiApplication application(argc, argv);
    CLI::App app(SummaryOf("ledgrove-cli report"), "ledgrove-cli report");
    Arguments arguments;
    AddOptions(app, arguments);
    if (const auto status = Parse(app, WordsOf(argc, argv)))
        return *status;
    return Report(arguments);
}
