#pragma once

#include <string>
#include <string_view>

// Completion for a shell's command line, made from the table of commands. `program` is "ledgrove" or
// "ledgrove-cli". Each returns the text of the file that the shell loads.
namespace Ledgrove {

std::string BashCompletion(std::string_view program);
std::string ZshCompletion(std::string_view program);
std::string FishCompletion(std::string_view program);

} // namespace Ledgrove
