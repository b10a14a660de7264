#include "linux/replace_file.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <filesystem>

#include "base/fault.h"
#include "linux/posix_files.h"
#include "linux/replacement.h"
#include "support/temporary_folder.h"

namespace horavex {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

// A limit of the process, lowered for the length of a scope.
class LoweredLimit {
public:
    LoweredLimit(__rlimit_resource resource, rlim_t limit) : resource_(resource) {
        ::getrlimit(resource_, &former_);
        const rlimit lowered = {limit, former_.rlim_max};
        ::setrlimit(resource_, &lowered);
    }
    ~LoweredLimit() { ::setrlimit(resource_, &former_); }
    LoweredLimit(const LoweredLimit&) = delete;
    LoweredLimit& operator=(const LoweredLimit&) = delete;

private:
    __rlimit_resource resource_;
    rlimit former_ = {};
};

// A write beyond the limit on file sizes then fails with an error and does not end the process.
class IgnoredSizeSignal {
public:
    IgnoredSizeSignal() { former_ = std::signal(SIGXFSZ, SIG_IGN); }
    ~IgnoredSizeSignal() { std::signal(SIGXFSZ, former_); }
    IgnoredSizeSignal(const IgnoredSizeSignal&) = delete;
    IgnoredSizeSignal& operator=(const IgnoredSizeSignal&) = delete;

private:
    void (*former_)(int) = SIG_DFL;
};

// The numbers that the next two descriptors get; what started the tests may have left gaps.
std::array<rlim_t, 2> NextDescriptors() {
    const int first = ::open("/", O_RDONLY | O_CLOEXEC);
    const int second = ::open("/", O_RDONLY | O_CLOEXEC);
    ::close(first);
    ::close(second);
    return {static_cast<rlim_t>(first), static_cast<rlim_t>(second)};
}

// Another process that writes two contents in turn until it is killed, at any of its steps.
class WritingProcess {
public:
    WritingProcess(const std::string& path, const std::array<Bytes, 2>& contents) {
        child_ = ::fork();
        if (child_ == 0) {
            WriteForEver(path, contents);
        }
    }

    ~WritingProcess() {
        ::kill(child_, SIGKILL);
        ::waitpid(child_, nullptr, 0);
    }

    WritingProcess(const WritingProcess&) = delete;
    WritingProcess& operator=(const WritingProcess&) = delete;

    bool IsRunning() const { return ::waitpid(child_, nullptr, WNOHANG) == 0; }

private:
    [[noreturn]] static void WriteForEver(const std::string& path,
                                          const std::array<Bytes, 2>& contents) noexcept {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        for (std::size_t n = 1;; ++n) {
            ReplaceFile(path, contents[n % 2]);
        }
    }

    pid_t child_ = -1;
};

class ReplaceFileTest : public testing::Test {
protected:
    std::string Read(const std::string& name) { return StringOf(ReadWhole(files, folder / name)); }

    mode_t ModeOf(const std::string& name) const {
        struct stat status = {};
        EXPECT_EQ(::stat((folder / name).c_str(), &status), 0);
        return status.st_mode & 0777;
    }

    void ExpectOldFileAlone() {
        EXPECT_EQ(Read("a"), "old content");
        EXPECT_THAT(files.List(folder.Path()), ElementsAre("a")) << "no temporary name stays";
    }

    TemporaryFolder folder;
    PosixFiles files;
};

TEST_F(ReplaceFileTest, MakesAndReplacesWholeFiles) {
    ReplaceFile(folder / "a", BytesOf("a longer first content"));
    ReplaceFile(folder / "a", BytesOf("second"));
    EXPECT_EQ(Read("a"), "second");
    ReplaceFile(folder / "a", {});
    EXPECT_EQ(Read("a"), "");
    EXPECT_THAT(files.List(folder.Path()), ElementsAre("a"));
}

TEST_F(ReplaceFileTest, MakesMissingFolders) {
    ReplaceFile(folder / "p/q/a", BytesOf("deep"));
    EXPECT_EQ(Read("p/q/a"), "deep");
    EXPECT_EQ(ModeOf("p"), 0700U) << "for the user alone";
    EXPECT_EQ(ModeOf("p/q"), 0700U);
}

TEST_F(ReplaceFileTest, ManyMegabytesArriveWhole) {
    Bytes bytes(5'000'003);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<std::uint8_t>(i * 2654435761U >> 24U);
    }
    ReplaceFile(folder / "a", bytes);
    EXPECT_EQ(ReadWhole(files, folder / "a"), bytes);
}

