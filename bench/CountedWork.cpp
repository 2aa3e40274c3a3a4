// Runs one piece of the program's work for counting its instructions: "recalculate", "jsonl", "csv" or
// "report", the argument. It runs the work once as a warm-up and once inside CountedWork, where callgrind
// counts.

#include "bench/Sample.h"

#include "app/batch/CsvCompare.h"
#include "app/batch/JsonCompare.h"
#include "reports/windows/PagePainter.h"
#include "reports/windows/ReportFile.h"

#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <memory>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>

using namespace Ledgrove;

/// callgrind turns the counting on and off by this name.
extern "C" [[gnu::noinline]] void CountedWork(const std::function<void()>& work) {
    work();
    asm volatile("" ::: "memory");
}

namespace {

std::function<void()> Recalculating() {
    const auto session = std::make_shared<Session>(Bench::SampleSession());
    const auto host = std::make_shared<CollectingHost>();
    return [session, host] {
        for (const char* price : {"$206,000", "$1,206,000", "$99,000", "$207,500"}) {
            for (int round = 0; round < 250; ++round) {
                session->Screen.ecGMHHome.Text = price;
                Module1::Recalculate(*session, *host);
                host->Clear();
            }
        }
    };
}

/// A list of a thousand homes in memory.
class PriceList {
public:
    using Row = std::function<std::string(int price)>;

    PriceList(const std::string& heading, const Row& row)
        : m_input(memfd_create("homes", 0))
        , m_nowhere(open("/dev/null", O_WRONLY)) {
        std::string text = heading;
        for (int home = 0; home < 1000; ++home)
            text += row(180000 + home * 125);
        if (write(m_input, text.data(), text.size()) != static_cast<ssize_t>(text.size()))
            std::abort();
    }

    void Compare(ComparisonReader& reader) const {
        lseek(m_input, 0, SEEK_SET);
        OutputBuffer output(m_nowhere);
        LineReader lines(m_input, [] {});
        if (!reader.Read(lines, output).AllWell())
            std::abort();
        output.Flush();
    }

private:
    int m_input;
    int m_nowhere;
};

template <typename Reader, typename... Run>
std::function<void()> Comparing(const PriceList& list, Run... run) {
    const auto comparison = std::make_shared<Comparison>(Bench::SampleSession());
    return [list, comparison, run...]() mutable {
        Reader reader(*comparison, run...);
        list.Compare(reader);
    };
}

std::function<void()> JsonLines() {
    return Comparing<JsonLinesReader>(PriceList("", [](int price) {
        return R"({"ecIncome": "$72,000", "ecMonthlyDebt": 350, "ecPctDown": "10%", "ecStdHome": )" +
               std::to_string(price) + R"(, "ecGMHHome": "$)" + std::to_string(price + 6000) +
               R"(", "ecStdUtil": 2400, "ecGMHUtil": 1700, "cboStdMortOption": "FHA", "cboMortTerm": "15 years"})"
               "\n";
    }));
}

std::function<void()> PriceRows() {
    return Comparing<CsvReader>(
        PriceList("ecIncome,ecMonthlyDebt,ecPctDown,ecStdHome,ecGMHHome,ecStdUtil,ecGMHUtil,cboStdMortOption,"
                  "cboMortTerm\n",
                  [](int price) {
                      return "\"$72,000\",350,10%," + std::to_string(price) + ",$" +
                             std::to_string(price + 6000) + ",2400,1700,FHA,15 years\n";
                  }),
        CsvRun{[](const std::string&) {}, [](const std::string&) {}, {}, CsvResults(), ','});
}

std::function<void()> Composing() {
    const auto session = std::make_shared<Session>(Bench::SampleSession());
    CollectingHost host;
    Module1::Recalculate(*session, host);
    return [session] {
        AssumptionsScreen assumptions;
        Module1::FillAssumptions(assumptions, *session);
        const FontMeasure measure;
        PrintDocument document(measure);
        PrepareReport(document, {}, "11/20/2026");
        document.Start();
        modPrint::WriteReport(document, {*session, assumptions, {true, true, true, true, true}, {}, {}});
        document.End();
    };
}

std::function<void()> WorkNamed(std::string_view name) {
    if (name == "recalculate")
        return Recalculating();
    if (name == "jsonl")
        return JsonLines();
    if (name == "csv")
        return PriceRows();
    if (name == "report")
        return Composing();
    std::fprintf(stderr, "The argument must be recalculate, jsonl, csv or report.\n");
    std::exit(2);
}

} // namespace

int main(int argc, char** argv) {
    std::unique_ptr<QGuiApplication> application;
    const std::string_view name = argc > 1 ? argv[1] : "";
    if (name == "report")
        application = std::make_unique<QGuiApplication>(argc, argv);
    const std::function<void()> work = WorkNamed(name);
    work();
    CountedWork(work);
}
