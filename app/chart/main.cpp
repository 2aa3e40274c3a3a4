// `ledgrove-cli chart` starts this program, because drawing needs Qt, which ledgrove-cli does not use.

#include <optional>
#include <string>

#include <QApplication>

#include "app/batch/OneComparison.h"
#include "app/batch/OutputTarget.h"
#include "app/options/CommandLine.h"
#include "app/windows/Offscreen.h"
#include "base/ProgramFolder.h"
#include "base/Text.h"
#include "ui/windows/SafeFile.h"
#include "ui/windows/charts/ChartPicture.h"

namespace {

using namespace Ledgrove;

struct Arguments {
    std::string Folder = ProgramFolder().string();
    std::string Output;
    ChartKind Kind = ChartKind::Savings;
    int Width = 960;
    int Height = 600;
    std::string Input = "-";
    std::optional<PictureFormat> Format; ///< empty: by the file name's ending
};

constexpr int smallestSide = 200;
constexpr int largestSide = 4000;

std::string ReadTab(const std::string& name, ChartKind& kind) {
    if (name == "cashflow")
        kind = ChartKind::MonthlyCost;
    else if (name == "affordability")
        kind = ChartKind::Affordability;
    else if (name == "summary")
        kind = ChartKind::Savings;
    else
        return "There is no chart of " + Quoted(name) + ". Choose cashflow, affordability or summary.";
    return {};
}

/// The format for the file name's ending; empty for an unknown ending.
std::optional<PictureFormat> FormatOf(const std::string& file) {
    const QString name = QString::fromStdString(file);
    if (name.endsWith(".png", Qt::CaseInsensitive))
        return PictureFormat::Png;
    if (name.endsWith(".svg", Qt::CaseInsensitive))
        return PictureFormat::Svg;
    return std::nullopt;
}

std::string ReadFormat(const std::string& name, std::optional<PictureFormat>& format) {
    format = FormatOf("." + name);
    return format ? "" : "The format must be png or svg.";
}

void AddOptions(CLI::App& app, Arguments& arguments) {
    CommandOptions options(app, "ledgrove-cli chart", arguments.Folder, "ledgrove-chart");
    options.Take("--output", arguments.Output);
    options.Read("--tab", [&](const std::string& name) { return ReadTab(name, arguments.Kind); });
    options.Read("--format", [&](const std::string& name) { return ReadFormat(name, arguments.Format); });
    options.Number("--width", arguments.Width, smallestSide, largestSide);
    options.Number("--height", arguments.Height, smallestSide, largestSide);
    options.Take("FILE", arguments.Input);
}

int Draw(const Arguments& arguments) {
    const OutputTarget target(arguments.Output, arguments.Input);
    if (!target.Refusal().empty())
        return Complain(target.Refusal(), CannotRun);
    auto format = arguments.Format ? arguments.Format : FormatOf(arguments.Output);
    if (!format && target.IsStream())
        format = PictureFormat::Png;
    if (!format)
        return Complain("Name the chart file *.png or *.svg, not " + Quoted(arguments.Output) + ".",
                        CannotRun);
    const OneComparison comparison = CompareOne(arguments.Folder, arguments.Input);
    if (comparison.Status != AllWell)
        return Complain(comparison.Complaint, comparison.Status);
    const ChartFigures figures = MakeChart(arguments.Kind, comparison.State);
    const QByteArray picture = ChartPicture(figures, *format, {arguments.Width, arguments.Height});
    const std::string fault =
        target.IsStream() ? target.Write({picture.constData(), static_cast<std::size_t>(picture.size())})
                          : WriteWholeFile(QString::fromStdString(arguments.Output), picture).toStdString();
    return fault.empty() ? AllWell : Complain(fault, CannotRun);
}

} // namespace

int main(int argc, char** argv) {
    WorkOffscreen();
    const QApplication application(argc, argv);
    CLI::App app(SummaryOf("ledgrove-cli chart"), "ledgrove-cli chart");
    Arguments arguments;
    AddOptions(app, arguments);
    if (const auto status = Parse(app, WordsOf(argc, argv)))
        return *status;
    return Draw(arguments);
}
