#pragma once

#include <QTextDocument>

namespace Ledgrove {

/// A text that fetches nothing: pictures and styles that it names elsewhere, on this machine or another one,
/// are left out. QTextDocument itself would read them, whatever the widget around it refuses.
class SilentDocument : public QTextDocument {
public:
    using QTextDocument::QTextDocument;

    QVariant loadResource(int, const QUrl&) override { return {}; }
};

} // namespace Ledgrove
