#include "ui/windows/insight/ModelsView.h"

#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "insight/SheetMarks.h"
#include "ui/windows/Identify.h"
#include "ui/windows/insight/AnswerText.h"
#include "ui/windows/insight/FlowLayout.h"
#include "ui/windows/insight/PairChoice.h"
#include "ui/windows/insight/SheetView.h"

namespace Ledgrove {

namespace {

constexpr int pollMilliseconds = 40;
/// A list that is done within this time appears at once.
constexpr int patienceMilliseconds = 12;
/// Only longer lists show their progress.
constexpr int progressAfterMilliseconds = 500;

} // namespace

ModelsView::ModelsView(ModelsContext context, std::function<void(const std::vector<EntryText>&)> enter,
                       QWidget* parent)
    : QWidget(parent)
    , m_context(std::move(context))
    , m_enter(std::move(enter)) {
    setObjectName("Models");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(8, 0, 0, 0);
    m_sentence = MakeAnswerText("ModelsSentence");
    MakeLarger(*m_sentence);
    column->addWidget(m_sentence);
    column->addLayout(MakeHead());
    column->addWidget(MakeProgress());
    m_table = new SheetView(m_model);
    m_table->setObjectName("ModelsTable");
    SetSpokenName(*m_table, "All our models");
    column->addWidget(m_table, 1);
    m_legend = MakeAnswerText("ModelsLegend");
    column->addWidget(m_legend);
    column->addWidget(MakeButtons());
    connect(m_table, &SheetView::CellChanged, this, &ModelsView::OfferHouse);
    connect(m_table, &SheetView::CellActivated, this, &ModelsView::EnterHouse);
    m_poll.setInterval(pollMilliseconds);
    connect(&m_poll, &QTimer::timeout, this, &ModelsView::Look);
    OfferHouse();
}

QLayout* ModelsView::MakeHead() {
    auto* row = new QHBoxLayout;
    auto* caption = new QLabel("&Mortgage options:");
    m_options = new PairChoice(m_context.Pairs);
    m_options->setObjectName("ModelsOptions");
    caption->setBuddy(m_options);
    row->addWidget(caption);
    row->addWidget(m_options);
    row->addStretch();
    connect(m_options, &PairChoice::Changed, this, &ModelsView::Restart);
    return row;
}

QWidget* ModelsView::MakeProgress() {
    m_progress = new QWidget;
    auto* row = new QHBoxLayout(m_progress);
    row->setContentsMargins(0, 0, 0, 0);
    m_bar = new QProgressBar;
    Identify(*m_bar, "ModelsProgress", "Houses done");
    m_bar->setFormat("%v of %m houses");
    auto* cancel = new QPushButton("C&ancel");
    cancel->setObjectName("bCancelModels");
    connect(cancel, &QPushButton::clicked, this, [this] { m_context.Cancel(); });
    row->addWidget(m_bar, 1);
    row->addWidget(cancel);
    m_progress->hide();
    return m_progress;
}

QWidget* ModelsView::MakeButtons() {
    auto* buttons = new QWidget;
    auto* row = new FlowLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    const auto add = [row](const char* control, const QString& caption) {
        auto* button = new QPushButton(caption);
        button->setObjectName(control);
        button->setAutoDefault(true);
        row->addWidget(button);
        return button;
    };
    m_use = add("bUseHouse", "&Use This House");
    QPushButton* print = add("bPrintModels", "&Print…");
    QPushButton* copy = add("bCopyModels", "&Copy");
    QPushButton* save = add("bExportModels", "&Export CSV…");
    QPushButton* help = add("bHelpModels", "&Help");
    m_needsList = {print, copy, save};
    auto* menu = new QMenu(copy);
    menu->addAction("As &Text", this, &ModelsView::CopyTextAsked);
    menu->addAction("As &Spreadsheet Range", this, &ModelsView::CopyRangeAsked);
    copy->setMenu(menu);
    connect(m_use, &QPushButton::clicked, this, &ModelsView::EnterHouse);
    connect(print, &QPushButton::clicked, this, [this] { m_context.Print(); });
    connect(save, &QPushButton::clicked, this, &ModelsView::ExportAsked);
    connect(help, &QPushButton::clicked, this, &ModelsView::HelpAsked);
    return buttons;
}

void ModelsView::Restart() {
    const std::string fault = m_context.Begin(m_options->Chosen());
    if (!fault.empty()) {
        m_poll.stop();
        m_sheet = {};
        m_sheet.Sentence = fault;
        Show({0, 0, true, std::make_shared<const Sheet>(m_sheet)});
        return;
    }
    m_since.start();
    m_poll.start();
    Look();
}

void ModelsView::GiveUp() {
    if (!m_poll.isActive())
        return;
    m_poll.stop();
    m_progress->hide();
    m_context.Cancel();
}

void ModelsView::Look() {
    const ModelsState state = m_context.Look(patienceMilliseconds);
    if (state.IsFinished) {
        m_poll.stop();
        m_progress->hide();
        Show(state);
        return;
    }
    if (m_progress->isHidden() && m_since.elapsed() < progressAfterMilliseconds)
        return;
    m_bar->setMaximum(static_cast<int>(state.Total));
    m_bar->setValue(static_cast<int>(state.Done));
    m_progress->show();
}

void ModelsView::Show(const ModelsState& state) {
    if (!state.Houses) {
        m_sheet = {};
        m_sheet.Sentence = "The list was cancelled. Choose the mortgage options to list the houses again.";
    } else {
        m_sheet = *state.Houses;
    }
    m_sentence->setText(QString::fromStdString(m_sheet.Sentence));
    m_model.Show(m_sheet);
    m_table->FitColumns();
    m_table->setVisible(!m_sheet.Rows.empty());
    m_legend->setText(QString::fromStdString(LegendOf(m_sheet) + ' ' + m_sheet.Note).trimmed());
    m_legend->setVisible(!m_legend->text().isEmpty());
    for (QPushButton* button : m_needsList)
        button->setEnabled(!m_sheet.Rows.empty());
    OfferHouse();
}

Sheet ModelsView::InShownOrder() const {
    return m_table->InShownOrder(m_sheet);
}

void ModelsView::OfferHouse() {
    const bool hasHouse = !m_model.EntriesAt(m_table->CurrentCell()).empty();
    m_use->setEnabled(hasHouse);
    m_use->setToolTip(hasHouse ? "" : "Choose a row to take its house and options into the main window.");
}

void ModelsView::EnterHouse() {
    // The list changes while the texts are entered.
    const std::vector<EntryText> entries = m_model.EntriesAt(m_table->CurrentCell());
    if (!entries.empty())
        m_enter(entries);
}

} // namespace Ledgrove
