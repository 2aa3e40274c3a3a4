#include "reports/windows/PdfExtras.h"

#include <QList>
#include <QString>
#include <algorithm>
#include <optional>
#include <utility>

namespace Ledgrove {

namespace {

/// The number after `key` in the text of an object or a trailer; 0 if it is missing.
int NumberAfter(const QByteArray& text, const char* key) {
    const qsizetype at = text.indexOf(key);
    if (at < 0)
        return 0;
    const QList<QByteArray> words = text.mid(at + qsizetype(qstrlen(key)), 30).simplified().split(' ');
    return words.value(0).toInt();
}

QByteArray Reference(int object) {
    return QByteArray::number(object) + " 0 R";
}

/// A text in UTF-16, as hexadecimal digits so that nothing needs an escape.
QByteArray TextString(const std::string& text) {
    const QString characters = QString::fromStdString(text);
    QByteArray digits("<FEFF");
    for (const QChar character : characters)
        digits += QByteArray::number(character.unicode(), 16).rightJustified(4, '0').toUpper();
    return digits + ">";
}

/// The content of the object from "<<" to before its last ">>", to which keys can be added.
std::optional<QByteArray> OpenDictionary(const QByteArray& object) {
    const qsizetype end = object.lastIndexOf(">>");
    return object.startsWith("<<") && end > 0 ? std::optional(object.left(end)) : std::nullopt;
}

/// Reads the objects of a file with one cross-reference table, as QPdfWriter writes it.
class WrittenPdf {
public:
    explicit WrittenPdf(const QByteArray& bytes)
        : m_bytes(bytes)
        , m_table(NumberAfter(bytes.mid(bytes.lastIndexOf("startxref")), "startxref"))
        , m_trailer(bytes.mid(std::max<qsizetype>(bytes.lastIndexOf("trailer"), 0))) {}

    bool IsReadable() const { return m_bytes.mid(m_table, 5) == "xref\n" && Size() > 0; }
    int Table() const { return m_table; }
    int Size() const { return NumberAfter(m_trailer, "/Size"); }
    int Root() const { return NumberAfter(m_trailer, "/Root"); }
    int Info() const { return NumberAfter(m_trailer, "/Info"); }

    /// The text between "obj" and "endobj"; empty for a number without an object.
    QByteArray Object(int number) const {
        // The table begins with "xref\n0 SIZE\n", and each entry has 20 bytes.
        constexpr qsizetype entrySize = 20;
        const qsizetype entries = m_bytes.indexOf('\n', m_table + 5) + 1;
        const qsizetype offset = m_bytes.mid(entries + entrySize * number, 10).toLongLong();
        const QByteArray head = QByteArray::number(number) + " 0 obj\n";
        const qsizetype end = m_bytes.indexOf("endobj", offset);
        if (number <= 0 || number >= Size() || end < 0 || m_bytes.mid(offset, head.size()) != head)
            return {};
        return m_bytes.mid(offset + head.size(), end - offset - head.size());
    }

    /// The object numbers of the pages.
    QList<int> Pages() const {
        const QByteArray tree = Object(NumberAfter(Object(Root()), "/Pages"));
        const qsizetype first = tree.indexOf('[', tree.indexOf("/Kids")) + 1;
        const auto words = tree.mid(first, tree.indexOf(']', first) - first).simplified().split(' ');
        QList<int> pages;
        for (qsizetype word = 0; word + 2 < words.size(); word += 3)
            pages += words[word].toInt();
        return pages;
    }

private:
    const QByteArray& m_bytes;
    int m_table;
    QByteArray m_trailer;
};

/// Collects new objects and new versions of old ones, and appends them to the file.
class PdfUpdate {
public:
    PdfUpdate(const QByteArray& bytes, const WrittenPdf& file)
        : m_file(file)
        , m_result(bytes)
        , m_next(file.Size()) {}

    int NewNumber() { return m_next++; }

    void Put(int number, const QByteArray& content) {
        m_places.emplace_back(number, m_result.size());
        m_result += QByteArray::number(number) + " 0 obj\n" + content + "\nendobj\n";
    }

    QByteArray Finished() {
        const qsizetype table = m_result.size();
        m_result += "xref\n";
        for (const auto& [number, offset] : m_places)
            m_result += QByteArray::number(number) + " 1\n" +
                        QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n";
        m_result += "trailer\n<<\n/Size " + QByteArray::number(m_next) + "\n/Info " +
                    Reference(m_file.Info()) + "\n/Root " + Reference(m_file.Root()) + "\n/Prev " +
                    QByteArray::number(m_file.Table()) + "\n>>\nstartxref\n" + QByteArray::number(table) +
                    "\n%%EOF\n";
        return m_result;
    }

private:
    const WrittenPdf& m_file;
    QByteArray m_result;
    int m_next;
    std::vector<std::pair<int, qsizetype>> m_places;
};

/// Writes the entries as one list without levels, and returns its object number.
int PutOutline(PdfUpdate& update, const QList<int>& pages, const PdfExtras& extras) {
    const int list = update.NewNumber();
    std::vector<int> items(extras.Outline.size());
    std::generate(items.begin(), items.end(), [&update] { return update.NewNumber(); });
    for (std::size_t at = 0; at < items.size(); ++at) {
        const PdfOutlineEntry& entry = extras.Outline[at];
        const int page = pages.value(static_cast<qsizetype>(entry.Page), pages.value(0));
        const double height = extras.PageHeight - entry.PointsFromTop;
        QByteArray item = "<<\n/Title " + TextString(entry.Title) + "\n/Parent " + Reference(list) +
                          "\n/Dest [" + Reference(page) + " /XYZ null " + QByteArray::number(height, 'f', 2) +
                          " null]\n";
        if (at > 0)
            item += "/Prev " + Reference(items[at - 1]) + '\n';
        if (at + 1 < items.size())
            item += "/Next " + Reference(items[at + 1]) + '\n';
        update.Put(items[at], item + ">>");
    }
    update.Put(list, "<<\n/Type /Outlines\n/First " + Reference(items.front()) + "\n/Last " +
                         Reference(items.back()) + "\n/Count " + QByteArray::number(items.size()) + "\n>>");
    return list;
}

} // namespace

QByteArray WithExtras(const QByteArray& pdf, const PdfExtras& extras) {
    const WrittenPdf file(pdf);
    if (!file.IsReadable())
        return pdf;
    auto catalog = OpenDictionary(file.Object(file.Root()));
    auto info = OpenDictionary(file.Object(file.Info()));
    const QList<int> pages = file.Pages();
    if (!catalog || !info || pages.isEmpty())
        return pdf;
    PdfUpdate update(pdf, file);
    if (!extras.Outline.empty())
        *catalog += "/Outlines " + Reference(PutOutline(update, pages, extras)) + '\n';
    // Readers show the title instead of the file's name.
    *catalog += "/Lang " + TextString(extras.Language) + "\n/ViewerPreferences << /DisplayDocTitle true >>\n";
    update.Put(file.Root(), *catalog + ">>");
    if (!extras.Author.empty())
        *info += "/Author " + TextString(extras.Author) + '\n';
    update.Put(file.Info(), *info + ">>");
    return update.Finished();
}

} // namespace Ledgrove
