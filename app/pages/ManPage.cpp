#include "app/pages/ManPage.h"

#include <algorithm>

#include "app/batch/ResultNames.h"
#include "app/options/CommandTable.h"

namespace Ledgrove {

namespace {

/// Text of a line of the page. A hyphen would become a typographic one, which cannot be copied into a shell.
std::string Escaped(std::string_view text) {
    std::string escaped;
    if (text.starts_with('.') || text.starts_with('\''))
        escaped += "\\&";
    for (const char c : text) {
        if (c == '\\')
            escaped += "\\e";
        else if (c == '-')
            escaped += "\\-";
        else
            escaped += c;
    }
    return escaped;
}

bool IsOperand(const OptionRow& option) {
    return !option.Name.starts_with('-');
}

/// "\fB--paper\fR \fIletter|a4|legal\fR"
std::string Usage(const OptionRow& option) {
    if (IsOperand(option))
        return "\\fI" + Escaped(option.Name) + "\\fR" + (option.IsList ? " ..." : "");
    std::string usage = "\\fB" + Escaped(option.Name) + "\\fR";
    if (!option.Values.empty())
        usage += " \\fI" + Escaped(option.Values) + "\\fR";
    return usage;
}

std::string Synopsis(const CommandRow& command) {
    std::string line = "\\fB" + Escaped(command.Name) + "\\fR [\\fB\\-\\-folder\\fR \\fIDIR\\fR]";
    for (const OptionRow& option : command.Options)
        line += option.IsRequired ? " " + Usage(option) : " [" + Usage(option) + "]";
    return ".TP\n" + line + "\n";
}

std::string Options(std::span<const OptionRow> options) {
    std::string text;
    for (const OptionRow& option : options)
        text += ".TP\n" + Usage(option) + "\n" + Escaped(option.Meaning) +
                (option.IsRequired && !IsOperand(option) ? " (required).\n" : ".\n");
    return text;
}

std::string Example(const CommandRow& command) {
    return ".PP\n.nf\n.RS\n" + Escaped(command.Example) + "\n.RE\n.fi\n";
}

bool HasCommandsBelow(const CommandRow& command) {
    return !CommandsBelow(command.Name).empty();
}

bool BelongsTo(const CommandRow& command, std::string_view program) {
    return command.Name == program || command.Name.starts_with(std::string(program) + " ");
}

std::string InputKeys() {
    std::string text =
        ".SH INPUT\n"
        "A comparison is a JSON object. Its keys are the inputs of the main window, and each value is "
        "what a person would type there:\n";
    for (const ResultName& name : ResultNames())
        if (name.Member == "fields")
            text += ".TP\n\\fB" + Escaped(name.Key) + "\\fR\n" + Escaped(name.Meaning) + ".\n";
    return text + ".PP\nA price list has these names, or the captions of the window, in its heading row. Its "
                  "other columns "
                  "are kept as they are.\n";
}

std::string ExitStatus() {
    std::string text = ".SH EXIT STATUS\n";
    for (const StatusRow& row : StatusTable())
        text += ".TP\n.B " + std::to_string(row.Status) + "\n" + Escaped(row.Meaning) + ".\n";
    return text;
}

std::string Files() {
    return ".SH FILES\n.TP\n.I Ledgrove.ini\nAssumptions, loan types, tax schedule, saved house scenarios "
           "and the "
           "report's header, in the program's folder or the one that \\fB\\-\\-folder\\fR names. The program "
           "and "
           "\\fBledgrove\\-cli settings\\fR change it.\n.TP\n.I *.ledgrove.json\nA comparison, as the window "
           "saves it "
           "and every command reads it.\n";
}

std::string Lowered(std::string_view summary) {
    std::string text(summary);
    if (!text.empty() && text[0] >= 'A' && text[0] <= 'Z')
        text[0] = static_cast<char>(text[0] - 'A' + 'a');
    return text;
}

} // namespace

std::string ManPage(std::string_view program, std::string_view version, std::string_view date) {
    const bool isCli = program == "ledgrove-cli";
    const CommandRow& head = CommandNamed(program);
    std::string name(program);
    std::transform(name.begin(), name.end(), name.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    std::string page = ".TH " + Escaped(name) + " 1 " + std::string(date) + " \"Ledgrove " +
                       std::string(version) + "\" \"Ledgrove\"\n.ad l\n.nh\n.SH NAME\n" + Escaped(program) +
                       " \\- " + Escaped(Lowered(head.Summary)) + "\n.SH SYNOPSIS\n";
    for (const CommandRow& command : CommandTable())
        if (BelongsTo(command, program) && !HasCommandsBelow(command))
            page += Synopsis(command);
    page += ".SH DESCRIPTION\nLedgrove compares a base home with an energy\\-efficient one: down payment, "
            "mortgage, "
            "PMI, taxes, insurance, utility bills, income\\-tax savings, net monthly cash flow, the present "
            "value of "
            "the energy savings, and the loan that the buyer qualifies for.\n";
    page += isCli ? ".PP\nThis is the program without a window, for scripts and price lists.\n"
                  : ".PP\nF1 opens the help in the window.\n";
    page += ".SH OPTIONS\n" + Options(CommonOptions());
    if (isCli)
        page += ".SH COMMANDS\n";
    for (const CommandRow& command : CommandTable()) {
        if (!BelongsTo(command, program) || HasCommandsBelow(command))
            continue;
        if (isCli)
            page += ".SS " + Escaped(command.Name.substr(program.size() + 1)) + "\n" +
                    Escaped(command.Summary) + ".\n";
        page += Options(command.Options) + Example(command);
    }
    if (isCli)
        page += InputKeys() + ExitStatus();
    return page + Files() + ".SH SEE ALSO\n.BR " +
           (isCli ? "ledgrove (1)\n.PP\n\\fIdocs/cli.md\\fR in the program's folder describes every result.\n"
                  : "ledgrove\\-cli (1)\n");
}

} // namespace Ledgrove
