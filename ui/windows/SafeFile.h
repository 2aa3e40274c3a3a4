#pragma once

#include <QByteArray>
#include <QString>

namespace Ledgrove {

/// Puts `content` in the place of the whole file: all of it, or the file stays as it was. Gives a sentence
/// when it cannot be written, else "".
QString WriteWholeFile(const QString& path, const QByteArray& content);

} // namespace Ledgrove
