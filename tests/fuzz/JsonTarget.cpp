// Reads any text as the JSON of one comparison, or as one comparison per line.

#include "CompareSession.h"
#include "Fuzz.h"

#include "app/batch/JsonCompare.h"

#include <rapidjson/document.h>

namespace {

using namespace Ledgrove;
using Fuzz::Require;

bool IsObject(std::string_view text) {
    rapidjson::Document document;
    document.Parse<rapidjson::kParseValidateEncodingFlag>(text.data(), text.size());
    return !document.HasParseError() && document.IsObject();
}

void CheckLines(std::string_view output) {
    while (!output.empty()) {
        const std::size_t end = output.find('\n');
        Require(end != output.npos, "every result is a whole line");
        Require(IsObject(output.substr(0, end)), "every result is a JSON object in UTF-8");
        output.remove_prefix(end + 1);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Fuzz::Pieces pieces(Fuzz::TextOf(data, size));
    const std::uint8_t choice = pieces.Byte();
    if (choice % 3 == 0)
        CheckLines(Fuzz::OutputOf<JsonLinesReader>(pieces.Rest()));
    else if (choice % 3 == 1)
        Require(IsObject(Fuzz::OutputOf<JsonReader>(pieces.Rest(), JsonReader::Result::Json)),
                "the result is a JSON object in UTF-8");
    else
        Fuzz::OutputOf<JsonReader>(pieces.Rest(), JsonReader::Result::Table);
    return 0;
}
