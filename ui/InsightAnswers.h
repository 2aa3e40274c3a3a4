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
#include "ui/SettingFields.h"

namespace Ledgrove {

/// What the Insight window asks.
struct InsightAsk {
    InsightQuestion Question = InsightQuestion::InShort;
    /// What "Where does this number come from?" is about: a figure's name ("GMHCase.PITI") or a label that
    /// shows it ("lblGMHPITI"); an unknown one gives the monthly net.
    std::string Figure = {};
    int Year = 0; ///< whose months "Year by year" lists; 0 or a year without a row for all years
};

/// The answer to a question of the Insight window.
struct InsightAnswer {
    std::string Missing = {};  ///< why there is no answer; empty if there is one
    std::string Sentence = {}; ///< the answer in words
    Sheet Table = {};
    std::optional<ChartFigures> Picture = {}; ///< empty if the table is all
    std::optional<Explanation> Chain = {};    ///< of "Where does this number come from?": all figures
    std::string Figure = {};                  ///< the one that the table derives
    int Years = 0;                         ///< of "Year by year": the years whose months it can list; else 0
    int Year = 0;                          ///< the one whose months it lists; 0 for all years
    std::vector<SettingField> Fields = {}; ///< the settings that can be tried with this question
};

/// Answers one question about the session's inputs, and computes nothing else. The views over the years go by
/// `years`.
InsightAnswer AnswerOf(const InsightAsk& ask, const Session& session, const YearSettings& years);

/// The same by the session's settings.
InsightAnswer AnswerOf(const InsightAsk& ask, const Session& session);

/// The same with what is tried, and with its fields.
InsightAnswer AnswerOf(const InsightAsk& ask, const Session& session, const TriedSettings& settings);

/// How far the sensitivity moves each input, in percent.
inline constexpr double UsualBy = 10;

/// The answers to several questions, in their order, or why there are none.
struct InsightAnswerList {
    std::string Missing = {};
    std::vector<InsightAnswer> Answers = {};
};

/// The same for several questions at once, with tables that fit on paper. `by` is the percentage of the
/// sensitivity.
InsightAnswerList AnswersOf(std::span<const InsightAsk> asks, const Session& session,
                            const YearSettings& years, double by = UsualBy);

/// What entering a cell of the map means: the labelled home's price and utility bill that give its price
/// difference and saving. Empty for a cell that is not possible.
std::vector<EntryText> EntriesOfCell(const Session& session, const ChartGrid& grid, std::size_t column,
                                     std::size_t row);

} // namespace Ledgrove
