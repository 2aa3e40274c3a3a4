#include "app/files/KeptVersions.h"

#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include "app/batch/JsonInput.h"

namespace Ledgrove {

namespace {

const rapidjson::Value* Member(const rapidjson::Value& object, const char* name) {
    if (!object.IsObject())
        return nullptr;
    const auto found = object.FindMember(name);
    return found == object.MemberEnd() ? nullptr : &found->value;
}

/// Beside the inputs, or among the labels, where a reader that knows no versions passes over them.
const rapidjson::Value* ListOf(const rapidjson::Value& file) {
    if (const auto* const list = Member(file, "versions"))
        return list;
    const auto* const labels = Member(file, "labels");
    return labels ? Member(*labels, "versions") : nullptr;
}

std::string TextOf(const rapidjson::Value* value) {
    return value && value->IsString() ? std::string(value->GetString(), value->GetStringLength()) : "";
}

/// Through the reader of comparisons, so that a version is what a file of its own would be.
bool ReadInputsOf(const rapidjson::Value* fields, InputRecord& inputs) {
    if (!fields || !fields->IsObject())
        return false;
    // No input is a list or an object, and a deeply nested one would take all of the stack.
    for (const auto& [name, value] : fields->GetObject())
        if (value.IsObject() || value.IsArray())
            return false;
    rapidjson::StringBuffer buffer;
    rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
    fields->Accept(writer);
    return !ReadJsonObject({buffer.GetString(), buffer.GetSize()}, inputs);
}

} // namespace

VersionsOfFile ReadVersions(std::string_view text) {
    VersionsOfFile read;
    rapidjson::Document file;
    file.Parse<rapidjson::kParseIterativeFlag>(text.data(), text.size());
    const auto* const list = file.HasParseError() ? nullptr : ListOf(file);
    if (!list)
        return read;
    if (!list->IsArray()) {
        read.Unreadable = 1;
        return read;
    }
    for (const rapidjson::Value& one : list->GetArray()) {
        KeptVersion version{TextOf(Member(one, "name")), TextOf(Member(one, "kept")), {}};
        const bool isRead = !version.Name.empty() && version.Name.size() <= LongestVersionName &&
                            ReadInputsOf(Member(one, "fields"), version.Inputs);
        if (isRead)
            read.Versions.push_back(std::move(version));
        else
            ++read.Unreadable;
    }
    return read;
}

} // namespace Ledgrove
