// Writes what is made from the table of commands and the table of results: manual pages, the shells'
// completion, and the parts of the documents that name every result. The build runs it; it does not ship.

#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <utility>

#include "app/pages/Completion.h"
#include "app/pages/ManPage.h"
#include "app/pages/ResultPages.h"

namespace {

/// Writes a file below the folder, and the folders on the way. False if that failed.
bool Write(const std::filesystem::path& folder, const std::string& name, const std::string& text) {
    const std::filesystem::path path = folder / name;
    std::error_code error;
    std::filesystem::create_directories(path.parent_path(), error);
    std::ofstream file(path, std::ios::binary);
    file << text;
    file.close();
    if (!file)
        std::cerr << "ledgrove-pages: " << path << " cannot be written.\n";
    return static_cast<bool>(file);
}

} // namespace

int main(int argc, char** argv) {
    using namespace Ledgrove;
    if (argc != 2) {
        std::cerr << "usage: ledgrove-pages FOLDER\n";
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    bool isWritten = Write(folder, "documents/result.schema.json", ResultSchema()) &&
                     Write(folder, "documents/results.md", ResultRows());
    for (const std::string program : {"ledgrove", "ledgrove-cli"}) {
        const std::pair<std::string, std::string> files[] = {
            {"man/man1/" + program + ".1", ManPage(program, LEDGROVE_VERSION, LEDGROVE_RELEASED)},
            {"bash-completion/completions/" + program, BashCompletion(program)},
            {"zsh/site-functions/_" + program, ZshCompletion(program)},
            {"fish/vendor_completions.d/" + program + ".fish", FishCompletion(program)}};
        for (const auto& [name, text] : files)
            isWritten = Write(folder, name, text) && isWritten;
    }
    return isWritten ? 0 : 2;
}
