#include "linux/pipe_output.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <filesystem>

#include "base/fault.h"
#include "support/temporary_folder.h"

namespace horavex {
namespace {

namespace fs = std::filesystem;

class PipeOutputTest : public testing::Test {
protected:
    PipeOutputTest() { EXPECT_EQ(::mkfifo(path.c_str(), 0600), 0); }

    TemporaryFolder folder;
    const std::string path = folder / "pipe";
};

TEST_F(PipeOutputTest, ReaderGetsTheBytesAsTheyCome) {
    const Descriptor reader(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    PipeOutput pipe(path);
    pipe.Append(BytesOf("a year"));
    char read[16] = {};
    EXPECT_EQ(::read(reader.Number(), read, sizeof read), 6);
    EXPECT_STREQ(read, "a year");
    pipe.Commit();
    EXPECT_TRUE(fs::is_fifo(path));
}

TEST_F(PipeOutputTest, PipeThatNobodyReadsIsAFaultAndNoWait) {
    EXPECT_THROW(PipeOutput{path}, FileFault);
}

TEST_F(PipeOutputTest, WhatIsNoPipeIsAFault) {
    EXPECT_THROW(PipeOutput{folder.Path()}, FileFault);
    EXPECT_THROW(PipeOutput{folder / "missing"}, FileFault);
}

}  // namespace
}  // namespace horavex
