#pragma once

#include <QTextDocument>
#include <QWidget>
#include <vector>

class QLabel;
class QLineEdit;
class QPushButton;
class QTextEdit;

namespace Ledgrove {

/// A row for finding words in a text: a field, "Previous", "Next", and how many matches there are. Case does
/// not matter. Every match is marked and the one looked at is selected.
class HelpSearch : public QWidget {
    Q_OBJECT

public:
    /// `text` must outlive this.
    explicit HelpSearch(QTextEdit& text, QWidget* parent = nullptr);

    /// Puts the focus into the field, its text selected.
    void Begin();
    /// To the match behind (1) or before (-1) the one looked at, round and round.
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
    int m_start = 0; ///< where in the text the search began
};

} // namespace Ledgrove
