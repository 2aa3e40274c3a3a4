// Plays a metafile from standard input into a PNG on standard output: ledgrove-metafile LONGEST-SIDE. A
// program of its own, because a metafile is a program, too: what it costs is bounded here, and when it breaks
// the library that plays it, only its picture is missing.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include <sys/resource.h>

extern "C" {
#include <libwmf/api.h>
#include <libwmf/gd.h>
}

namespace {

constexpr int failed = 1;
constexpr rlim_t mostSeconds = 1;
constexpr rlim_t mostMemory = rlim_t{64} * 1024 * 1024;
constexpr std::size_t largestFile = std::size_t{64} * 1024 * 1024;

constexpr unsigned long quietly =
    WMF_OPT_FUNCTION | WMF_OPT_IGNORE_NONFATAL | WMF_OPT_NO_ERROR | WMF_OPT_NO_DEBUG;

struct ApiCloser {
    void operator()(wmfAPI* api) const { wmf_api_destroy(api); }
};
using Api = std::unique_ptr<wmfAPI, ApiCloser>;

Api MakeApi() {
    wmfAPI_Options options{};
    options.function = wmf_gd_function;
    wmfAPI* api = nullptr;
    const bool made = wmf_api_create(&api, quietly, &options) == wmf_E_None;
    Api owner(api);
    return made ? std::move(owner) : nullptr;
}

struct Drawing {
    wmfD_Rect Box{};
    unsigned Width = 0;
    unsigned Height = 0;
};

/// The metafile's extent in `drawing`; false when it is damaged.
bool Measure(wmfAPI* api, std::string& bytes, Drawing& drawing) {
    return wmf_mem_open(api, reinterpret_cast<unsigned char*>(bytes.data()),
                        static_cast<long>(bytes.size())) == wmf_E_None &&
           wmf_scan(api, 0, &drawing.Box) == wmf_E_None &&
           wmf_display_size(api, &drawing.Width, &drawing.Height, 96, 96) == wmf_E_None &&
           drawing.Width > 0 && drawing.Height > 0;
}

bool Play(wmfAPI* api, Drawing drawing, int longestSide) {
    // The drawing is scaled to a sensible size: a metafile's own may be tiny or millions of pixels wide.
    const double scale = static_cast<double>(longestSide) / std::max(drawing.Width, drawing.Height);
    const auto scaled = [scale](unsigned side) { return std::max(1U, static_cast<unsigned>(side * scale)); };
    wmf_gd_t* const target = WMF_GD_GetData(api);
    target->bbox = drawing.Box;
    target->type = wmf_gd_png;
    target->flags |= WMF_GD_OUTPUT_FILE;
    target->file = stdout;
    target->width = scaled(drawing.Width);
    target->height = scaled(drawing.Height);
    return wmf_play(api, 0, &drawing.Box) == wmf_E_None && std::fflush(stdout) == 0;
}

void Limit(int resource, rlim_t most) {
    const rlimit limit{most, most};
    setrlimit(resource, &limit);
}

std::string ReadInput() {
    std::string bytes;
    char piece[4096];
    for (std::size_t size = 0; (size = std::fread(piece, 1, sizeof piece, stdin)) > 0;) {
        bytes.append(piece, size);
        if (bytes.size() > largestFile)
            return {};
    }
    return bytes;
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 2 && std::string_view(argv[1]) == "--version") {
        std::puts("ledgrove-metafile " LEDGROVE_VERSION);
        return 0;
    }
    const int longestSide = argc == 2 ? std::atoi(argv[1]) : 0;
    if (longestSide < 1 || longestSide > 4000) {
        std::fputs("ledgrove-metafile LONGEST-SIDE turns the metafile on standard input into a PNG.\n",
                   stderr);
        return failed;
    }
    std::string bytes = ReadInput();
    Limit(RLIMIT_CPU, mostSeconds);
    Limit(RLIMIT_DATA, mostMemory);
    Limit(RLIMIT_CORE, 0);
    const Api api = MakeApi();
    Drawing drawing;
    return api && Measure(api.get(), bytes, drawing) && Play(api.get(), drawing, longestSide) ? 0 : failed;
}
