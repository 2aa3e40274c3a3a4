#include <QComboBox>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSet>
#include <memory>

#include "reports/windows/InsightPrint.h"
#include "tests/reports/windows/PrintDesk.h"
#include "ui/InsightAnswers.h"
#include "ui/InsightCharts.h"
#include "ui/windows/insight/frmInsight.h"

using namespace Ledgrove;

namespace {

/// The Insight window with a comparison and a scripted computer.
struct PaperDesk : PrintDesk {
    PaperDesk() {
        AddPrinters();
        MainScreen& screen = State.Screen;
        screen.ecIncome.Text = "$72,000";
        screen.ecPctDown.Text = "10.00%";
        screen.ecStdHome.Text = "$200,000";
        screen.ecGMHHome.Text = "$206,000";
        screen.ecStdUtil.Text = "$2,400";
        screen.ecGMHUtil.Text = "$1,700";
        InsightContext context;
        context.Answer = [this](InsightQuestion question, const std::string& figure) {
            return AnswerOf(question, State, figure);
        };
        context.CellText = &MapCellText;
        context.Print = [this](const std::vector<InsightQuestion>& questions, const std::string& figure) {
            PreviewInsight(State, Outside, Machine, questions, figure, Window.get());
        };
        Window = std::make_unique<frmInsight>(std::move(context));
        Window->show();
    }

    QPushButton& Button(const char* name) { return *Window->findChild<QPushButton*>(name); }

    /// Chooses an item of the Print button's menu, and acts on the preview that opens.
    bool Preview(int item, const std::function<void(frmPrint&)>& act) {
        QAction* const action = Button("bPrint").menu()->actions()[item];
        return WhileOpen(
            "frmPrint", [action] { action->trigger(); },
            [&act](QWidget& window) { act(static_cast<frmPrint&>(window)); });
    }

    std::unique_ptr<frmInsight> Window;
};

QStringList Sections(const PrintDocument& document) {
    QStringList sections;
    for (const Bookmark& bookmark : document.Bookmarks())
        sections += QString::fromStdString(bookmark.Title);
    return sections;
}

constexpr int thisAnswer = 0;
constexpr int allAnswers = 1;

} // namespace

class InsightPrintTest : public QObject {
    Q_OBJECT

private slots:
    void thisAnswerIsPreviewed();
    void allAnswersArePreviewed();
    void theChosenFigureIsDerived();
    void thePreviewPrints();
    void withoutAnAnswerThereIsNothingToPrint();
    void noTwoButtonsHaveTheSameKey();
};

void InsightPrintTest::thisAnswerIsPreviewed() {
    PaperDesk desk;
    desk.Window->Ask(InsightQuestion::WhichLoan);
    QVERIFY(desk.Preview(thisAnswer, [](frmPrint& preview) {
        QCOMPARE(preview.windowTitle(), "Insight");
        QCOMPARE(Sections(preview.Document()), QStringList{"Which loan is best?"});
        preview.reject();
    }));
}

void InsightPrintTest::allAnswersArePreviewed() {
    PaperDesk desk;
    desk.Window->Ask(InsightQuestion::WhichLoan);
    QVERIFY(desk.Preview(allAnswers, [](frmPrint& preview) {
        QStringList words;
        for (const QuestionRow& row : InsightQuestions)
            words += QString::fromUtf8(row.Words.data(), static_cast<qsizetype>(row.Words.size()));
        QCOMPARE(Sections(preview.Document()), words);
        QCOMPARE(words.first(), "In short");
        preview.reject();
    }));
}

void InsightPrintTest::theChosenFigureIsDerived() {
    PaperDesk desk;
    desk.Window->Explain("StdCase.DownPayment");
    desk.PdfToChoose = desk.Folder.filePath("answers.pdf");
    QVERIFY(desk.Preview(thisAnswer, [](frmPrint& preview) {
        preview.findChild<QComboBox*>("cboPrinter")->setCurrentIndex(2);
        preview.findChild<QPushButton*>("cmdPrint")->click();
        preview.reject();
    }));
    const QString text = PdfText(BytesOf(desk.PdfToChoose));
    QVERIFY2(text.contains("Down Payment, Base Home"), qPrintable(text));
    // 10 % of $200,000; the labelled home has no part in it.
    QVERIFY2(text.contains("$20,000.00"), qPrintable(text));
    QVERIFY(!text.contains("$206,000"));
}

void InsightPrintTest::thePreviewPrints() {
    PaperDesk desk;
    desk.Window->Ask(InsightQuestion::HowFar);
    QVERIFY(desk.Preview(thisAnswer, [](frmPrint& preview) {
        preview.findChild<QPushButton*>("cmdPrint")->click();
        preview.reject();
    }));
    QCOMPARE(desk.Server.Jobs.size(), 1U);
    QVERIFY(PdfText(desk.Server.Jobs.front().Pdf).contains("How far can the price go?"));
}

void InsightPrintTest::withoutAnAnswerThereIsNothingToPrint() {
    PaperDesk desk;
    desk.State.Screen.ecGMHHome.Text = "";
    desk.Window->Ask(InsightQuestion::HowFar);
    desk.Window->Follow();
    QVERIFY(!desk.Button("bPrint").isEnabled());
}

void InsightPrintTest::noTwoButtonsHaveTheSameKey() {
    PaperDesk desk;
    QSet<QChar> keys;
    for (const QPushButton* button : desk.Window->findChildren<QPushButton*>()) {
        const QChar key = button->text().at(button->text().indexOf('&') + 1).toLower();
        QVERIFY2(!keys.contains(key), qPrintable(button->text()));
        keys.insert(key);
    }
    QCOMPARE(keys.size(), 5);
}

QTEST_MAIN(InsightPrintTest)
#include "InsightPrintTest.moc"
