#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "app/files/KeptVersions.h"
#include "engine/Host.h"
#include "engine/Session.h"

// A comparison as a file: the inputs of the main screen, in the format that `ledgrove-cli compare` reads.
namespace Ledgrove {

inline constexpr std::string_view ComparisonSuffix = ".ledgrove.json";

/// The screen's inputs as one JSON object, one input per line, in the order of entry. With versions, the
/// inputs are its "fields", and the versions stand beside them among the "labels", which every reader of
/// comparisons passes over.
std::string ComparisonText(const MainScreen& screen, const KeptVersions& versions = {});

/// Resets the inputs to those of `start`, a session after LoadMainScreen, and recalculates. Tables, settings,
/// the report header and the selected tab do not change.
void NewComparison(Session& session, const Session& start, Host& host);

/// Resets the session as above, reads the inputs of a comparison from the file and shows its notices. If the
/// file cannot be read or is not a comparison, returns a message and does not change the session.
std::optional<std::string> OpenComparison(const std::filesystem::path& file, Session& session,
                                          const Session& start, Host& host);

/// The versions in a comparison's file; none if it cannot be read.
VersionsOfFile VersionsIn(const std::filesystem::path& file);

/// The comparison of these inputs, computed with the session's tables, or a message why it cannot be.
/// `inputs` may be a version's.
struct InputsResult {
    std::string Fault; ///< empty if there is a comparison
    Session State;
};
InputsResult ComparisonOf(const InputRecord& inputs, const Session& session, const Session& start);

} // namespace Ledgrove
