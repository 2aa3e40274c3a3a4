#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "ui/InsightQuestions.h"
#include "ui/TriedSettings.h"

// The settings of the views over the years as fields of the Insight window.
namespace Ledgrove {

/// A button that fills in the field.
struct SettingChoice {
    std::string Caption; ///< with its access key
    std::string Text;    ///< "$16,100"
};

struct SettingField {
    std::string_view Key;
    std::string_view Caption; ///< with its access key: "Utility bills &grow by"
    std::string_view Name;    ///< for screen readers
    std::string Text;         ///< the value in force
    bool IsTried = false;     ///< not the kept value
    std::vector<SettingChoice> Choices = {};
    /// The texts of a slider's places; empty without a slider.
    std::vector<std::string> Slider = {};
    int SliderAt = 0; ///< the place of the value, or the nearest end
};

/// The settings that a question's fields change, in the order of the fields; empty for most questions.
std::vector<std::string_view> FieldKeysOf(InsightQuestion question);

std::vector<SettingField> FieldsOf(InsightQuestion question, const TriedSettings& settings);

/// The setting in words: "growth of utility bills". `key` must be one of the table.
std::string_view WordsOfSetting(std::string_view key);

/// What is tried and not kept among the settings that the question uses and has no fields for, as a sentence;
/// "" if nothing is.
std::string TriedElsewhere(InsightQuestion question, const TriedSettings& settings);

} // namespace Ledgrove
