#pragma once

#include <QTextDocument>

namespace Ledgrove {

/// A text that loads nothing: it omits pictures and styles from other files or other computers. QTextDocument
/// would load them, whatever the widget around it refuses.
class SilentDocument : public QTextDocument {
public:
    using QTextDocument::QTextDocument;

    QVariant loadResource(int, const QUrl&) override { return {}; }
};

} // namespace Ledgrove
