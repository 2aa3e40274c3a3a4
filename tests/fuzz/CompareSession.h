#pragma once

#include "app/batch/Comparison.h"
#include "app/batch/LineReader.h"
#include "app/batch/OutputBuffer.h"
#include "ui/StartUp.h"

#include "Fuzz.h"

namespace Ledgrove::Fuzz {

/// A comparison with the shipped settings.
inline Comparison& ShippedComparison() {
    static Comparison comparison = [] {
        Session session;
        CollectingHost host;
        Require(!Module1::LoadMainScreen(session, host, LEDGROVE_SOURCE_DIR "/data"),
                "the shipped settings are read");
        return Comparison(session);
    }();
    return comparison;
}

/// Runs a reader on the input and returns its output.
template <typename Reader, typename... Options>
std::string OutputOf(std::string_view input, Options... options) {
    static const MemoryFile in;
    static const MemoryFile out;
    static OutputBuffer output(out.Descriptor()); // a quarter of a megabyte, allocated once
    in.SetContent(input);
    out.SetContent("");
    Reader reader(ShippedComparison(), options...);
    LineReader lines(in.Descriptor(), [] {});
    reader.Read(lines, output);
    output.Flush();
    Require(output.Failure().empty() && lines.Failure().empty(), "reading and writing go well");
    return out.Content();
}

} // namespace Ledgrove::Fuzz
