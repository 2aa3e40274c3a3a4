#include "app/windows/InsightAnswering.h"

#include <utility>

#include "app/batch/InsightText.h"
#include "app/files/SheetCsv.h"
#include "ui/InsightCharts.h"

namespace Ledgrove {

void ConnectAnswers(InsightContext& context, const AnswerSource& source, InsightPrinter print) {
    context.Answer = [source](const InsightAsk& ask) {
        source.Settings.Reload();
        return AnswerOf(ask, source.State(), source.Settings);
    };
    context.Try = [source](std::string_view key, const std::string& text) {
        return source.Settings.Try(key, text);
    };
    context.Keep = [source](InsightQuestion question) {
        if (const auto fault = source.Settings.Keep(FieldKeysOf(question)))
            source.Outside.ShowMessage({ApplicationTitle, Sentence(*fault), MessageIcon::Exclamation});
    };
    context.GoBack = [source](InsightQuestion question) { source.Settings.Forget(FieldKeysOf(question)); };
    context.CellText = &MapCellText;
    context.CellEntries = [source](const ChartGrid& grid, std::size_t column, std::size_t row) {
        return EntriesOfCell(source.State(), grid, column, row);
    };
    context.Print = [source, print = std::move(print)](const std::vector<InsightQuestion>& questions,
                                                       const InsightAsk& ask) {
        InsightRequest request{questions, ask.Figure};
        request.Years = source.Settings.InForce();
        request.Year = ask.Year;
        print(request);
    };
    context.Text = &SheetText;
    context.Csv = &SheetCsv;
}

} // namespace Ledgrove
