#include "app/batch/InsightCommand.h"

#include <algorithm>
#include <thread>
#include <unistd.h>

#include "app/batch/ExitStatus.h"
#include "app/batch/InputFile.h"
#include "app/batch/InsightText.h"
#include "app/batch/JsonInput.h"
#include "app/batch/JsonText.h"
#include "app/batch/ObjectInput.h"
#include "app/batch/SettingsCommand.h"
#include "base/Text.h"
#include "engine/NumberText.h"
#include "ui/StartUp.h"

namespace Ledgrove {

namespace {

constexpr double usualBy = 10;

/// Answers JSON lines in one thread.
class InsightLines : public LineWork {
public:
    InsightLines(const Session& start, InsightAnswers answers, std::string file)
        : m_comparison(start)
        , m_answers(std::move(answers))
        , m_file(std::move(file)) {
        m_comparison.Show({false, false});
    }

    void Append(std::string& out, const InputLine& line, Tally& tally) override {
        if (IsBlank(line.Text, " \t\r"))
            return;
        bool answered = false;
        if (auto refusal = Compare(line)) {
            refusal->Line = line.Number;
            AppendRefusalJson(out, *refusal, m_file);
        } else {
            answered = m_answers.AppendJson(out, m_comparison.State());
        }
        out += '\n';
        tally.Count(!answered, line.Number);
    }

private:
    std::optional<Refusal> Compare(const InputLine& line) {
        if (line.TooLong)
            return InputTooLong(line.Number);
        auto refusal = ReadJsonObject(line.Text, m_inputs);
        return refusal ? refusal : m_comparison.Run(m_inputs);
    }

    Comparison m_comparison;
    InsightAnswers m_answers;
    std::string m_file;
    InputRecord m_inputs;
};

/// The name that refusals give; standard input has none.
std::string NameInRefusals(const std::string& file) {
    return file == "-" ? "" : file;
}

void TellUnanswered(const Tally& tally) {
    const bool one = tally.Refused == 1;
    Complain(std::to_string(tally.Refused) + " of " + std::to_string(tally.Compared) +
                 (one ? " comparisons has no answer; it is" : " comparisons have no answer; the first is") +
                 " line " + std::to_string(tally.FirstRefused) + ".",
             AllWell);
}

} // namespace

bool InsightAnswers::AppendJson(std::string& out, const Session& session) const {
    const Insight insight(session.Screen, session);
    rapidjson::StringBuffer buffer;
    Json::Writer json(buffer);
    json.StartObject();
    const bool answered = insight.Missing().empty();
    if (!answered)
        Json::Member(json, "missing", insight.Missing());
    InsightViews views(insight, m_by);
    for (const InsightView* const view : m_views) {
        if (!answered)
            break;
        Json::Key(json, view->Name);
        view->WriteJson(json, views);
    }
    json.EndObject();
    out.append(buffer.GetString(), buffer.GetSize());
    return answered;
}

std::string InsightAnswers::AppendText(std::string& out, const Session& session) const {
    const Insight insight(session.Screen, session);
    if (!insight.Missing().empty())
        return insight.Missing();
    InsightViews views(insight, m_by);
    for (const InsightView* const view : m_views) {
        if (view != m_views.front())
            out += '\n';
        AppendSheetText(out, view->MakeSheet(views));
    }
    return {};
}

MakeLineWork InsightWork(const Session& start, const InsightAnswers& answers, const std::string& file) {
    return [&start, answers, file] { return std::make_unique<InsightLines>(start, answers, file); };
}

InsightCommand::InsightCommand()
    : m_views(DefaultViews())
    , m_by(usualBy) {}

std::string InsightCommand::ReadFormat(const std::string& name, const WordFault& fault) {
    return ReadFormatName(name, {"text", "json", "jsonl"}, m_format, fault);
}

std::string InsightCommand::ReadViews(const std::string& list, const WordFault& fault) {
    ChosenViews named;
    for (std::size_t start = 0; start <= list.size();) {
        const std::size_t end = std::min(list.find(',', start), list.size());
        const std::string name(Trimmed(std::string_view(list).substr(start, end - start), " "));
        start = end + 1;
        const auto table = InsightViewTable();
        const auto found = std::find_if(table.begin(), table.end(),
                                        [&](const InsightView& view) { return view.Name == name; });
        if (found == table.end())
            return fault("view", name, InsightViewNames());
        named.push_back(&*found);
    }
    // The output has the order of the table, and each view once.
    std::sort(named.begin(), named.end());
    named.erase(std::unique(named.begin(), named.end()), named.end());
    m_views = std::move(named);
    return {};
}

std::string InsightCommand::ReadBy(const std::string& percent) {
    const double number = Module1::ReadStrippedNumber(percent).value_or(0);
    if (!(number > 0 && number <= 100))
        return Quoted(percent) + " is not a percentage above 0 and at most 100.";
    m_by = number;
    return {};
}

Tally InsightCommand::ReadObject(LineReader& lines, OutputBuffer& output, const Session& start,
                                 const std::string& file) const {
    Comparison comparison(start);
    InputRecord inputs;
    const auto refusal = RunObject(lines, comparison, inputs);
    Tally tally;
    if (!lines.Failure().empty())
        return tally;
    const InsightAnswers answers(m_views, m_by);
    std::string& out = output.Text();
    bool answered = false;
    if (m_format == Format::Json) {
        if (refusal)
            AppendRefusalJson(out, *refusal, file);
        else
            answered = answers.AppendJson(out, comparison.State());
        out += '\n';
    } else {
        const std::string complaint =
            refusal ? RefusalSentence(*refusal) : answers.AppendText(out, comparison.State());
        answered = complaint.empty();
        if (!answered)
            Complain((file.empty() ? "" : file + ": ") + complaint, SomeRefused);
    }
    tally.Count(!answered, 1);
    return tally;
}

int InsightCommand::Run(const std::filesystem::path& folder, const std::string& file) const {
    Session start;
    CollectingHost host;
    if (const auto fault = Module1::LoadMainScreen(start, host, folder))
        return Complain(Sentence(*fault), CannotRun);
    WarnOfSettings(folder);
    const InputFile input(file);
    if (input.Number() < 0)
        return Complain(UnreadableInput(file, input.Failure()), CannotRun);
    SayIfTerminal(input.Number());

    const std::string name = NameInRefusals(file);
    const int cores = std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
    ParallelJsonReader reader(InsightWork(start, InsightAnswers(m_views, m_by), name), cores);
    OutputBuffer output(STDOUT_FILENO);
    const bool isList = m_format == Format::JsonLines;
    LineReader lines(input.Number(), [&] { isList ? reader.BeforeWaiting(output) : output.Flush(); });
    const Tally tally = isList ? reader.Read(lines, output) : ReadObject(lines, output, start, name);
    output.Flush();
    if (!lines.Failure().empty())
        return Complain(UnreadableInput(file, lines.Failure()), CannotRun);
    if (!output.Failure().empty())
        return Complain(UnwrittenOutput("answers", output.Failure()), CannotRun);
    if (tally.Empty)
        Complain(EmptyInput(file), SomeRefused);
    if (isList && tally.Refused > 0)
        TellUnanswered(tally);
    return tally.AllWell() ? AllWell : SomeRefused;
}

} // namespace Ledgrove
