#pragma once

#include <QSaveFile>

namespace Ledgrove {

/// Replaces the file with the written data. Returns false, and leaves the old file, if any part could not be
/// written. QSaveFile alone misses an error of the last write, the one that flushes its buffer.
inline bool CommitWhole(QSaveFile& file) {
    return file.flush() && file.commit();
}

} // namespace Ledgrove