TEST_F(ReplaceFileTest, LongestNameTheSystemKnowsCanBeWritten) {
    const std::string name(255, 'n');
    ReplaceFile(folder / name, BytesOf("x"));
    EXPECT_EQ(Read(name), "x");
}

TEST_F(ReplaceFileTest, RelativePathIsBelowTheWorkingFolder) {
    const fs::path former = fs::current_path();
    fs::current_path(folder.Path());
    ReplaceFile("a", BytesOf("here"));
    fs::current_path(former);
    EXPECT_EQ(Read("a"), "here");
}

TEST_F(ReplaceFileTest, NewFileTakesTheMaskOfTheProcess) {
    const mode_t former = ::umask(027);
    ReplaceFile(folder / "a", {});
    ::umask(former);
    EXPECT_EQ(ModeOf("a"), 0640U);
}

TEST_F(ReplaceFileTest, PermissionsOfTheOldFileStay) {
    ReplaceFile(folder / "a", {});
    ASSERT_EQ(::chmod((folder / "a").c_str(), 0604), 0);
    ReplaceFile(folder / "a", BytesOf("new"));
    EXPECT_EQ(ModeOf("a"), 0604U);
}

TEST_F(ReplaceFileTest, NewContentIsNeverOpenToMoreThanTheOldFileWas) {
    ReplaceFile(folder / "a", {});
    ASSERT_EQ(::chmod((folder / "a").c_str(), 0600), 0);
    const Replacement replacement(folder / "a");
    replacement.Append(BytesOf("new"));
    for (const auto& entry : fs::directory_iterator(folder / ".")) {
        EXPECT_EQ(ModeOf(entry.path().filename()), 0600U);
    }
}

TEST_F(ReplaceFileTest, LinkStaysALinkAndTheFileBehindItIsReplaced) {
    ReplaceFile(folder / "real/a", BytesOf("old"));
    fs::create_symlink("real/a", folder / "link");
    ReplaceFile(folder / "link", BytesOf("new"));
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_EQ(Read("real/a"), "new");
    EXPECT_THAT(files.List(folder / "real"), ElementsAre("a"));
}

TEST_F(ReplaceFileTest, LinkThatLeadsNowhereIsAFaultAndStays) {
    fs::create_symlink("nothing", folder / "link");
    fs::create_symlink("circle", folder / "circle");
    EXPECT_THROW(ReplaceFile(folder / "link", BytesOf("new")), FileFault);
    EXPECT_THROW(ReplaceFile(folder / "circle", BytesOf("new")), FileFault);
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_THAT(files.List(folder.Path()), ElementsAre("circle", "link"));
}

TEST_F(ReplaceFileTest, PipeIsAFaultAndStays) {
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_THROW(ReplaceFile(folder / "pipe", BytesOf("new")), FileFault);
    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
}

TEST_F(ReplaceFileTest, TemporaryNameOfACrashIsNoHindrance) {
    const std::string left = ".horavex-" + std::to_string(::getpid()) + "-0";
    fs::create_directory(folder / left);
    ReplaceFile(folder / "a", BytesOf("new"));
    EXPECT_EQ(Read("a"), "new");
    EXPECT_THAT(files.List(folder.Path()), ElementsAre(left, "a"));
}

