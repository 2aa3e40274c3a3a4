#include "ui/windows/HelpSearch.h"

#include "ui/windows/FormParts.h"
#include "ui/windows/Identify.h"
#include "ui/windows/Labels.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTextEdit>
#include <algorithm>

namespace Ledgrove {

namespace {

/// Counting stops here: a single letter has thousands of matches, and nobody steps through them.
constexpr std::size_t mostMatches = 999;

} // namespace

HelpSearch::HelpSearch(QTextEdit& text, QWidget* parent)
    : QWidget(parent)
    , m_text(text)
    , m_field(new QLineEdit)
    , m_previous(MakeButton("bFindPrevious", "Pre&vious"))
    , m_next(MakeButton("bFindNext", "&Next"))
    , m_count(TextLabel({})) {
    BuildControls();
    connect(m_field, &QLineEdit::textChanged, this, &HelpSearch::Find);
    connect(m_previous, &QPushButton::clicked, this, [this] { Step(-1); });
    connect(m_next, &QPushButton::clicked, this, [this] { Step(1); });
    connect(m_field, &QLineEdit::returnPressed, this, [this] { Step(1); });
    for (const int enter : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* back = new QShortcut(QKeySequence(enter | static_cast<int>(Qt::SHIFT)), m_field);
        back->setContext(Qt::WidgetShortcut);
        connect(back, &QShortcut::activated, this, [this] { Step(-1); });
    }
    Find();
}

void HelpSearch::BuildControls() {
    Identify(*m_field, "ecFind", "Find in the help");
    m_field->setClearButtonEnabled(true);
    m_field->setMinimumWidth(m_field->fontMetrics().averageCharWidth() * 16);
    m_field->setMaximumWidth(m_field->fontMetrics().averageCharWidth() * 40);
    IdentifyByDescription(*m_count, "lblFound", "Matches");
    m_count->setMinimumWidth(m_count->fontMetrics().horizontalAdvance("888 of 888"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    row->addWidget(MakeCaption("F&ind:", m_field));
    row->addWidget(m_field, 1);
    row->addWidget(m_previous);
    row->addWidget(m_next);
    row->addWidget(m_count);
    row->addStretch();
}

void HelpSearch::Begin() {
    m_field->setFocus(Qt::ShortcutFocusReason);
    m_field->selectAll();
}

void HelpSearch::Clear() {
    m_field->clear();
}

bool HelpSearch::IsEmpty() const {
    return m_field->text().isEmpty();
}

void HelpSearch::Step(int direction) {
    if (IsEmpty())
        return Begin();
    // After a reload, the matches are at other positions.
    CollectMatches();
    if (m_matches.empty())
        return Mark();
    const QTextCursor here = m_text.textCursor();
    const std::size_t count = m_matches.size();
    if (direction > 0)
        return LookAt(FirstFrom(here.hasSelection() ? here.selectionStart() + 1 : here.position()) % count);
    const auto before = static_cast<std::size_t>(
        std::count_if(m_matches.begin(), m_matches.end(), [&here](const QTextCursor& match) {
            return match.selectionStart() < here.selectionStart();
        }));
    LookAt(before == 0 ? count - 1 : before - 1);
}

void HelpSearch::Find() {
    // A longer search text is searched from the start of the current match, not from its end.
    const QTextCursor here = m_text.textCursor();
    if (!here.hasSelection())
        m_start = m_text.cursorForPosition(QPoint(0, 0)).position();
    CollectMatches();
    const bool found = !m_matches.empty();
    m_previous->setEnabled(found);
    m_next->setEnabled(found);
    if (found)
        return LookAt(FirstFrom(m_start) % m_matches.size());
    QTextCursor nothing = here;
    nothing.clearSelection();
    m_text.setTextCursor(nothing);
    Mark();
}

void HelpSearch::CollectMatches() {
    m_matches.clear();
    if (IsEmpty())
        return;
    const QTextDocument& document = *m_text.document();
    QTextCursor match = document.find(m_field->text(), 0);
    while (!match.isNull() && m_matches.size() < mostMatches) {
        m_matches.push_back(match);
        match = document.find(m_field->text(), match);
    }
}

std::size_t HelpSearch::FirstFrom(int position) const {
    const auto found = std::find_if(m_matches.begin(), m_matches.end(), [position](const QTextCursor& match) {
        return match.selectionStart() >= position;
    });
    return static_cast<std::size_t>(found - m_matches.begin());
}

void HelpSearch::LookAt(std::size_t match) {
    m_match = match;
    m_text.setTextCursor(m_matches[match]);
    m_text.ensureCursorVisible();
    Mark();
}

void HelpSearch::Mark() {
    QColor paint = m_text.palette().color(QPalette::Active, QPalette::Highlight);
    paint.setAlpha(72);
    QList<QTextEdit::ExtraSelection> marks;
    for (const QTextCursor& match : m_matches) {
        QTextEdit::ExtraSelection mark;
        mark.cursor = match;
        mark.format.setBackground(paint);
        marks += mark;
    }
    m_text.setExtraSelections(marks);
    if (IsEmpty())
        return Tell({});
    if (m_matches.empty())
        return Tell("Not found");
    const bool all = m_matches.size() < mostMatches;
    Tell(QString("%1 of %2%3").arg(m_match + 1).arg(m_matches.size()).arg(all ? "" : "+"));
}

/// Screen readers get the result as the label's name and as the field's description.
void HelpSearch::Tell(const QString& words) {
    m_count->setText(words);
    SetSpokenDescription(*m_field, words);
    if (words.isEmpty())
        return;
    QAccessibleEvent alert(m_count, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

} // namespace Ledgrove
