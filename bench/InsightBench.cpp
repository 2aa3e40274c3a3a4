// The time to answer the questions of one comparison, with the answers as JSON. Prints the medians of many
// runs in milliseconds: of all usual views, of the map alone with the break-even that its scales need, of the
// years, and of the energy prices.

#include "app/batch/Comparison.h"
#include "app/batch/InsightCommand.h"
#include "bench/Sample.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

using namespace Ledgrove;

namespace {

constexpr double by = 10;
constexpr int rounds = 200;

ChosenViews ViewNamed(std::string_view name) {
    ChosenViews chosen;
    for (const InsightView& view : InsightViewTable())
        if (view.Name == name)
            chosen.push_back(&view);
    return chosen;
}

double MedianTime(const InsightAnswers& answers, const Session& session) {
    std::vector<double> milliseconds;
    std::string out;
    for (int round = 0; round < rounds; ++round) {
        out.clear();
        const auto start = std::chrono::steady_clock::now();
        if (!answers.AppendJson(out, session))
            std::exit(1);
        const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
        milliseconds.push_back(taken.count());
    }
    std::sort(milliseconds.begin(), milliseconds.end());
    return milliseconds[rounds / 2];
}

} // namespace

int main() {
    Session session = Bench::SampleSession();
    CollectingHost host;
    Module1::Recalculate(session, host);
    std::printf("%.3f %.3f %.3f %.3f\n", MedianTime({DefaultViews(), by}, session),
                MedianTime({ViewNamed("map"), by}, session), MedianTime({ViewNamed("years"), by}, session),
                MedianTime({ViewNamed("energy"), by}, session));
}