TEST_F(ReplaceFileTest, WriteThatFailsAtAnyByteKeepsTheOldFile) {
    ReplaceFile(folder / "a", BytesOf("old content"));
    const Bytes bytes = BytesOf("quite new content");
    const IgnoredSizeSignal ignored;
    for (std::size_t n = 0; n < bytes.size(); ++n) {
        const LoweredLimit limit(RLIMIT_FSIZE, n);
        EXPECT_THROW(ReplaceFile(folder / "a", bytes), FileFault) << n << " bytes get through";
        ExpectOldFileAlone();
    }
    const LoweredLimit limit(RLIMIT_FSIZE, bytes.size());
    ReplaceFile(folder / "a", bytes);
    EXPECT_EQ(Read("a"), "quite new content");
}

TEST_F(ReplaceFileTest, WantOfDescriptorsKeepsTheOldFile) {
    ReplaceFile(folder / "a", BytesOf("old content"));
    const auto [ofFolder, ofFile] = NextDescriptors();
    for (const rlim_t missing : {ofFolder, ofFile}) {
        {
            const LoweredLimit limit(RLIMIT_NOFILE, missing);
            EXPECT_THROW(ReplaceFile(folder / "a", BytesOf("new")), FileFault) << missing;
        }
        ExpectOldFileAlone();
    }
    const LoweredLimit limit(RLIMIT_NOFILE, ofFile + 1);
    ReplaceFile(folder / "a", BytesOf("new"));
}

TEST_F(ReplaceFileTest, NameOfAFolderIsAFaultThatLeavesNothing) {
    fs::create_directories(folder / "p/q");
    EXPECT_THROW(ReplaceFile(folder / "p", BytesOf("x")), FileFault);
    EXPECT_THROW(ReplaceFile(folder / "p/", BytesOf("x")), FileFault);
    EXPECT_THROW(ReplaceFile("", BytesOf("x")), FileFault);
    EXPECT_THAT(files.List(folder.Path()), ElementsAre("p"));
    EXPECT_THAT(files.List(folder / "p"), ElementsAre("q"));
}

TEST_F(ReplaceFileTest, FileInPlaceOfTheFolderIsAFault) {
    ReplaceFile(folder / "a", BytesOf("old content"));
    EXPECT_THROW(ReplaceFile(folder / "a/b", BytesOf("x")), FileFault);
    EXPECT_THROW(ReplaceFile(folder / "a/b/c", BytesOf("x")), FileFault);
    ExpectOldFileAlone();
}

TEST_F(ReplaceFileTest, FaultNamesThePathAndTheReason) {
    ReplaceFile(folder / "a", {});
    try {
        ReplaceFile(folder / "a/b", {});
        FAIL() << "wrote below a file";
    } catch (const FileFault& fault) {
        EXPECT_EQ(fault.Path(), folder / "a/b");
        EXPECT_THAT(fault.what(), testing::HasSubstr("Not a directory"));
    }
}

TEST_F(ReplaceFileTest, ReaderSeesOneContentOrTheOtherWhileAnotherProcessWrites) {
    const std::array contents = {Bytes(3000, 'a'), Bytes(5000, 'b')};
    ReplaceFile(folder / "a", contents[0]);
    const WritingProcess writer(folder / "a", contents);
    Bytes last = contents[0];
    for (int changes = 0; changes < 20;) {
        ASSERT_TRUE(writer.IsRunning());
        const Bytes now = ReadWhole(files, folder / "a");
        ASSERT_THAT(now, testing::AnyOf(contents[0], contents[1]));
        changes += now == last ? 0 : 1;
        last = now;
    }
}

TEST_F(ReplaceFileTest, KilledProcessLeavesOneContentOrTheOther) {
    const std::array contents = {Bytes(3000, 'a'), Bytes(5000, 'b')};
    ReplaceFile(folder / "a", contents[0]);
    for (int n = 0; n < 20; ++n) {
        { const WritingProcess killed(folder / "a", contents); }
        ASSERT_THAT(ReadWhole(files, folder / "a"), testing::AnyOf(contents[0], contents[1]));
    }
}

}  // namespace
}  // namespace horavex
