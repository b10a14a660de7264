#include "terminal/service/service_log.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <sstream>

#include "linux/system_call.h"
#include "support/scoped_variable.h"
#include "support/temporary_folder.h"

namespace horavex {
namespace {

Date Noon() {
    return DateSerial(2026, 11, 21) + TimeSerial(12, 0, 5);
}

TEST(ServiceLog, JournalGetsTheWeightOfALine) {
    std::ostringstream out;
    const ServiceLog log(out, true, Noon);
    log.Write(Severity::kNotice, "Asr has come");
    log.Write(Severity::kError, "no place");
    EXPECT_EQ(out.str(), "<5>Asr has come\n<3>no place\n");
}

TEST(ServiceLog, PeopleGetTheTime) {
    std::ostringstream out;
    ServiceLog(out, false, Noon).Write(Severity::kNotice, "Asr has come");
    EXPECT_EQ(out.str(), "2026-11-21 12:00:05 Asr has come\n");
}

TEST(ServiceLog, TextIsOneLineWithoutControls) {
    std::ostringstream out;
    ServiceLog(out, true, Noon).Write(Severity::kWarning, "a\r\nb\x1b[2Jc");
    EXPECT_EQ(out.str(), "<4>a b[2Jc\n");
}

class GoesToJournalTest : public testing::Test {
protected:
    std::string Name() const {
        struct stat status = {};
        ::fstat(file.Number(), &status);
        return std::to_string(status.st_dev) + ":" + std::to_string(status.st_ino);
    }

    TemporaryFolder folder;
    Descriptor file{::open((folder / "log").c_str(), O_WRONLY | O_CREAT, 0600)};
};

TEST_F(GoesToJournalTest, VariableNamesTheStream) {
    const ScopedVariable variable("JOURNAL_STREAM", Name().c_str());
    EXPECT_TRUE(GoesToJournal(file.Number()));
}

TEST_F(GoesToJournalTest, AnotherStreamIsNone) {
    const ScopedVariable variable("JOURNAL_STREAM", (Name() + "1").c_str());
    EXPECT_FALSE(GoesToJournal(file.Number()));
}

TEST_F(GoesToJournalTest, WithoutTheVariableNothingGoesThere) {
    const ScopedVariable variable("JOURNAL_STREAM", nullptr);
    EXPECT_FALSE(GoesToJournal(file.Number()));
}

}  // namespace
}  // namespace horavex
