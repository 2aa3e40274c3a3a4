#pragma once

#include <QByteArray>
#include <QString>

namespace Ledgrove {

/// Replaces the whole file with `content`, or does not change it. Returns a message if it cannot be written,
/// else "".
QString WriteWholeFile(const QString& path, const QByteArray& content);

} // namespace Ledgrove
