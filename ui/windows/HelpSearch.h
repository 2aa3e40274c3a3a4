#pragma once

#include <QTextDocument>
#include <QWidget>
#include <vector>

class QLabel;
class QLineEdit;
class QPushButton;
class QTextEdit;

namespace Ledgrove {

/// A row for finding text: a field, "Previous", "Next", and the number of matches. Case does not matter. All
/// matches are marked and the current one is selected.
class HelpSearch : public QWidget {
    Q_OBJECT

public:
    /// `text` must outlive this.
    explicit HelpSearch(QTextEdit& text, QWidget* parent = nullptr);

    /// Moves the focus to the field and selects its text.
    void Begin();
    /// Moves to the next (1) or previous (-1) match and wraps around at the ends.
    void Step(int direction);
    void Clear();
    bool IsEmpty() const;

private:
    void BuildControls();
    void Find();
    void CollectMatches();
    void LookAt(std::size_t match);
    void Mark();
    void Tell(const QString& words);
    std::size_t FirstFrom(int position) const;

    QTextEdit& m_text;
    QLineEdit* m_field;
    QPushButton* m_previous;
    QPushButton* m_next;
    QLabel* m_count;
    std::vector<QTextCursor> m_matches;
    std::size_t m_match = 0;
    int m_start = 0; ///< the position in the text where the search began
};

} // namespace Ledgrove
