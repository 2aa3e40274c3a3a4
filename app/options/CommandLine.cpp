#include "app/options/CommandLine.h"

#include <algorithm>
#include <charconv>
#include <numeric>
#include <utility>

#include "app/batch/ExitStatus.h"
#include "base/Text.h"

namespace Ledgrove {

namespace {

/// The number of letters to add, drop or change to make `a` to `b`.
std::size_t Distance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t changed = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}

/// The app that was being read when the fault came: the last subcommand given.
const CLI::App& Innermost(const CLI::App& app) {
    const auto given = app.get_subcommands();
    return given.empty() ? app : Innermost(*given.back());
}

std::string FullName(const CLI::App& app) {
    return app.get_parent() ? FullName(*app.get_parent()) + " " + app.get_name() : app.get_name();
}

} // namespace

CommandOptions::CommandOptions(CLI::App& app, std::string_view name, std::string& folder,
                               const std::string& program)
    : m_app(app)
    , m_command(CommandNamed(name)) {
    Take("--folder", folder);
    app.set_version_flag("--version", program + " " LEDGROVE_VERSION,
                         std::string(OptionOf(m_command, "--version").Meaning));
    app.set_help_flag("-h,--help", std::string(OptionOf(m_command, "--help").Meaning));
    std::string ending = "Example:\n  " + std::string(m_command.Example) + "\n\nExit status:";
    for (const StatusRow& row : StatusTable())
        ending += "\n  " + std::to_string(row.Status) + "  " + std::string(row.Meaning);
    app.footer(ending);
}

void CommandOptions::Read(std::string_view name, OptionReader read) {
    const auto take = [name = std::string(name), read = std::move(read)](const std::string& text) {
        if (const std::string fault = read(text); !fault.empty())
            throw CLI::ValidationError(name, fault);
    };
    Described(m_app.add_option_function<std::string>(std::string(name), take), OptionOf(m_command, name));
}

void CommandOptions::Number(std::string_view name, int& target, int least, int most) {
    Read(name, [&target, least, most](const std::string& text) {
        int number = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
        if (error != std::errc() || end != text.data() + text.size() || number < least || number > most)
            return "Give a whole number from " + std::to_string(least) + " to " + std::to_string(most) + ".";
        target = number;
        return std::string();
    });
}

void CommandOptions::Flag(std::string_view name, bool& target) {
    m_app.add_flag(std::string(name), target, std::string(OptionOf(m_command, name).Meaning));
}

void CommandOptions::Described(CLI::Option* option, const OptionRow& row) {
    option->description(std::string(row.Meaning));
    option->type_name(std::string(row.Values))->required(row.IsRequired);
    if (!row.IsList)
        option->take_last();
}

std::string SummaryOf(std::string_view name) {
    return std::string(CommandNamed(name).Summary) + ".";
}

std::optional<int> Parse(CLI::App& app, std::vector<std::string> words) {
    std::reverse(words.begin(), words.end()); // as the parser expects them
    try {
        app.parse(std::move(words));
        return std::nullopt;
    } catch (const CLI::Success& answer) {
        return app.exit(answer) == 0 ? AllWell : CannotRun;
    } catch (const CLI::ParseError& fault) {
        std::string sentence = fault.what();
        while (sentence.ends_with('.') || sentence.ends_with('\n'))
            sentence.pop_back();
        sentence += sentence.ends_with('?') ? " " : ". ";
        return Complain(sentence + Quoted(FullName(Innermost(app)) + " --help") + " explains it.", CannotRun);
    }
}

std::vector<std::string> WordsOf(int argc, char** argv) {
    return {argv + std::min(argc, 1), argv + argc};
}

std::string UnknownWord(const std::string& what, const std::string& word,
                        const std::vector<std::string>& known) {
    std::string list;
    for (const std::string& one : known)
        list += (list.empty() ? "" : &one == &known.back() ? " and " : ", ") + one;
    const auto nearest = std::min_element(known.begin(), known.end(), [&](const auto& a, const auto& b) {
        return Distance(a, word) < Distance(b, word);
    });
    constexpr std::size_t mostChanges = 2;
    const bool isNear = nearest != known.end() && Distance(*nearest, word) <= mostChanges;
    return Quoted(word) + " is not a " + what +
           (isNear ? ". Did you mean " + Quoted(*nearest) + "?" : ". The " + what + "s are " + list + ".");
}

} // namespace Ledgrove
