#pragma once

#include <QImage>
#include <QString>
#include <memory>

class QTextDocument;

namespace Ledgrove {

/// The help laid out for letter paper in portrait, always black on white, with a page number at the foot of
/// each page. It reads no files.
class HelpPages {
public:
    explicit HelpPages(const QTextDocument& help);
    ~HelpPages();

    int Count() const;

    /// Writes the pages as PDF. Returns a message if the file cannot be written, else "".
    QString Write(const QString& file) const;

private:
    QImage m_ruler; ///< the layout measures with it: one dot is one twip
    std::unique_ptr<QTextDocument> m_document;
};

} // namespace Ledgrove
