#include "app/files/ComparisonFile.h"

#include <fstream>
#include <iterator>

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

#include "app/batch/EntryInputs.h"
#include "app/batch/ObjectInput.h"
#include "app/files/ScreenInputs.h"
#include "base/FileKind.h"
#include "base/Text.h"
#include "engine/Recalculate.h"
#include "ui/InputWords.h"
#include "ui/MainScreenRules.h"

namespace Ledgrove {

namespace {

rapidjson::SizeType Length(std::string_view text) {
    return static_cast<rapidjson::SizeType>(text.size());
}

/// Keeps the selected tab, because a file does not store one.
void PutScreen(Session& session, const Session& from) {
    const int tab = session.Screen.SSTab1;
    const auto panels = session.Screen.DetlFrame;
    session.Screen = from.Screen;
    session.Screen.SSTab1 = tab;
    session.Screen.DetlFrame = panels;
    static_cast<Results&>(session) = from;
    session.ChosenHouse = from.ChosenHouse;
}

/// A start value that nobody has entered is shown without its format, and so it is saved.
void KeepStartTexts(MainScreen& screen, const MainScreen& start, const InputRecord& saved) {
    for (const EntryInput& entry : EntryInputs()) {
        const std::string& text = (start.*entry.Rule.Member).Text;
        if (saved[entry.Which].Present && saved[entry.Which].Text == text)
            (screen.*entry.Rule.Member).Text = text;
    }
}

/// The state that a comparison starts from: a new screen with the current tables.
Session FreshSession(const Session& session, const Session& start) {
    Session fresh = session;
    PutScreen(fresh, start);
    return fresh;
}

std::string Unreadable(const std::filesystem::path& file, const std::string& reason) {
    return Quoted(file.string()) + " cannot be read: " + reason +
           ". Choose a file that Ledgrove saved, and check that you may read it.";
}

bool IsEmpty(const std::filesystem::path& file) {
    std::error_code error;
    return std::filesystem::file_size(file, error) == 0 && !error;
}

/// Speaks of inputs by the words of the window, because a home buyer knows neither JSON nor its keys.
std::string NoComparison(const std::filesystem::path& file, const Refusal& refusal) {
    const std::string start = Quoted(file.string()) + " is not a comparison that Ledgrove can open. ";
    const std::string choose = " Choose a file that Ledgrove saved.";
    if (refusal.Control.empty() && IsEmpty(file))
        return start + "It is empty." + choose;
    if (refusal.Control.empty())
        return start + "It holds something else, or it is damaged." + choose;
    const std::string_view words = InputWords(refusal.Control);
    if (words.empty())
        return start + "It holds " + Excerpt(refusal.Control) + ", which is not an input of Ledgrove." +
               choose;
    return start + std::string(words) + ' ' + Excerpt(refusal.Value) + ": " + refusal.Message +
           " Correct this in the file, or enter the comparison again and save it.";
}

/// Does not show the message that belongs to choosing an option, because the user only opened a file.
void ShowNotices(const Comparison& comparison, Host& host) {
    const auto atChoice = Module1::OptionMessage(comparison.State().Screen.cboGMHMortOption.Option());
    for (const Message& message : comparison.Messages()) {
        if (!atChoice || message.Text != atChoice->Text)
            host.ShowMessage(message);
    }
}

using Writer = rapidjson::PrettyWriter<rapidjson::StringBuffer>;

void WriteText(Writer& writer, std::string_view key, std::string_view text) {
    writer.Key(key.data(), Length(key));
    writer.String(text.data(), Length(text));
}

void WriteInputs(Writer& writer, const InputRecord& inputs) {
    writer.StartObject();
    for (const auto& [input, name] : InputTable) {
        const InputValue& value = inputs[input];
        if (!value.Present)
            continue;
        if (value.Kind == InputKind::Text) {
            WriteText(writer, name, value.Text);
        } else {
            writer.Key(name.data(), Length(name));
            writer.RawValue(value.Text.data(), value.Text.size(), rapidjson::kNumberType);
        }
    }
    writer.EndObject();
}

void WriteWithVersions(Writer& writer, const InputRecord& inputs, const KeptVersions& versions) {
    writer.StartObject();
    writer.Key("fields");
    WriteInputs(writer, inputs);
    writer.Key("labels");
    writer.StartObject();
    writer.Key("versions");
    writer.StartArray();
    for (const KeptVersion& version : versions) {
        writer.StartObject();
        WriteText(writer, "name", version.Name);
        WriteText(writer, "kept", version.Kept);
        writer.Key("fields");
        WriteInputs(writer, version.Inputs);
        writer.EndObject();
    }
    writer.EndArray();
    writer.EndObject();
    writer.EndObject();
}

} // namespace

std::string ComparisonText(const MainScreen& screen, const KeptVersions& versions) {
    rapidjson::StringBuffer buffer;
    Writer writer(buffer);
    writer.SetIndent(' ', 2);
    if (versions.empty())
        WriteInputs(writer, ScreenInputs(screen));
    else
        WriteWithVersions(writer, ScreenInputs(screen), versions);
    return std::string(buffer.GetString(), buffer.GetSize()) + '\n';
}

void NewComparison(Session& session, const Session& start, Host& host) {
    PutScreen(session, start);
    Module1::Recalculate(session, host);
    Module1::RefreshFeatureCaptions(session);
}

std::optional<std::string> OpenComparison(const std::filesystem::path& file, Session& session,
                                          const Session& start, Host& host) {
    if (const std::string reason = NotAFile(file); !reason.empty())
        return Unreadable(file, reason);
    Comparison comparison(FreshSession(session, start));
    const ObjectInput input = RunObjectFile(file.string(), comparison);
    if (!input.Unreadable.empty())
        return Unreadable(file, input.Unreadable);
    if (input.Refused)
        return NoComparison(file, *input.Refused);
    PutScreen(session, comparison.State());
    KeepStartTexts(session.Screen, start.Screen, input.Inputs);
    ShowNotices(comparison, host);
    return std::nullopt;
}

VersionsOfFile VersionsIn(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    return stream.bad() ? VersionsOfFile() : ReadVersions(text);
}

InputsResult ComparisonOf(const InputRecord& inputs, const Session& session, const Session& start) {
    Comparison comparison(FreshSession(session, start));
    if (const auto refusal = comparison.Run(inputs))
        return {std::string(InputWords(refusal->Control)) + ' ' + Excerpt(refusal->Value) + ": " +
                    refusal->Message,
                {}};
    return {"", comparison.State()};
}

} // namespace Ledgrove
