#pragma once

#include <string>
#include <vector>

namespace Ledgrove {

/// The words of the command line in reverse order, as the parser expects them. The word after "set KEY" is
/// the value even if it begins with "-": both then move to the end, after "--".
std::vector<std::string> ParserWords(int argc, char** argv);

} // namespace Ledgrove
