#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSet>
#include <memory>

#include "app/windows/InsightAnswering.h"
#include "tests/reports/windows/PrintDesk.h"
#include "ui/windows/insight/frmInsight.h"

using namespace Ledgrove;

namespace {

/// The Insight window with a comparison and a scripted computer.
struct PaperDesk : ComparisonDesk {
    PaperDesk() {
        InsightContext context;
        const auto state = [this] { return State; };
        ConnectAnswers(context, {state, Settings, Outside}, [this](const InsightRequest& request) {
            PreviewInsight(State, Outside, Machine, request, Window.get());
        });
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

    TriedSettings Settings{State};
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
    void noTwoControlsHaveTheSameKey();
};

void InsightPrintTest::thisAnswerIsPreviewed() {
    PaperDesk desk;
    desk.Window->Ask(InsightQuestion::WhichLoan);
    QVERIFY(desk.Preview(thisAnswer, [](frmPrint& preview) {
        QCOMPARE(preview.windowTitle(), "Insight");
        QCOMPARE(Sections(preview.Document()), (QStringList{"Which loan is best?", "What is assumed"}));
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

void InsightPrintTest::noTwoControlsHaveTheSameKey() {
    PaperDesk desk;
    for (const QuestionRow& row : InsightQuestions) {
        desk.Window->Ask(row.Id);
        QSet<QChar> keys;
        const auto add = [&keys](const QString& caption) {
            const QChar key = caption.at(caption.indexOf('&') + 1).toLower();
            QVERIFY2(caption.contains('&') && !keys.contains(key), qPrintable(caption));
            keys.insert(key);
        };
        for (const QPushButton* button : desk.Window->findChildren<QPushButton*>())
            if (button->isVisible())
                add(button->text());
        for (const QLabel* label : desk.Window->findChildren<QLabel*>())
            if (label->isVisible() && label->buddy())
                add(label->text());
        QVERIFY(keys.size() >= 5);
    }
}

QTEST_MAIN(InsightPrintTest)
#include "InsightPrintTest.moc"
