#include "app/batch/OutputBuffer.h"

#include "tests/base/StuckDescriptor.h"
#include "tests/batch/BatchDesk.h"

namespace Ledgrove {
namespace {

using Testing::MemoryFile;

TEST(OutputBuffer, KeepsALittleUntilItIsFlushed) {
    const MemoryFile file;
    OutputBuffer output(file.Number());
    output.Text() += "one\n";
    output.Commit();
    EXPECT_EQ(file.Content(), "");
    output.Text() += "two\n";
    output.Flush();
    EXPECT_EQ(file.Content(), "one\ntwo\n");
    EXPECT_EQ(output.Text(), "");
    EXPECT_EQ(output.Failure(), "");
}

TEST(OutputBuffer, WritesByItselfWhenTheTextIsLong) {
    const MemoryFile file;
    OutputBuffer output(file.Number());
    const std::string much(std::size_t{1} << 20U, 'x');
    output.Text() += much;
    output.Commit();
    EXPECT_EQ(file.Content(), much);
}

TEST(OutputBuffer, WritesATextAfterTheCollectedText) {
    const MemoryFile file;
    OutputBuffer output(file.Number());
    output.Text() += "first ";
    output.Write("second");
    EXPECT_EQ(file.Content(), "first second");
}

TEST(OutputBuffer, RemembersAFailedWriteAndDropsFurtherOutput) {
    const Descriptor full("/dev/full", O_WRONLY);
    OutputBuffer output(full.Number());
    output.Write("lost");
    EXPECT_EQ(output.Failure(), "No space left on device");
    output.Text() += "lost";
    output.Flush();
    EXPECT_EQ(output.Text(), "");
    EXPECT_EQ(output.Failure(), "No space left on device");
}

TEST(OutputBuffer, AWriteThatTakesNothingIsAFailure) {
    const int before = Testing::StuckWrites();
    OutputBuffer output(Testing::StuckDescriptor);
    output.Write("x");
    EXPECT_EQ(output.Failure(), "Input/output error");
    output.Write("y");
    EXPECT_EQ(Testing::StuckWrites(), before + 1);
}

TEST(OutputBuffer, TheSentenceNamesTheLostOutputAndTheReason) {
    EXPECT_EQ(UnwrittenOutput("results", "No space left on device"),
              "the results could not be written (No space left on device). Free some space or choose "
              "another place for them.");
}

} // namespace
} // namespace Ledgrove
