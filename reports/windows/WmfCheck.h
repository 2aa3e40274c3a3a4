#pragma once

#include <QByteArray>

namespace Ledgrove {

/// Whether the bytes are a Windows metafile, going by its headers.
bool IsWmf(const QByteArray& bytes);

/// A look at a metafile before the library reads it, which believes what it is told: false where a record
/// does not lie whole in the file or is longer than the header says, where the header claims longer records
/// than the file can hold, and where a record's bitmap is cut or huge.
bool CheckWmf(const QByteArray& bytes);

} // namespace Ledgrove
