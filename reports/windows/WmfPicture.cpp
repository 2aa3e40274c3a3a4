#include "reports/windows/WmfPicture.h"

#include "reports/windows/WmfCheck.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>

// Behind Qt: this library's headers define short macros that Qt's headers do not survive.
extern "C" {
#include <libwmf/api.h>
#include <libwmf/gd.h>
}

namespace Ledgrove {

namespace {

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

/// Plays the metafile into PNG bytes; as a bitmap in memory the library would leak it.
QByteArray PlayToPng(wmfAPI* api, wmfD_Rect box, unsigned width, unsigned height) {
    char* png = nullptr;
    std::size_t size = 0;
    FILE* const out = open_memstream(&png, &size);
    if (!out)
        return {};
    wmf_gd_t* const target = WMF_GD_GetData(api);
    target->bbox = box;
    target->type = wmf_gd_png;
    target->flags |= WMF_GD_OUTPUT_FILE;
    target->file = out;
    target->width = width;
    target->height = height;
    const bool played = wmf_play(api, 0, &box) == wmf_E_None;
    std::fclose(out);
    const QByteArray bytes = played ? QByteArray(png, static_cast<qsizetype>(size)) : QByteArray();
    std::free(png);
    return bytes;
}

} // namespace

QImage ReadWmf(const QByteArray& bytes, int longestSide) {
    if (!CheckWmf(bytes))
        return {};
    const Api api = MakeApi();
    if (!api)
        return {};
    QByteArray writable = bytes; // the library's interface wants it so
    wmfD_Rect box{};
    unsigned width = 0;
    unsigned height = 0;
    const bool readable = wmf_mem_open(api.get(), reinterpret_cast<unsigned char*>(writable.data()),
                                       writable.size()) == wmf_E_None &&
                          wmf_scan(api.get(), 0, &box) == wmf_E_None &&
                          wmf_display_size(api.get(), &width, &height, 96, 96) == wmf_E_None;
    if (!readable || width == 0 || height == 0)
        return {};
    // The drawing is scaled to a sensible size: a metafile's own may be tiny or millions of pixels wide.
    const double scale = static_cast<double>(longestSide) / std::max(width, height);
    const auto scaled = [scale](unsigned side) { return std::max(1U, static_cast<unsigned>(side * scale)); };
    return QImage::fromData(PlayToPng(api.get(), box, scaled(width), scaled(height)), "png");
}

} // namespace Ledgrove
