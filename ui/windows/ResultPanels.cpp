#include "ui/windows/ResultPanels.h"

#include <QGridLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/MainScreenRules.h"
#include "ui/windows/ChartPlace.h"
#include "ui/windows/Labels.h"
#include "ui/windows/QuestionLink.h"
#include "ui/windows/ResultTable.h"
#include "ui/windows/ScrolledForm.h"
#include "ui/windows/WelcomeHint.h"

namespace Ledgrove {

namespace {

QString Words(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QLabel* MakeHeading(const char* text) {
    QLabel* heading = TextLabel(text);
    QFont font = heading->font();
    font.setPointSizeF(font.pointSizeF() * 1.3);
    font.setBold(true);
    heading->setFont(font);
    return heading;
}

QLabel* MakeWrapped(const QString& text) {
    QLabel* label = TextLabel(text);
    label->setWordWrap(true);
    return label;
}

/// A figure within a sentence. `caption` and `column` describe it for a screen reader.
ResultLabel* MakeFigure(const char* control, const QLabel& caption, const char* column) {
    auto* figure = new ResultLabel(control, caption, column);
    MakeBold(*figure);
    return figure;
}

void AddStep(QGridLayout& grid, int number, const QString& text, const QString& control) {
    QLabel* digit = TextLabel(QString("%1.").arg(number));
    MakeBold(*digit);
    QLabel* step = MakeWrapped(text);
    step->setObjectName(control);
    const int row = grid.rowCount();
    grid.addWidget(digit, row, 0, Qt::AlignTop);
    grid.addWidget(step, row, 1);
}

QWidget* MakeWelcome() {
    auto* panel = new QWidget;
    auto* grid = new QGridLayout(panel);
    grid->setVerticalSpacing(10);
    grid->setHorizontalSpacing(10);
    grid->setColumnStretch(1, 1);
    grid->addWidget(MakeHeading("Ledgrove Instructions"), 0, 0, 1, 2);
    const auto steps = Module1::WelcomeSteps();
    for (int i = 0; i < Module1::WelcomeStepCount; ++i)
        AddStep(*grid, i + 1, Words(steps[static_cast<std::size_t>(i)]), QString("lblStep%1Des").arg(i + 1));
    QLabel* second = MakeWrapped(Words(Module1::WelcomePrintStep()));
    second->setObjectName("lblStep5Des2");
    grid->addWidget(second, grid->rowCount(), 1);
    grid->addWidget(new WelcomeHint, grid->rowCount(), 1);
    grid->setRowStretch(grid->rowCount(), 1);
    return panel;
}

/// Keeps a panel at the top left; the rest of a larger window stays empty.
QVBoxLayout* MakeColumn(QWidget* panel) {
    auto* outer = new QHBoxLayout(panel);
    auto* column = new QVBoxLayout;
    column->setSpacing(12);
    outer->addLayout(column);
    outer->addStretch();
    return column;
}

/// A sheet on the left, and a chart in the remaining space.
QWidget* MakeSheetPanel(SheetKind sheet, ChartKind chart) {
    auto* panel = new QWidget;
    auto* row = new QHBoxLayout(panel);
    row->setSpacing(36);
    row->addWidget(new ResultTable(SheetOf(sheet)), 0, Qt::AlignTop);
    row->addWidget(new ChartPlace(chart), 1);
    return panel;
}

/// "A Monthly Net Cash Flow of $x more per month means $y more today", with the figures one above the other.
QLayout* MakeCashFlowSentence() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    QLabel* start = TextLabel("A Monthly Net Cash Flow of");
    QLabel* today = TextLabel("more today");
    grid->addWidget(start, 0, 0);
    grid->addWidget(MakeFigure("lblNetCashMoTx", *start, "more per month"), 0, 1);
    grid->addWidget(TextLabel("more per month means"), 0, 2);
    grid->addWidget(MakeFigure("lblExtrasTx", *start, "more today"), 1, 1);
    grid->addWidget(today, 1, 2);
    return grid;
}

QLabel* MakeSentence(const char* control, const QString& description) {
    QLabel* sentence = CaptionLabel(control);
    sentence->setAccessibleDescription(description);
    sentence->setWordWrap(true);
    // Otherwise a text without blanks would set the window's minimum width.
    sentence->setMinimumWidth(1);
    return sentence;
}

QWidget* MakeMoreHome() {
    auto* panel = new QWidget;
    QVBoxLayout* column = MakeColumn(panel);
    column->addWidget(MakeHeading("Buy More Home"));
    QLayout* cashFlow = MakeCashFlowSentence();
    column->addLayout(cashFlow);
    column->setAlignment(cashFlow, Qt::AlignLeft);
    QLabel* sum = MakeSentence("Label6", "Buy More Home, more per month and more today");
    MakeBold(*sum);
    column->addWidget(sum);
    column->addWidget(new ResultTable(SheetOf(SheetKind::HouseValues)), 0, Qt::AlignLeft);
    column->addWidget(TextLabel("For the same monthly cost, consider these options!"));
    column->addWidget(MakeSentence("lblfeature1", "Additional features, first"));
    column->addWidget(MakeSentence("lblfeature2", "Additional features, second"));
    column->addStretch();
    return panel;
}

ResultTable* MakeSummarySavings() {
    auto* table = new ResultTable(SheetOf(SheetKind::SummarySavings));
    // Aligns "30 Years" with the end of the line above it, which it continues.
    for (const char* caption : {"lblYrsIn", "lblTerm"})
        table->findChild<QLabel*>(caption)->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return table;
}

QWidget* MakeSummary() {
    auto* panel = new QWidget;
    auto* grid = new QGridLayout(panel);
    grid->setHorizontalSpacing(36);
    grid->addWidget(new ResultTable(SheetOf(SheetKind::SummaryHomes)), 0, 0, 3, 1, Qt::AlignTop);
    grid->addWidget(MakeSummarySavings(), 0, 1, Qt::AlignLeft);
    QLabel* note = CaptionLabel("lblPVNote");
    note->setAccessibleDescription("PV of Savings, note");
    grid->addWidget(note, 1, 1, Qt::AlignTop);
    grid->addWidget(new ChartPlace(ChartKind::Savings), 2, 1, 2, 1);
    QLabel* footnote = TextLabel(Words(Module1::SummaryFootnote()));
    footnote->setObjectName("lblSummaryFootnote");
    footnote->setContentsMargins(0, 8, 0, 0);
    footnote->setWordWrap(true);
    grid->addWidget(footnote, 3, 0, Qt::AlignTop);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(3, 1);
    return panel;
}

/// A feature's text may have any length. Scrolling keeps a long text from squeezing the rest; the tab has
/// room for features of one line.
class ScrolledPage : public ScrolledForm {
public:
    using ScrolledForm::ScrolledForm;
    QSize minimumSizeHint() const override { return widget()->minimumSizeHint(); }
};

/// The smallest height of a tab's page at this width.
int SmallestHeight(const QWidget& page, int width) {
    const QLayout* layout = page.layout();
    return layout && layout->hasHeightForWidth() ? layout->totalMinimumHeightForWidth(width)
                                                 : page.minimumSizeHint().height();
}

/// Adds the panel to its tab's page, which keeps its size while the panel is hidden.
void FillPage(QWidget& page, QWidget* panel) {
    auto* layout = new QVBoxLayout(&page);
    layout->addWidget(panel);
    KeepPlaceWhileHidden(*panel);
}

} // namespace

ResultPanels::ResultPanels(QWidget* parent)
    : QTabWidget(parent) {
    setObjectName("SSTab1");
    setDocumentMode(true);
    // A click on a tab must take the focus, so that the current field is committed before the tab shows
    // results.
    tabBar()->setFocusPolicy(Qt::StrongFocus);
    auto* link = new QuestionLink;
    setCornerWidget(link);
    connect(this, &QTabWidget::currentChanged, link, &QuestionLink::ShowTab);
    const char* mnemonics[TabCount] = {"&Welcome", "&Cash Flow", "&More Home", "Affordabi&lity", "Summar&y"};
    constexpr int moreHome = 2;
    QWidget* panels[TabCount] = {
        MakeWelcome(), MakeSheetPanel(SheetKind::CashFlow, ChartKind::MonthlyCost), MakeMoreHome(),
        MakeSheetPanel(SheetKind::Affordability, ChartKind::Affordability), MakeSummary()};
    for (int i = 0; i < TabCount; ++i) {
        panels[i]->setObjectName(QString("DetlFrame%1").arg(i));
        auto* page = new QWidget;
        // Adds the page while it is empty, because Qt lays out the first page at once, before its size is
        // known.
        addTab(i == moreHome ? new ScrolledPage(page) : page, mnemonics[i]);
        FillPage(*page, panels[i]);
    }
}

int ResultPanels::heightForWidth(int width) const {
    int page = 0;
    for (int i = 0; i < count(); ++i)
        page = std::max(page, SmallestHeight(*widget(i), width));
    const int strip = minimumSizeHint().height() - findChild<QStackedWidget*>()->minimumSizeHint().height();
    return strip + page;
}

} // namespace Ledgrove
