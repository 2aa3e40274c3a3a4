#include "app/batch/SettingsCommand.h"

#include <utility>

#include "app/batch/ExitStatus.h"
#include "tests/batch/BatchDesk.h"
#include "tests/settings/TemporaryFolder.h"

namespace Ledgrove {
namespace {

/// Redirects standard output to a file in memory or to the descriptor `number` for the lifetime of the
/// object.
class Redirected {
public:
    explicit Redirected(int number)
        : m_before(dup(STDOUT_FILENO)) {
        dup2(number, STDOUT_FILENO);
    }
    ~Redirected() {
        dup2(m_before, STDOUT_FILENO);
        close(m_before);
    }
    Redirected(const Redirected&) = delete;
    Redirected& operator=(const Redirected&) = delete;

private:
    int m_before;
};

class SettingsCommandTest : public SettingsTest {
protected:
    template <typename Verb, typename... Arguments>
    std::pair<int, std::string> Output(Verb verb, const Arguments&... arguments) {
        const Testing::MemoryFile out;
        int status = 0;
        {
            const Redirected redirected(out.Number());
            status = verb(Folder(), arguments...);
        }
        return {status, out.Content()};
    }
};

TEST_F(SettingsCommandTest, GetPrintsTheValueAsALine) {
    Given("BUILDERNAME=  Acme Homes \r\n");
    EXPECT_EQ(Output(PrintSetting, "BUILDERNAME"), std::pair(int{AllWell}, std::string("Acme Homes\n")));
}

TEST_F(SettingsCommandTest, GetRefusesAMissingKey) {
    Given("BUILDERNAME=Acme\r\n");
    EXPECT_EQ(Output(PrintSetting, "NOSUCHKEY"), std::pair(int{SomeRefused}, std::string()));
}

TEST_F(SettingsCommandTest, WithoutTheSettingsFileNoCommandRuns) {
    EXPECT_EQ(Output(PrintSetting, "BUILDERNAME"), std::pair(int{CannotRun}, std::string()));
    EXPECT_EQ(Output(PrintHouses), std::pair(int{CannotRun}, std::string()));
    EXPECT_EQ(Output(ChangeSetting, "BUILDERNAME", "Acme", UnknownKeys::Refused),
              std::pair(int{CannotRun}, std::string()));
    EXPECT_FALSE(Exists(File().Path()));
}

TEST_F(SettingsCommandTest, AFailedWriteIsReported) {
    Given("BUILDERNAME=Acme\r\n");
    const Descriptor full("/dev/full", O_WRONLY);
    const Redirected redirected(full.Number());
    EXPECT_EQ(PrintSetting(Folder(), "BUILDERNAME"), int{CannotRun});
    EXPECT_EQ(PrintHouses(Folder()), int{CannotRun});
}

TEST_F(SettingsCommandTest, SetReplacesTheKeysLineAndKeepsTheRest) {
    Given("# a note\r\nBUILDERNAME=Old\r\nLOGOOPTION=1\r\n");
    EXPECT_EQ(Output(ChangeSetting, "BUILDERNAME", "Acme", UnknownKeys::Refused),
              std::pair(int{AllWell}, std::string()));
    EXPECT_EQ(Bytes(), "# a note\r\nBUILDERNAME=Acme\r\nLOGOOPTION=1\r\n");
}

TEST_F(SettingsCommandTest, SetRefusesAnInvalidInputAndChangesNothing) {
    const std::string before = "BUILDERNAME=Old\r\n";
    Given(before);
    EXPECT_EQ(ChangeSetting(Folder(), "", "x"), int{SomeRefused});
    EXPECT_EQ(ChangeSetting(Folder(), "HOMELIST", "x"), int{SomeRefused});
    EXPECT_EQ(ChangeSetting(Folder(), "BUILDERNAME", "a\nb"), int{SomeRefused});
    EXPECT_EQ(Bytes(), before);
}

TEST_F(SettingsCommandTest, HousesAreListedAsCsv) {
    Given("HOMELIST=The Alder,285000,2400,293000,1550.5\r\nHOMELIST==Elm,1,2,3,4\r\n");
    EXPECT_EQ(Output(PrintHouses),
              std::pair(int{AllWell}, std::string("name,StdCost,StdUtil,GMHCost,GMHUtil\n"
                                                  "The Alder,285000,2400,293000,1550.5\n"
                                                  "'=Elm,1,2,3,4\n")));
}

} // namespace
} // namespace Ledgrove
