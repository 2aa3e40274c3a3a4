// Converts a metafile on standard input to a PNG on standard output: ledgrove-metafile LONGEST-SIDE. This is
// a separate program because a metafile is a list of drawing commands: here its time and memory are limited,
// and if it crashes the library, only the picture is missing.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include <sys/resource.h>

#include "app/metafile/Frame.h"

extern "C" {
#include <libwmf/api.h>
#include <libwmf/gd.h>
#include <libwmf/ipa.h>
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

using BitmapReader = void (*)(wmfAPI*, wmfBMP_Read_t*);

/// Reads a bitmap with the library's own reader. The library silently omits a bitmap that is truncated or too
/// large; reporting an error instead stops the conversion, so no incomplete picture is shown.
void ReadBitmap(wmfAPI* api, wmfBMP_Read_t* bitmap) {
    (*static_cast<BitmapReader*>(api->user_data))(api, bitmap);
    if (bitmap->bmp.data == nullptr)
        api->err = wmf_E_BadFormat;
}

/// Sets `libraryReader` to the library's own bitmap reader. It must outlive the returned object.
Api MakeApi(BitmapReader& libraryReader) {
    wmfAPI_Options options{};
    options.function = wmf_gd_function;
    wmfAPI* api = nullptr;
    const bool made = wmf_api_create(&api, quietly, &options) == wmf_E_None;
    Api owner(api);
    if (!made)
        return nullptr;
    auto& functions = *static_cast<wmfFunctionReference*>(api->function_reference);
    libraryReader = std::exchange(functions.bmp_read, ReadBitmap);
    api->user_data = &libraryReader;
    return owner;
}

struct Drawing {
    wmfD_Rect Box{};
    unsigned Width = 0;
    unsigned Height = 0;
};

/// Stores the extent of what the metafile draws in `box`. Returns false if the metafile is damaged.
bool Scan(wmfAPI* api, std::string& bytes, wmfD_Rect& box) {
    return wmf_mem_open(api, reinterpret_cast<unsigned char*>(bytes.data()),
                        static_cast<long>(bytes.size())) == wmf_E_None &&
           wmf_scan(api, 0, &box) == wmf_E_None;
}

/// Replaces the extent of what is drawn by the frame of the placeable header, if there is one: the library
/// looks at the frame's size only, and would omit the margins.
void UseFrame(const std::string& bytes, wmfD_Rect& box) {
    std::string frame = Ledgrove::FrameMetafile(bytes);
    if (frame.empty())
        return;
    BitmapReader libraryReader = nullptr;
    const Api api = MakeApi(libraryReader);
    wmfD_Rect found{};
    if (api && Scan(api.get(), frame, found) && found.BR.x > found.TL.x && found.BR.y > found.TL.y)
        box = found;
}

/// Stores the metafile's extent in `drawing`. Returns false if the metafile is damaged.
bool Measure(wmfAPI* api, std::string& bytes, Drawing& drawing) {
    if (!Scan(api, bytes, drawing.Box) ||
        wmf_display_size(api, &drawing.Width, &drawing.Height, 96, 96) != wmf_E_None)
        return false;
    UseFrame(bytes, drawing.Box);
    return drawing.Width > 0 && drawing.Height > 0;
}

bool Play(wmfAPI* api, Drawing drawing, int longestSide) {
    // The drawing is scaled, because a metafile's own size may be tiny or millions of pixels.
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

/// Returns false if the limit cannot be set. Keeps a lower limit that is already set.
bool Limit(int resource, rlim_t most) {
    rlimit limit{};
    if (getrlimit(resource, &limit) != 0)
        return false;
    limit.rlim_max = std::min(limit.rlim_max, most);
    limit.rlim_cur = std::min(limit.rlim_cur, limit.rlim_max);
    return setrlimit(resource, &limit) == 0;
}

/// Limits the time and memory of the conversion. Returns false if that fails; the metafile must not be read
/// then.
bool LimitCosts() {
    return Limit(RLIMIT_CPU, mostSeconds) && Limit(RLIMIT_DATA, mostMemory) && Limit(RLIMIT_CORE, 0);
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
        std::fputs(
            "Usage: ledgrove-metafile LONGEST-SIDE < METAFILE > PNG (LONGEST-SIDE: 1 to 4000 pixels)\n",
            stderr);
        return failed;
    }
    std::string bytes = ReadInput();
    if (!LimitCosts())
        return failed;
    BitmapReader libraryReader = nullptr;
    const Api api = MakeApi(libraryReader);
    Drawing drawing;
    return api && Measure(api.get(), bytes, drawing) && Play(api.get(), drawing, longestSide) ? 0 : failed;
}
