#include "engine/Evaluate.h"

#include "engine/ReadScreen.h"
#include "tests/engine/TestSession.h"

#include <gtest/gtest.h>

#include <array>
#include <thread>

namespace Ledgrove::Module1 {
namespace {

TEST(EvaluateThreads, GiveWhatOneThreadGives) {
    const Session session = Testing::SampleSession();
    const Inputs inputs = ReadInputs(session.Screen);
    const auto evaluate = [&] {
        Carried carried;
        return Evaluate(inputs, session, carried);
    };
    const Results alone = evaluate();
    std::array<bool, 4> same{};
    {
        std::array<std::jthread, 4> threads;
        for (std::size_t i = 0; i < threads.size(); ++i)
            threads[i] = std::jthread([&, i] {
                same[i] = true;
                for (int round = 0; round < 200; ++round)
                    same[i] = evaluate() == alone && same[i];
            });
    }
    for (const bool each : same)
        EXPECT_TRUE(each);
}

} // namespace
} // namespace Ledgrove::Module1
