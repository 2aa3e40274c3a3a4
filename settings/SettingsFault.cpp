#include "settings/SettingsFault.h"

#include "base/Text.h"

namespace Ledgrove {
namespace {

std::string InterruptedSave(const SettingsFault& fault, const std::string& path) {
    const std::string name = fault.Text.empty() ? "Ledgrove.ini" : fault.Text;
    const std::string remedy = "Your settings are in " + path + ". Rename that file to " + Quoted(name) + ".";
    if (fault.Reason.empty())
        return "The last save was interrupted. " + remedy;
    return "The new settings file could not be renamed (" + fault.Reason + "). " + remedy;
}

} // namespace

std::string Sentence(const SettingsFault& fault) {
    const std::string path = Quoted(fault.Path.string());
    switch (fault.What) {
    case SettingsFault::Kind::Missing:
        return "The settings file " + path +
               " is missing. Copy the \"Ledgrove.ini\" that came with the program into that folder.";
    case SettingsFault::Kind::InterruptedSave:
        return InterruptedSave(fault, path);
    case SettingsFault::Kind::Unreadable:
        return "The settings file " + path + " cannot be read (" + fault.Reason +
               "). Check that it is an ordinary file and that you may read it.";
    case SettingsFault::Kind::Unwritable:
        return "The settings were not saved: " + path + " cannot be written (" + fault.Reason +
               "). Check that you may write to that folder and that the disk is not full, then save again.";
    case SettingsFault::Kind::Unconfirmed:
        return "The settings were written to " + path + ", but the disk did not confirm it (" + fault.Reason +
               "). Check the disk, then save again.";
    case SettingsFault::Kind::Busy:
        return "The settings file " + path +
               " is being saved by another copy of the program. Wait until that copy has finished, or close "
               "it, then try again.";
    case SettingsFault::Kind::BadLine:
        return "Line " + std::to_string(fault.Line) + " of the settings file " + path + " cannot be used (" +
               fault.Reason + "): " + Excerpt(fault.Text) + ". Correct that line.";
    case SettingsFault::Kind::MissingKey:
        return "The settings file " + path + " has no line for " + Excerpt(fault.Text) +
               ". Check the spelling (keys are upper case), or add the line: key, \"=\", value.";
    case SettingsFault::Kind::RefusedText:
        return "The settings were not saved to " + path + ": " + Excerpt(fault.Text) + " contains " +
               fault.Reason + ". Remove it, then save again.";
    }
    return {};
}

} // namespace Ledgrove
