// `ledgrove-cli report`, `brief`, and --output of `insight` and `range` start this program, because layout
// and painting need Qt, which ledgrove-cli does not use.

#include <sstream>
#include <string>
#include <string_view>

#include <QGuiApplication>

#include "app/batch/ExitStatus.h"
#include "app/options/CommandLine.h"
#include "app/options/InsightOptions.h"
#include "app/options/RangeOptions.h"
#include "app/report/PdfCommand.h"
#include "app/windows/Offscreen.h"
#include "base/ProgramFolder.h"
#include "base/Text.h"
#include "reports/ReportChoices.h"
#include "reports/windows/BriefFile.h"
#include "reports/windows/InsightFile.h"
#include "reports/windows/RangeFile.h"
#include "reports/windows/ReportFile.h"

namespace {

using namespace Ledgrove;

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

int Report(const std::vector<std::string>& words) {
    CLI::App app(SummaryOf("ledgrove-cli report"), "ledgrove-cli report");
    std::string folder = ProgramFolder().string();
    PaperArguments arguments;
    ReportFileRequest request{AllSections, {}, 0, {}};
    std::string input = "-";
    CommandOptions options(app, "ledgrove-cli report", folder, "ledgrove-report");
    options.Take("--output", arguments.Output);
    options.Read("--sections",
                 [&](const std::string& names) { return ReadSections(names, request.Sections); });
    AddPaperOptions(options, arguments);
    options.Take("FILE", input);
    if (const auto status = Parse(app, words))
        return *status;
    Session* state = nullptr;
    PageMaker pages;
    pages.Prepare = [&](Session& session, int logoOption) {
        state = &session;
        request.Paper = arguments.Paper;
        request.LogoOption = logoOption;
        return QString();
    };
    pages.Make = [&](QByteArray& pdf) { return MakeReport(*state, request, pdf); };
    pages.Write = [&](const QString& file) {
        request.File = file;
        return WriteReportFile(*state, request);
    };
    return RunPdfCommand(folder, input, arguments, pages);
}

/// The questions that these views answer.
std::vector<InsightQuestion> QuestionsOf(const ChosenViews& views) {
    std::vector<InsightQuestion> questions;
    for (const InsightView* const view : views)
        for (const QuestionRow& row : InsightQuestions)
            if (row.View == view->Name)
                questions.push_back(row.Id);
    return questions;
}

int AnswerQuestions(const std::vector<std::string>& words) {
    CLI::App app(SummaryOf("ledgrove-cli insight"), "ledgrove-cli insight");
    std::string folder = ProgramFolder().string();
    InsightArguments arguments;
    AddInsightOptions(app, folder, arguments, "ledgrove-report");
    if (const auto status = Parse(app, words))
        return *status;
    InsightReport report;
    const ReportPaper& paper = arguments.Pages.Paper;
    PageMaker pages;
    pages.Prepare = [&](Session& session, int logoOption) {
        const InsightCommand& command = arguments.Command;
        report = MakeInsightReport(session, {QuestionsOf(command.Views()), {}, command.By(), logoOption});
        return QString::fromStdString(report.Missing);
    };
    pages.Make = [&](QByteArray& pdf) { return MakeInsightPdf(report, paper, pdf); };
    pages.Write = [&](const QString& file) { return WriteInsightPdf(report, paper, file); };
    return RunPdfCommand(folder, arguments.Input, arguments.Pages, pages);
}

int WriteBuyersBrief(const std::vector<std::string>& words) {
    CLI::App app(SummaryOf("ledgrove-cli brief"), "ledgrove-cli brief");
    std::string folder = ProgramFolder().string();
    PaperArguments arguments;
    std::string input = "-";
    CommandOptions options(app, "ledgrove-cli brief", folder, "ledgrove-report");
    options.Take("--output", arguments.Output);
    AddPageOptions(options, arguments);
    options.Take("FILE", input);
    if (const auto status = Parse(app, words))
        return *status;
    Brief brief;
    PageMaker pages;
    pages.Prepare = [&](Session& session, int logoOption) {
        brief = MakeBrief(session, logoOption, PrintDate());
        return QString::fromStdString(brief.Missing);
    };
    pages.Make = [&](QByteArray& pdf) { return MakeBriefPdf(brief, arguments.Paper, pdf); };
    pages.Write = [&](const QString& file) { return WriteBriefPdf(brief, arguments.Paper, file); };
    return RunPdfCommand(folder, input, arguments, pages);
}

int ListHouses(const std::vector<std::string>& words) {
    CLI::App app(SummaryOf("ledgrove-cli range"), "ledgrove-cli range");
    std::string folder = ProgramFolder().string();
    RangeArguments arguments;
    AddRangeOptions(app, folder, arguments, "ledgrove-report");
    if (const auto status = Parse(app, words))
        return *status;
    HouseList houses;
    if (const std::string fault = LoadHouses(folder, houses); !fault.empty())
        return Complain(fault, CannotRun);
    Range range;
    RangeReport report;
    const ReportPaper& paper = arguments.Pages.Paper;
    PageMaker pages;
    pages.Prepare = [&](Session& session, int logoOption) {
        range = arguments.Command.Compute(session, houses);
        report = MakeRangeReport(session, range, logoOption);
        return QString();
    };
    pages.Make = [&](QByteArray& pdf) { return MakeRangePdf(report, paper, pdf); };
    pages.Write = [&](const QString& file) { return WriteRangePdf(report, paper, file); };
    const int status = RunPdfCommand(folder, arguments.Input, arguments.Pages, pages);
    return status == AllWell ? TellRowsWithout(range) : status;
}

} // namespace

int main(int argc, char** argv) {
    // ledgrove-cli puts the command in place of the program's name.
    const std::string_view command = argc > 0 ? argv[0] : "";
    WorkOffscreen();
    const QGuiApplication application(argc, argv);
    const std::vector<std::string> words = WordsOf(argc, argv);
    if (command == "insight")
        return AnswerQuestions(words);
    if (command == "range")
        return ListHouses(words);
    return command == "brief" ? WriteBuyersBrief(words) : Report(words);
}
