#include "app/options/CommandTable.h"

#include <algorithm>
#include <array>

namespace Ledgrove {

namespace {

constexpr OptionRow oneInput{
    "FILE", Value::File, "",
    "File with the inputs, as for \"compare --format json\"; standard input if none or \"-\""};

constexpr OptionRow paperRow{"--paper", Value::Choice, "letter|a4|legal", "The paper (default: letter)"};
constexpr OptionRow orientationRow{"--orientation", Value::Choice, "portrait|landscape",
                                   "The orientation (default: portrait)"};
constexpr OptionRow logoRow{"--logo", Value::Choice, "none|generic|user",
                            "The logo (default: as in Ledgrove.ini)"};
constexpr OptionRow builderRow{"--builder", Value::Text, "NAME",
                               "Name after \"Prepared By:\" (default: as in Ledgrove.ini)"};
constexpr OptionRow buyerRow{"--buyer", Value::Text, "NAME", "Name after \"Prepared For:\""};

constexpr std::array windowOptions{
    OptionRow{"FILE", Value::File, "", "A comparison to open (*.ledgrove.json)"},
};

constexpr std::array compareOptions{
    OptionRow{
        "--format", Value::Choice, "text|json|jsonl|csv",
        "text (default): one JSON object in, a table out; json: one object in, one out; jsonl: one object "
        "per line; csv: a price list with a heading row"},
    OptionRow{"--columns", Value::Results, "LIST",
              "csv: these results instead of the main ones; the names are those of --list-names"},
    OptionRow{"--only", Value::Results, "LIST", "json and jsonl: only these results"},
    OptionRow{"--list-names", Value::None, "", "List the names of all results and end"},
    OptionRow{"--house", Value::House, "NAME", "Start with the four amounts of this saved house scenario"},
    OptionRow{"--quiet", Value::None, "", "No warnings and no totals on standard error"},
    OptionRow{"--jobs", Value::Text, "N",
              "Threads for jsonl, 1 to 256 (default: one for each core); the results keep their order"},
    OptionRow{"FILE", Value::File, "", "Files with the inputs; standard input if none or \"-\"", false, true},
};

constexpr std::array insightOptions{
    OptionRow{
        "--format", Value::Choice, "text|json|jsonl",
        "text (default): sentences and tables; json: one object; jsonl: one object per line in and out"},
    OptionRow{
        "--view", Value::Text, "LIST",
        "Some of takeaway, breakeven, options, qualify, sensitivity, map, years, energy, tax, exit, explain, "
        "separated by commas (default: all but map and explain)"},
    OptionRow{"--by", Value::Text, "PERCENT",
              "How far sensitivity moves each input, above 0 and at most 100 (default: 10)"},
    OptionRow{"--output", Value::Output, "OUT.pdf",
              "Write the answers as PDF instead, *.pdf; \"-\" is standard output"},
    paperRow,
    orientationRow,
    logoRow,
    builderRow,
    buyerRow,
    oneInput,
};

constexpr std::array rangeOptions{
    OptionRow{
        "--format", Value::Choice, "text|json|csv",
        "text (default): a sentence and a table; json: one object; csv: a price list with a heading row"},
    OptionRow{"--options", Value::Text, "LIST|all",
              "A row for each of these mortgage options of the labelled home, separated by commas (default: "
              "the one in the input)"},
    OptionRow{"--no-limits", Value::None, "",
              "Without the price up to which each row pays, which takes most of the time"},
    OptionRow{"--output", Value::Output, "OUT.pdf",
              "Write the list as PDF instead, *.pdf; \"-\" is standard output"},
    paperRow,
    OptionRow{"--orientation", Value::Choice, "portrait|landscape", "The orientation (default: landscape)"},
    logoRow,
    builderRow,
    buyerRow,
    oneInput,
};

constexpr std::array diffOptions{
    OptionRow{"--format", Value::Choice, "text|json", "text (default): tables for people; json: one object"},
    OptionRow{"A", Value::File, "", "File with the inputs of the first comparison; \"-\" is standard input",
              true},
    OptionRow{"B", Value::File, "", "The same for the second comparison", true},
};

constexpr std::array reportOptions{
    OptionRow{"--output", Value::Output, "OUT.pdf", "The PDF to write, *.pdf; \"-\" is standard output",
              true},
    OptionRow{"--sections", Value::Text, "LIST",
              "cashflow,morehome,affordability,summary,assumptions, all (default) or none"},
    paperRow,
    orientationRow,
    logoRow,
    builderRow,
    buyerRow,
    oneInput,
};

constexpr std::array briefOptions{
    OptionRow{"--output", Value::Output, "OUT.pdf", "The PDF to write, *.pdf; \"-\" is standard output",
              true},
    paperRow,
    logoRow,
    builderRow,
    buyerRow,
    oneInput,
};

constexpr std::array chartOptions{
    OptionRow{"--output", Value::Output, "OUT",
              "The picture to write, *.png or *.svg; \"-\" is standard output", true},
    OptionRow{"--tab", Value::Choice, "cashflow|affordability|summary",
              "The tab with the chart (default: summary)"},
    OptionRow{"--format", Value::Choice, "png|svg",
              "The format (default: by the ending of the name; png for standard output)"},
    OptionRow{"--width", Value::Text, "PIXELS", "In pixels of 1/96 inch, 200 to 4000 (default: 960)"},
    OptionRow{"--height", Value::Text, "PIXELS", "In pixels of 1/96 inch, 200 to 4000 (default: 600)"},
    oneInput,
};

constexpr OptionRow settingKey{"KEY", Value::Setting, "", "Such as YEARS_IN_HOME", true};

constexpr std::array getOptions{settingKey};

constexpr std::array setOptions{
    OptionRow{"--force", Value::None, "", "Write a key that is not a setting of Ledgrove"},
    settingKey,
    OptionRow{"VALUE", Value::Text, "", "May begin with \"-\"", true},
};

constexpr std::array commands{
    CommandRow{"ledgrove", "Compares the cost of a base home with that of an energy-efficient one",
               windowOptions, "ledgrove home.ledgrove.json"},
    CommandRow{"ledgrove-cli",
               "Compares the cost of a base home with that of an energy-efficient one, without a window",
               {},
               "ledgrove-cli compare home.ledgrove.json"},
    CommandRow{"ledgrove-cli compare", "Compare homes: one comparison, a stream of them or a price list",
               compareOptions, "ledgrove-cli compare --format csv prices.csv > results.csv"},
    CommandRow{"ledgrove-cli insight",
               "Answer the questions that a comparison raises: how far it pays, who qualifies",
               insightOptions, "ledgrove-cli insight --view breakeven,qualify home.ledgrove.json"},
    CommandRow{"ledgrove-cli range", "List every saved house for a buyer: cost, savings, who qualifies",
               rangeOptions, "ledgrove-cli range --options all home.ledgrove.json"},
    CommandRow{"ledgrove-cli diff",
               "Show what differs between two comparisons, and how much each input contributes", diffOptions,
               "ledgrove-cli diff before.json after.json"},
    CommandRow{"ledgrove-cli report", "Write the report of a comparison as PDF", reportOptions,
               "ledgrove-cli report --output comparison.pdf --buyer \"Pat Doe\" home.ledgrove.json"},
    CommandRow{"ledgrove-cli brief", "Write a comparison on one page for the buyer, as PDF", briefOptions,
               "ledgrove-cli brief --output brief.pdf --buyer \"Pat Doe\" home.ledgrove.json"},
    CommandRow{"ledgrove-cli chart", "Write a chart of a comparison as a picture", chartOptions,
               "ledgrove-cli chart --output savings.png home.ledgrove.json"},
    CommandRow{"ledgrove-cli settings",
               "Read and change Ledgrove.ini",
               {},
               "ledgrove-cli settings set BUILDERNAME \"Acme Homes\""},
    CommandRow{"ledgrove-cli settings get", "Print the value of a key", getOptions,
               "ledgrove-cli settings get YEARS_IN_HOME"},
    CommandRow{"ledgrove-cli settings set", "Change the value of a key", setOptions,
               "ledgrove-cli settings set BUILDERNAME \"Acme Homes\""},
    CommandRow{"ledgrove-cli settings check",
               "Name the lines that cannot be used",
               {},
               "ledgrove-cli settings check"},
    CommandRow{"ledgrove-cli settings houses",
               "List the saved house scenarios as CSV",
               {},
               "ledgrove-cli settings houses > houses.csv"},
};

constexpr std::array commonOptions{
    OptionRow{"--folder", Value::Folder, "DIR", "The folder of Ledgrove.ini (default: the program's own)"},
    OptionRow{"--version", Value::None, "", "Show the version"},
    OptionRow{"--help", Value::None, "", "Show this help"},
};

constexpr std::array statuses{
    StatusRow{0, "success"},
    StatusRow{1, "some input was refused"},
    StatusRow{2, "the command line, the settings or a file cannot be used; standard error says what to do"},
};

} // namespace

std::span<const CommandRow> CommandTable() {
    return commands;
}

const CommandRow& CommandNamed(std::string_view name) {
    return *std::find_if(commands.begin(), commands.end(),
                         [name](const CommandRow& row) { return row.Name == name; });
}

std::vector<std::string> CommandsBelow(std::string_view name) {
    std::vector<std::string> below;
    const std::string beginning = std::string(name) + " ";
    for (const CommandRow& row : commands) {
        if (!row.Name.starts_with(beginning))
            continue;
        const std::string_view rest = row.Name.substr(beginning.size());
        if (rest.find(' ') == std::string_view::npos)
            below.emplace_back(rest);
    }
    return below;
}

const OptionRow& OptionOf(const CommandRow& command, std::string_view name) {
    const auto isNamed = [name](const OptionRow& row) { return row.Name == name; };
    const auto common = std::find_if(commonOptions.begin(), commonOptions.end(), isNamed);
    return common != commonOptions.end()
               ? *common
               : *std::find_if(command.Options.begin(), command.Options.end(), isNamed);
}

std::span<const OptionRow> CommonOptions() {
    return commonOptions;
}

std::span<const StatusRow> StatusTable() {
    return statuses;
}

} // namespace Ledgrove
