#pragma once

#include <string>
#include <vector>

namespace Ledgrove {

/// The words of the command line, last first, as the parser takes them. The word behind "set KEY" is the
/// value even if it begins with "-"; the parser is told so by putting both behind "--".
std::vector<std::string> ParserWords(int argc, char** argv);

} // namespace Ledgrove
