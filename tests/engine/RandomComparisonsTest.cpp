#include "tests/engine/RandomComparisons.h"

#include "engine/Recalculate.h"

#include <gtest/gtest.h>

// Checks every bit of 200,000 random recalculations. The digests come from an earlier engine that computed
// with the texts of the screen, and both engines agreed on every comparison. They are valid for the
// mathematical functions of Debian 12's C library.
namespace Ledgrove::Testing {
namespace {

constexpr std::uint64_t seed = 20261121;
constexpr int singles = 100'000;
constexpr int sequences = 1'000;
constexpr int stepsOfASequence = 100;

void AddRecalculation(Digest& digest, Session& session, ScriptedHost& host) {
    host.Messages.clear();
    Module1::Recalculate(session, host);
    AddOutcome(digest, session, host);
}

TEST(RandomComparisonsTest, HaveTheRecordedDigests) {
    Random random(seed);
    Digest digest;
    ScriptedHost host;
    for (int i = 0; i < singles; ++i) {
        Session session = RandomSession(random);
        AddRecalculation(digest, session, host);
    }
    EXPECT_EQ(digest.Value(), 0x03d78b7fb9001fe4U);

    // One session runs many recalculations, so this also checks the state that each passes on.
    Digest digestOfSequences;
    for (int i = 0; i < sequences; ++i) {
        Session session = RandomSession(random);
        for (int step = 0; step < stepsOfASequence; ++step) {
            ChangeInputs(random, session, 1 + random.Below(3));
            if (random.OneIn(30))
                ChangeTables(random, session);
            AddRecalculation(digestOfSequences, session, host);
        }
    }
    EXPECT_EQ(digestOfSequences.Value(), 0x647a616d669ad85dU);
}

} // namespace
} // namespace Ledgrove::Testing
