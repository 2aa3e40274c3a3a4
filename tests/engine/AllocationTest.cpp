#include "engine/Evaluate.h"
#include "engine/ReadScreen.h"
#include "engine/Recalculate.h"
#include "tests/engine/TestSession.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

// These tests are a separate program, because they replace operator new to count every allocation.
namespace {

long requests = 0;

} // namespace

void* operator new(std::size_t size) {
    ++requests;
    if (void* const memory = std::malloc(size))
        return memory;
    std::abort();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace Ledgrove {
namespace {

long RequestsOf(Session& session, Host& host) {
    const long before = requests;
    Module1::Recalculate(session, host);
    return requests - before;
}

TEST(AllocationTest, TheCounterCounts) {
    const long before = requests;
    const std::string longText(100, 'x');
    EXPECT_GE(requests - before, 1);
}

TEST(AllocationTest, AWarmRecalculationAllocatesNothing) {
    Session session = Testing::SampleSession();
    Testing::ScriptedHost host;
    // The longest texts come first, such as "Additional Taxes", so that every label has capacity after that.
    for (const char* price : {"$1,206,000", "$99,000"}) {
        session.Screen.ecGMHHome.Text = price;
        Module1::Recalculate(session, host);
    }
    for (const char* price : {"$1,206,000", "$206,000", "$99,000", "$207,500"}) {
        session.Screen.ecGMHHome.Text = price;
        EXPECT_EQ(RequestsOf(session, host), 0) << price;
    }
}

TEST(AllocationTest, AnotherLoanAllocatesNothing) {
    Session session = Testing::SampleSession();
    Testing::ScriptedHost host;
    Module1::Recalculate(session, host);
    Testing::ChooseOptions(session, "Conventional", "Freddie Mac EEM");
    Module1::Recalculate(session, host);
    session.Screen.chkDoTax0 = false;
    EXPECT_EQ(RequestsOf(session, host), 0);
}

TEST(AllocationTest, AnEvaluationNeverAsksForMemory) {
    const Session session = Testing::SampleSession();
    Inputs inputs = Module1::ReadInputs(session.Screen);
    Carried carried;
    const long before = requests;
    for (const float price : {206000.0F, 99000.0F, 3e38F, 0.0F}) {
        inputs.GMH.Cost = price;
        Module1::Evaluate(inputs, session, carried);
    }
    EXPECT_EQ(requests - before, 0);
}

} // namespace
} // namespace Ledgrove
