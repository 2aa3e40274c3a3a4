#pragma once

#include <QSaveFile>

namespace Ledgrove {

/// Puts what was written in the place of the file; false, and the file as it was, where any of it could not
/// be written. QSaveFile alone passes over a fault of the last write, the one that empties its buffer.
inline bool CommitWhole(QSaveFile& file) {
    return file.flush() && file.commit();
}

} // namespace Ledgrove
