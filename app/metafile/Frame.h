#pragma once

#include <string>
#include <string_view>

namespace Ledgrove {

/// A metafile that fills only the frame which the placeable header of `metafile` asks for, in the same units
/// and with the same mapping. Its extent is therefore that frame as the library sees it. Empty if `metafile`
/// has no placeable header, or one without an area.
std::string FrameMetafile(std::string_view metafile);

} // namespace Ledgrove
