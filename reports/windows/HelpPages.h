#pragma once

#include <QImage>
#include <QString>
#include <memory>

class QTextDocument;

namespace Ledgrove {

/// The help laid out for paper: letter, upright, black on white whatever the screen's colours, a line with
/// the page's number at the foot of each page. It reads no file.
class HelpPages {
public:
    explicit HelpPages(const QTextDocument& help);
    ~HelpPages();

    int Count() const;

    /// Writes the pages as PDF. Gives a sentence when the file cannot be written, else "".
    QString Write(const QString& file) const;

private:
    QImage m_ruler; ///< what the layout measures with: a dot is a twip
    std::unique_ptr<QTextDocument> m_document;
};

} // namespace Ledgrove
