#include "ui/windows/insight/frmInsight.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "insight/SheetMarks.h"
#include "ui/windows/FormGuard.h"
#include "ui/windows/Identify.h"
#include "ui/windows/UsersFolder.h"
#include "ui/windows/insight/AnswerPage.h"
#include "ui/windows/insight/AnswerPicture.h"
#include "ui/windows/insight/AnswerText.h"
#include "ui/windows/insight/ChainView.h"
#include "ui/windows/insight/FlowLayout.h"
#include "ui/windows/insight/ModelsView.h"
#include "ui/windows/insight/NaturalSize.h"
#include "ui/windows/insight/SettingsPanel.h"
#include "ui/windows/insight/SheetRange.h"
#include "ui/windows/insight/SheetView.h"
#include "ui/windows/insight/YearSwitch.h"

namespace Ledgrove {

namespace {

constexpr int highlightMilliseconds = 1500;

QString Words(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

bool ProposesEntries(const Sheet& sheet) {
    return std::ranges::any_of(sheet.Rows, [](const auto& row) {
        return std::ranges::any_of(row, [](const SheetCell& cell) { return !cell.Entries.empty(); });
    });
}

} // namespace

frmInsight::frmInsight(InsightContext context)
    : m_context(std::move(context)) {
    setObjectName("frmInsight");
    setWindowTitle("Insight");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 8, 8, 8);
    row->addWidget(MakeQuestions());
    m_pages = new QStackedWidget;
    m_pages->addWidget(MakeAnswer());
    m_pages->addWidget(MakeModels());
    row->addWidget(m_pages, 1);
    m_highlight.setSingleShot(true);
    m_highlight.setInterval(highlightMilliseconds);
    new FormGuard(*this, WheelChanges::Focused);
    connect(&m_highlight, &QTimer::timeout, this, [this] { m_sentence->setAutoFillBackground(false); });
    AddKeys("Ctrl+Z", m_context.Undo);
    AddKeys("Ctrl+Shift+Z", m_context.Redo);
}

/// A field that has typing to undo takes the keys first.
void frmInsight::AddKeys(const char* keys, const std::function<void()>& act) {
    if (act)
        connect(new QShortcut(QKeySequence(keys), this), &QShortcut::activated, this, act);
}

QWidget* frmInsight::MakeQuestions() {
    m_questions = new QListWidget;
    Identify(*m_questions, "Questions", "Questions");
    for (const QuestionRow& row : InsightQuestions)
        m_questions->addItem(Words(row.Words));
    m_questions->addItem("All our models");
    m_questions->setWordWrap(true);
    m_questions->setTextElideMode(Qt::ElideNone);
    m_questions->setSpacing(2);
    m_questions->setFixedWidth(fontMetrics().averageCharWidth() * 26);
    m_questions->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(m_questions, &QListWidget::currentRowChanged, this, &frmInsight::Choose);
    auto* copy = new QShortcut(QKeySequence::Copy, m_questions);
    copy->setContext(Qt::WidgetShortcut);
    connect(copy, &QShortcut::activated, this, &frmInsight::CopyAnswer);
    return m_questions;
}

void frmInsight::Choose(int row) {
    if (!m_settings->TakeTyped()) {
        const QSignalBlocker notChosen(m_questions);
        m_questions->setCurrentRow(m_row);
        return;
    }
    m_row = row;
    const bool isModels = row == static_cast<int>(InsightQuestions.size());
    m_pages->setCurrentWidget(isModels ? static_cast<QWidget*>(m_models) : m_pages->widget(0));
    if (isModels) {
        m_models->Restart();
        return;
    }
    m_models->GiveUp();
    m_question = InsightQuestions[static_cast<std::size_t>(row)].Id;
    m_model.Show({});
    ShowAnswer();
    m_table->Settle();
    m_answer->ShowTop();
}

QWidget* frmInsight::MakeModels() {
    m_models = new ModelsView(m_context.Models,
                              [this](const std::vector<EntryText>& texts) { m_context.Enter(texts); });
    connect(m_models, &ModelsView::HelpAsked, this, [this] { m_context.Help(); });
    connect(m_models, &ModelsView::CopyTextAsked, this, [this] { CopyText(m_models->InShownOrder()); });
    connect(m_models, &ModelsView::CopyRangeAsked, this, [this] { CopyRange(m_models->InShownOrder()); });
    connect(m_models, &ModelsView::ExportAsked, this, [this] { ExportTable(m_models->Shown()); });
    return m_models;
}

QWidget* frmInsight::MakeAnswer() {
    auto* answer = new QWidget;
    auto* rows = new QVBoxLayout(answer);
    rows->setContentsMargins(0, 0, 0, 0);
    m_answer = new AnswerPage;
    rows->addWidget(m_answer, 1);
    QVBoxLayout& column = m_answer->Column();
    m_sentence = MakeAnswerText("Sentence");
    MakeLarger(*m_sentence);
    column.addWidget(m_sentence);
    column.addWidget(MakeSettings());
    m_picture = new AnswerPicture([this](const ChartGrid& grid, std::size_t at, std::size_t row) {
        return Words(m_context.CellText(grid, at, row));
    });
    column.addWidget(m_picture, 3);
    m_cell = MakeWrappedText("CellText");
    column.addWidget(m_cell);
    m_years = new YearSwitch;
    column.addWidget(m_years);
    m_table = new SheetView(m_model);
    column.addWidget(m_table, 2);
    m_chain = new ChainView;
    column.addWidget(m_chain, 5);
    m_legend = MakeWrappedText("Legend");
    column.addWidget(m_legend);
    m_note = MakeAnswerText("Note");
    column.addWidget(m_note);
    m_space = new QWidget;
    column.addWidget(m_space, 1);
    rows->addWidget(MakeButtons()); // the last for Tab
    ConnectAnswer();
    return answer;
}

void frmInsight::ConnectAnswer() {
    connect(m_chain, &ChainView::LeafChosen, this,
            [this](const QString& control, const QString& key) { m_context.GoTo(control, key); });
    connect(m_chain, &ChainView::FigureChosen, this,
            [this](const QString& figure) { Explain(figure.toStdString()); });
    connect(m_picture, &AnswerPicture::CellSaid, m_cell, &QLabel::setText);
    connect(m_picture, &AnswerPicture::CellChosen, this, &frmInsight::ChooseMapCell);
    connect(m_years, &YearSwitch::Chosen, this, &frmInsight::ChooseYear);
    connect(m_table, &SheetView::CellChanged, this, &frmInsight::OfferEntry);
    connect(m_table, &SheetView::CellActivated, this, &frmInsight::EnterCell);
}

QWidget* frmInsight::MakeSettings() {
    m_settings = new SettingsPanel([this](std::string_view key, const std::string& text) {
        return m_context.Try ? m_context.Try(key, text) : std::string();
    });
    connect(m_settings, &SettingsPanel::Tried, this, &frmInsight::ShowAnswer);
    connect(m_settings, &SettingsPanel::KeepAsked, this, [this] {
        m_context.Keep(m_question);
        ShowAnswer();
    });
    connect(m_settings, &SettingsPanel::GoBackAsked, this, [this] {
        m_context.GoBack(m_question);
        ShowAnswer();
        m_settings->GiveUpTyped();
    });
    return m_settings;
}

void frmInsight::ChooseYear(int year) {
    m_year = year;
    m_model.Show({});
    ShowAnswer();
    m_table->Settle();
}

QPushButton* frmInsight::AddButton(QLayout& row, const char* control, const QString& caption) {
    auto* button = new QPushButton(caption);
    button->setObjectName(control);
    button->setAutoDefault(true);
    row.addWidget(button);
    return button;
}

QWidget* frmInsight::MakeButtons() {
    auto* buttons = new QWidget;
    auto* row = new FlowLayout(buttons);
    row->setContentsMargins(8, 0, 0, 0);
    row->setSpacing(6);
    m_enter = AddButton(*row, "bEnter", "&Try It");
    m_print = AddButton(*row, "bPrint", "&Print…");
    auto* pages = new QMenu(m_print);
    pages->addAction("This &Answer", this, [this] { Print({m_question}); });
    pages->addAction("A&ll Answers", this, [this] {
        std::vector<InsightQuestion> all;
        for (const QuestionRow& question : InsightQuestions)
            all.push_back(question.Id);
        Print(all);
    });
    m_print->setMenu(pages);
    m_copy = AddButton(*row, "bCopy", "&Copy");
    auto* menu = new QMenu(m_copy);
    menu->addAction("As &Text", this, &frmInsight::CopyAnswer);
    menu->addAction("As &Spreadsheet Range", this, [this] { CopyRange(m_table->InShownOrder(m_sheet)); });
    m_copy->setMenu(menu);
    m_export = AddButton(*row, "bExport", "&Export CSV…");
    m_save = AddButton(*row, "bSavePicture", "&Save Picture…");
    QPushButton* help = AddButton(*row, "bHelp", "&Help");
    connect(m_enter, &QPushButton::clicked, this, &frmInsight::EnterCell);
    connect(m_export, &QPushButton::clicked, this, [this] { ExportTable(m_sheet); });
    connect(m_save, &QPushButton::clicked, this, &frmInsight::SavePicture);
    connect(help, &QPushButton::clicked, this, [this] { m_context.Help(); });
    return buttons;
}

void frmInsight::Ask(InsightQuestion question) {
    // Otherwise the list would take the focus from a field that keeps it.
    if (!m_settings->TakeTyped())
        return;
    for (std::size_t row = 0; row < InsightQuestions.size(); ++row) {
        if (InsightQuestions[row].Id == question)
            m_questions->setCurrentRow(static_cast<int>(row));
    }
    m_questions->setFocus(Qt::OtherFocusReason);
}

void frmInsight::Explain(const std::string& figure) {
    m_figure = figure;
    if (m_question == InsightQuestion::WhereFrom && isVisible())
        ShowAnswer();
    Ask(InsightQuestion::WhereFrom);
}

void frmInsight::Follow() {
    if (!isVisible())
        return;
    if (m_pages->currentWidget() == m_models) {
        m_models->Restart();
        return;
    }
    const QString before = m_sentence->text();
    ShowAnswer();
    if (m_sentence->text() != before)
        MarkSentence();
}

void frmInsight::ShowAnswer() {
    const InsightAnswer answer = m_context.Answer({m_question, m_figure, m_year});
    const bool hasAnswer = answer.Missing.empty();
    m_sentence->setText(Words(hasAnswer ? answer.Sentence : answer.Missing));
    m_chain->setVisible(answer.Chain.has_value());
    if (answer.Chain)
        m_chain->Show(*answer.Chain, answer.Figure);
    // A table of one column repeats the sentences.
    m_table->setVisible(hasAnswer && !answer.Chain && answer.Table.Heads.size() > 1);
    m_settings->Show(answer.Fields);
    m_settings->FollowInTabOrder(*m_sentence);
    if (answer.Years > 0)
        m_year = answer.Year;
    m_years->Show(answer.Years, m_year);
    m_print->setEnabled(hasAnswer);
    m_export->setEnabled(!m_table->isHidden());
    m_copy->setEnabled(hasAnswer);
    m_picture->setVisible(answer.Picture.has_value());
    m_cell->setVisible(answer.Picture && answer.Picture->Kind == ChartKind::NetMap);
    m_save->setEnabled(answer.Picture.has_value());
    if (answer.Picture)
        m_picture->Show(*answer.Picture);
    m_sheet = answer.Table;
    // A screen reader also finds the cells of a hidden table.
    m_model.Show(m_table->isHidden() ? Sheet() : m_sheet);
    m_table->FitColumns();
    m_space->setVisible(m_table->isHidden() && m_chain->isHidden());
    m_legend->setText(QString::fromStdString(LegendOf(answer.Table)));
    m_legend->setVisible(!m_legend->text().isEmpty());
    m_note->setText(Words(answer.Table.Note));
    m_note->setVisible(!m_note->text().isEmpty());
    SetSpokenName(*m_table, Words(answer.Table.Title));
    OfferEntry();
}

/// For a moment, because a person looks at the main window while typing there.
void frmInsight::MarkSentence() {
    QPalette marked = m_sentence->palette();
    marked.setColor(QPalette::Window, ChangedColour(palette()));
    m_sentence->setPalette(marked);
    m_sentence->setAutoFillBackground(true);
    m_highlight.start();
}

void frmInsight::OfferEntry() {
    const auto& entries = m_model.EntriesAt(m_table->CurrentCell());
    const bool isOption = !entries.empty() && entries.front().Control == "cboStdMortOption";
    m_enter->setText(isOption ? "&Use These Options" : "&Try It");
    m_enter->setVisible(ProposesEntries(m_sheet));
    m_enter->setEnabled(!entries.empty() && m_table->isVisible());
    m_enter->setToolTip(entries.empty() ? "Choose a row with a value to try." : "");
}

void frmInsight::EnterCell() {
    // The answer changes while the texts are entered.
    const std::vector<EntryText> entries = m_model.EntriesAt(m_table->CurrentCell());
    if (!entries.empty())
        m_context.Enter(entries);
}

void frmInsight::ChooseMapCell(std::size_t column, std::size_t row) {
    const auto entries = m_context.CellEntries(m_picture->Shown().Grid, column, row);
    if (!entries.empty())
        m_context.Enter(entries);
}

/// The list's own command would copy the question.
void frmInsight::CopyAnswer() {
    if (m_pages->currentWidget() == m_models)
        CopyText(m_models->InShownOrder());
    else if (m_copy->isEnabled())
        CopyText(m_table->InShownOrder(m_sheet));
}

void frmInsight::CopyText(const Sheet& sheet) {
    QGuiApplication::clipboard()->setText(QString::fromStdString(m_context.Text(sheet)));
}

void frmInsight::CopyRange(const Sheet& sheet) {
    QGuiApplication::clipboard()->setText(SheetAsRange(sheet));
}

void frmInsight::Print(const std::vector<InsightQuestion>& questions) {
    // All answers together have the years.
    m_context.Print(questions, {m_question, m_figure, questions.size() == 1 ? m_year : 0});
}

void frmInsight::ExportTable(const Sheet& sheet) {
    const QString folder = UsersFolder(QStandardPaths::DocumentsLocation);
    const QString name = Words(sheet.Title).toLower().replace(' ', '-');
    const QString file =
        m_context.Questions.SaveName(*this, {"Export CSV", folder + '/' + name + ".csv",
                                             "Tables for spreadsheets (*.csv);;All files (*)", ".csv"});
    if (!file.isEmpty())
        m_context.Write(file, QByteArray::fromStdString(m_context.Csv(sheet)));
}

void frmInsight::SavePicture() {
    const QString folder = UsersFolder(QStandardPaths::PicturesLocation);
    const QString name = QString::fromStdString(m_picture->Shown().Title).toLower().replace(' ', '-');
    const QString file = m_context.Questions.SaveName(
        *this, {"Save Picture", folder + '/' + name + ".png", "Pictures (*.png *.svg)", ".png"});
    if (!file.isEmpty())
        m_context.Write(file,
                        file.endsWith(".svg", Qt::CaseInsensitive) ? m_picture->AsSvg() : m_picture->AsPng());
}

void frmInsight::showEvent(QShowEvent* event) {
    if (!std::exchange(m_isSized, true))
        GiveNaturalSize(*this, 52);
    InsightWindow::showEvent(event);
    if (m_pages->currentWidget() == m_models)
        m_models->Restart();
    else
        ShowAnswer();
}

void frmInsight::hideEvent(QHideEvent* event) {
    InsightWindow::hideEvent(event);
    m_models->GiveUp();
}

void frmInsight::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else if (event->key() == Qt::Key_F1)
        m_context.Help();
    else
        InsightWindow::keyPressEvent(event);
}

} // namespace Ledgrove
