#pragma once

#include <QLabel>
#include <memory>

#include "DesktopDesk.h"
#include "app/windows/InsightAnswering.h"
#include "app/windows/ModelsAnswering.h"
#include "ui/windows/insight/SheetView.h"
#include "ui/windows/insight/frmInsight.h"

// Shared by the tests of the Insight window.
namespace Ledgrove {

inline constexpr auto insightSample =
    R"({"ecIncome": 72000, "ecMonthlyDebt": 350, "ecPctDown": 10, "ecStdHome": 200000,
    "ecGMHHome": 206000, "ecStdUtil": 2400, "ecGMHUtil": 1700, "ecStdRate": 6.5, "ecGMHRate": 6.5})";

/// The main window with the sample and the Insight window beside it.
struct InsightDesk {
    InsightDesk()
        : Open(Actions()) {
        PutBytes(Open.PathOf("a.ledgrove.json"), insightSample);
        Open.File->OpenNamed(Open.PathOf("a.ledgrove.json"));
        InsightContext context;
        const auto committed = [this] { return Open.Window->Committed(); };
        ConnectAnswers(context, {committed, Settings, Open.Outside},
                       [this](const InsightRequest& request) { Printed = request; });
        context.Answer = [this, answer = context.Answer](const InsightAsk& ask) {
            ++Answers;
            return answer(ask);
        };
        context.GoTo = [this](const QString& control, const QString& key) { WentTo = control + '/' + key; };
        context.Enter = [this](const std::vector<EntryText>& texts) { Open.Window->Enter(texts); };
        context.Undo = [this] { Open.Window->Undo(); };
        context.Redo = [this] { Open.Window->Redo(); };
        context.Help = [this] { ++Helps; };
        context.Models =
            MakeModelsContext(committed, [this](const Range& range) { PrintedHouses = range.Rows.size(); });
        context.Questions = Open.Questions;
        context.Write = [this](const QString&, const QByteArray& content) { Written = content; };
        Window = std::make_unique<frmInsight>(std::move(context));
        QObject::connect(Open.Window.get(), &frmMain::Refreshed, Window.get(), [this] { Window->Follow(); });
    }

    MainActions Actions() {
        MainActions actions;
        actions.Ask = [this](InsightQuestion question) { Asked.append(question); };
        actions.ShowInsight = [this](InsightQuestion question) { Opened.append(question); };
        actions.Explain = [this](const std::string& label) { Explained.append(label); };
        return actions;
    }

    void Show(InsightQuestion question) {
        Window->show();
        Window->Ask(question);
        // The fields of the question before.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    template <typename Widget>
    Widget& Find(const char* name) {
        return *Window->findChild<Widget*>(name);
    }

    QString Sentence() { return Find<QLabel>("Sentence").text(); }
    QAbstractItemModel& Table() { return *Find<SheetView>("AnswerTable").model(); }
    QString Cell(int row, int column) { return Table().index(row, column).data().toString(); }
    int RowOf(const QString& caption) {
        for (int row = 0; row < Table().rowCount(); ++row)
            if (Cell(row, 0) == caption)
                return row;
        return -1;
    }

    int Answers = 0;
    int Helps = 0;
    std::size_t PrintedHouses = 0; ///< rows of the printed list
    QString WentTo;
    QList<std::string> Explained;
    QByteArray Written;
    QList<InsightQuestion> Asked;
    QList<InsightQuestion> Opened;
    InsightRequest Printed;
    OpenDesktop Open;
    TriedSettings Settings{Open.State};
    std::unique_ptr<frmInsight> Window;
};

} // namespace Ledgrove
