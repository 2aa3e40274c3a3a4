#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/Session.h"
#include "insight/Explain.h"
#include "insight/Sheet.h"
#include "ui/ChartFigures.h"
#include "ui/InsightQuestions.h"

namespace Ledgrove {

/// The answer to a question of the Insight window.
struct InsightAnswer {
    std::string Missing = {};  ///< why there is no answer; empty if there is one
    std::string Sentence = {}; ///< the answer in words
    Sheet Table = {};
    std::optional<ChartFigures> Picture = {}; ///< empty if the table is all
    std::optional<Explanation> Chain = {};    ///< of "Where does this number come from?": all figures
    std::string Figure = {};                  ///< the one that the table derives
};

/// Answers one question about the session's inputs, and computes nothing else. `asked` is the figure that
/// "Where does this number come from?" is about, by its name ("GMHCase.PITI") or a label that shows it
/// ("lblGMHPITI"); an unknown one gives the monthly net.
InsightAnswer AnswerOf(InsightQuestion question, const Session& session, std::string_view asked = {});

/// How far the sensitivity moves each input, in percent.
inline constexpr double UsualBy = 10;

/// The answers to several questions, in their order, or why there are none.
struct InsightAnswerList {
    std::string Missing = {};
    std::vector<InsightAnswer> Answers = {};
};

/// The same for several questions at once. `by` is the percentage of the sensitivity.
InsightAnswerList AnswersOf(std::span<const InsightQuestion> questions, const Session& session,
                            std::string_view asked = {}, double by = UsualBy);

/// What entering a cell of the map means: the labelled home's price and utility bill that give its price
/// difference and saving. Empty for a cell that is not possible.
std::vector<EntryText> EntriesOfCell(const Session& session, const ChartGrid& grid, std::size_t column,
                                     std::size_t row);

} // namespace Ledgrove
