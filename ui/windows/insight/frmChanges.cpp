#include "ui/windows/insight/frmChanges.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "insight/SheetMarks.h"
#include "ui/windows/Identify.h"
#include "ui/windows/UsersFolder.h"
#include "ui/windows/insight/AnswerPicture.h"
#include "ui/windows/insight/ChangesSides.h"
#include "ui/windows/insight/FlowLayout.h"
#include "ui/windows/insight/NaturalSize.h"
#include "ui/windows/insight/ScrolledAnswer.h"
#include "ui/windows/insight/SheetRange.h"
#include "ui/windows/insight/SheetView.h"

namespace Ledgrove {

namespace {

QString Words(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A label that wraps and that a mouse or a screen reader can copy from.
QLabel* MakeText(const char* control) {
    auto* label = new QLabel;
    label->setObjectName(control);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setTextFormat(Qt::PlainText);
    return label;
}

/// Shows the sheet and gives a table without rows no place.
void ShowSheet(SheetModel& model, SheetView& table, const Sheet& sheet) {
    // A screen reader also finds the cells of a hidden table.
    model.Show(sheet.Rows.empty() ? Sheet() : sheet);
    table.setVisible(!sheet.Rows.empty());
    table.FitColumns();
}

/// The height of a waterfall in lines of text: two for a bar, or one if there are many, besides the title and
/// the scale.
int LinesOf(const ChartFigures& chart) {
    constexpr int around = 4;
    constexpr int usual = 14;
    const auto bars = static_cast<int>(chart.Categories.size());
    return std::max(bars + around, std::min(2 * bars + around, usual));
}

QPushButton* AddButton(QLayout& row, const char* control, const QString& caption) {
    auto* button = new QPushButton(caption);
    button->setObjectName(control);
    button->setAutoDefault(true);
    row.addWidget(button);
    return button;
}

/// A table that asks for a few rows and takes the room that is left. The other rows scroll within it.
class ModestTable : public SheetView {
public:
    using SheetView::SheetView;
    QSize sizeHint() const override { return minimumSizeHint(); }

protected:
    void resizeEvent(QResizeEvent* event) override {
        SheetView::resizeEvent(event);
        scrollTo(currentIndex());
    }
};

/// A picture that asks for no more height than its bars need.
class ModestPicture : public AnswerPicture {
public:
    using AnswerPicture::AnswerPicture;
    QSize sizeHint() const override { return {minimumSizeHint().width(), minimumHeight()}; }
};

} // namespace

frmChanges::frmChanges(ChangesContext context)
    : m_context(std::move(context)) {
    setObjectName("frmChanges");
    setWindowTitle("What changed?");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(8, 8, 8, 8);
    // On a small screen everything but the buttons scrolls.
    auto* page = new ScrolledAnswer;
    page->setWidget(MakeAnswer());
    column->addWidget(page, 1);
    column->addWidget(MakeButtons());
    m_sides->Show(m_context.Choices());
}

QWidget* frmChanges::MakeSides() {
    m_sides = new ChangesSides;
    connect(m_sides, &ChangesSides::Chosen, this, &frmChanges::ShowAnswer);
    connect(m_sides, &ChangesSides::FromFileAsked, this, [this] { AskFile(true); });
    connect(m_sides, &ChangesSides::ToFileAsked, this, [this] { AskFile(false); });
    return m_sides;
}

QWidget* frmChanges::MakeAnswer() {
    auto* answer = new QWidget;
    auto* column = new QVBoxLayout(answer);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(MakeSides());
    m_sentence = MakeText("Sentence");
    QFont larger = m_sentence->font();
    larger.setPointSizeF(larger.pointSizeF() * 1.25);
    m_sentence->setFont(larger);
    column->addWidget(m_sentence);
    m_tables = new QWidget;
    m_columns = new QHBoxLayout(m_tables);
    m_columns->setContentsMargins(0, 0, 0, 0);
    m_columns->addWidget(MakeTables(), 1);
    m_columns->addWidget(MakeParts(), 1);
    column->addWidget(m_tables, 1);
    column->addStretch();
    return answer;
}

void frmChanges::AddTable(QBoxLayout& column, SheetView& table, QLabel& caption, const char* control) {
    table.setObjectName(control);
    caption.setBuddy(&table);
    column.addWidget(&caption);
    column.addWidget(&table, 1);
}

QWidget* frmChanges::MakeTables() {
    auto* side = new QWidget;
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    m_inputs = new ModestTable(m_inputModel);
    AddTable(*column, *m_inputs, *new QLabel("&Inputs that differ"), "InputTable");
    SetSpokenName(*m_inputs, "Inputs that differ");
    m_figures = new ModestTable(m_figureModel);
    m_figures->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_figuresCaption = new QLabel("Fi&gures that moved");
    AddTable(*column, *m_figures, *m_figuresCaption, "FigureTable");
    column->setStretchFactor(m_figures, 2);
    SetSpokenName(*m_figures, "Figures that moved");
    SetSpokenDescription(*m_figures,
                         "The parts of the figure in the current row are shown beside the table.");
    column->addStretch();
    connect(m_figures, &SheetView::CellChanged, this, &frmChanges::ChooseFigure);
    return side;
}

QWidget* frmChanges::MakeParts() {
    m_partsSide = new QWidget;
    auto* column = new QVBoxLayout(m_partsSide);
    column->setContentsMargins(8, 0, 0, 0);
    m_partsSentence = MakeText("PartsSentence");
    column->addWidget(m_partsSentence);
    m_picture = new ModestPicture(AnswerPicture::CellWords());
    column->addWidget(m_picture, 3);
    m_parts = new ModestTable(m_partModel);
    m_partsCaption = new QLabel;
    AddTable(*column, *m_parts, *m_partsCaption, "PartTable");
    column->setStretchFactor(m_parts, 2);
    m_legend = MakeText("Legend");
    column->addWidget(m_legend);
    column->addStretch();
    return m_partsSide;
}

QWidget* frmChanges::MakeButtons() {
    auto* buttons = new QWidget;
    auto* row = new FlowLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    m_print = AddButton(*row, "bPrint", "&Print…");
    m_copy = AddButton(*row, "bCopy", "&Copy");
    auto* menu = new QMenu(m_copy);
    menu->addAction("As &Text", this, [this] { Copy(m_context.Text); });
    menu->addAction("As &Spreadsheet Range", this,
                    [this] { Copy([](const Sheet& sheet) { return SheetAsRange(sheet).toStdString(); }); });
    m_copy->setMenu(menu);
    m_save = AddButton(*row, "bSavePicture", "&Save Picture…");
    QPushButton* help = AddButton(*row, "bHelp", "&Help");
    QPushButton* closes = AddButton(*row, "bClose", "C&lose");
    connect(m_print, &QPushButton::clicked, this, [this] { m_context.Print(Ask()); });
    connect(m_save, &QPushButton::clicked, this, &frmChanges::SavePicture);
    connect(help, &QPushButton::clicked, this, [this] { m_context.Help(); });
    connect(closes, &QPushButton::clicked, this, &QWidget::close);
    return buttons;
}

void frmChanges::Begin() {
    if (m_sides->From() != m_sides->To())
        return;
    const ChangesChoices choices = m_context.Choices();
    const std::string& screen = choices.All.front().Id;
    if (choices.Usual == screen)
        return AskFile(true);
    m_sides->Choose(choices.Usual, screen);
    ShowAnswer();
}

void frmChanges::Follow() {
    if (!isVisible())
        return;
    m_sides->Show(m_context.Choices());
    ShowAnswer();
}

void frmChanges::AskFile(bool isFrom) {
    const std::string id = m_context.AddFile(*this);
    if (id.empty())
        return;
    m_sides->Show(m_context.Choices());
    m_sides->Choose(isFrom ? id : m_sides->From(), isFrom ? m_sides->To() : id);
    ShowAnswer();
}

ChangesAsk frmChanges::Ask() const {
    return {m_sides->From(), m_sides->To(), m_figure};
}

void frmChanges::ShowAnswer() {
    m_answer = m_context.Answer(Ask());
    m_sentence->setText(Words(m_answer.Missing.empty() ? m_answer.Sentence : m_answer.Missing));
    ShowTables(m_answer);
    ShowParts(m_answer);
    FitTables();
    OfferCommands(m_answer);
}

void frmChanges::ShowTables(const ChangesAnswer& answer) {
    const QSignalBlocker nothingChosen(m_figures);
    m_tables->setVisible(!answer.Inputs.Rows.empty() || !answer.Figures.Rows.empty());
    ShowSheet(m_inputModel, *m_inputs, answer.Inputs);
    ShowSheet(m_figureModel, *m_figures, answer.Figures);
    m_figuresCaption->setVisible(!answer.Figures.Rows.empty());
    if (!answer.Figures.Rows.empty())
        m_figures->GoToRow(static_cast<int>(answer.Chosen));
}

void frmChanges::ShowParts(const ChangesAnswer& answer) {
    m_partsSide->setVisible(!answer.Parts.Rows.empty());
    m_partsSentence->setText(Words(answer.Parts.Sentence));
    m_partsCaption->setText("P&arts of the change: " + Words(answer.Caption));
    SetSpokenName(*m_parts, "Parts of the change: " + Words(answer.Caption));
    ShowSheet(m_partModel, *m_parts, answer.Parts);
    m_legend->setText(Words(LegendOf(answer.Parts)));
    m_legend->setVisible(!m_legend->text().isEmpty());
    m_picture->setVisible(answer.Picture.has_value());
    if (!answer.Picture)
        return;
    m_picture->Show(*answer.Picture);
    m_picture->setMinimumHeight(fontMetrics().height() * LinesOf(*answer.Picture));
}

void frmChanges::ChooseFigure() {
    const QModelIndex current = m_figures->CurrentCell();
    if (!current.isValid())
        return;
    const std::string& name = m_answer.Names[static_cast<std::size_t>(current.row())];
    if (name == m_answer.Names[m_answer.Chosen])
        return;
    m_figure = name;
    m_answer = m_context.Answer(Ask());
    // Another figure's parts are not changes of these.
    m_partModel.Show({});
    ShowParts(m_answer);
    FitTables();
    OfferCommands(m_answer);
}

void frmChanges::OfferCommands(const ChangesAnswer& answer) {
    const bool hasAnswer = !answer.Inputs.Rows.empty();
    m_print->setEnabled(hasAnswer);
    m_copy->setEnabled(hasAnswer);
    m_save->setEnabled(answer.Picture.has_value());
}

void frmChanges::Copy(const std::function<std::string(const Sheet&)>& form) {
    QString text = Words(m_answer.Sentence) + '\n';
    for (const Sheet& sheet :
         {m_inputs->InShownOrder(m_answer.Inputs), m_figures->InShownOrder(m_answer.Figures),
          m_parts->InShownOrder(m_answer.Parts)}) {
        if (!sheet.Rows.empty())
            text += '\n' + Words(sheet.Title) + '\n' + Words(form(sheet));
    }
    QGuiApplication::clipboard()->setText(text);
}

void frmChanges::SavePicture() {
    const QString folder = UsersFolder(QStandardPaths::PicturesLocation);
    const QString name = Words(m_picture->Shown().Title).toLower().replace(' ', '-');
    const QString file = m_context.Questions.SaveName(
        *this, {"Save Picture", folder + '/' + name + ".png", "Pictures (*.png *.svg)", ".png"});
    if (!file.isEmpty())
        m_context.Write(file,
                        file.endsWith(".svg", Qt::CaseInsensitive) ? m_picture->AsSvg() : m_picture->AsPng());
}

/// In a narrow window the parts stand below the figures. Short tables leave their room to the others.
void frmChanges::FitTables() {
    constexpr int letters = 150;
    const bool isNarrow = width() < fontMetrics().averageCharWidth() * letters;
    m_columns->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_partsSide->layout()->setContentsMargins(isNarrow ? 0 : 8, 0, 0, 0);
    for (SheetView* table : {m_inputs, m_parts}) {
        const int rows =
            table->SheetView::sizeHint().height() + table->horizontalScrollBar()->sizeHint().height();
        table->setMaximumHeight(std::max(rows, table->minimumSizeHint().height()));
    }
}

void frmChanges::resizeEvent(QResizeEvent* event) {
    ChangesWindow::resizeEvent(event);
    FitTables();
}

void frmChanges::showEvent(QShowEvent* event) {
    if (!std::exchange(m_isSized, true))
        GiveNaturalSize(*this, 44);
    ChangesWindow::showEvent(event);
    m_sides->Show(m_context.Choices());
    ShowAnswer();
}

void frmChanges::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else if (event->key() == Qt::Key_F1)
        m_context.Help();
    else
        ChangesWindow::keyPressEvent(event);
}

} // namespace Ledgrove
