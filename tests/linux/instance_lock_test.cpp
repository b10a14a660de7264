#include "linux/instance_lock.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <functional>

#include "support/scoped_variable.h"
#include "support/temporary_folder.h"

namespace horavex {
namespace {

namespace fs = std::filesystem;

// Another process that asks its own lock, tells the answer and stays until it is let go.
class OtherProcess {
public:
    explicit OtherProcess(const std::string& lockPath) {
        if (::pipe(answer_) != 0 || ::pipe(end_) != 0) {
            throw std::runtime_error("no pipe");
        }
        child_ = ::fork();
        if (child_ == 0) {
            InstanceLock lock(lockPath);
            const char answer = lock.AnotherIsRunning() ? 'y' : 'n';
            ::close(end_[1]);
            char ignored = 0;
            const bool told = ::write(answer_[1], &answer, 1) == 1;
            ::_exit(told && ::read(end_[0], &ignored, 1) == 0 ? 0 : 1);
        }
    }

    ~OtherProcess() { End(); }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

    /// 'y' or 'n', whether it found another one running.
    char Answer() const {
        char answer = '?';
        EXPECT_EQ(::read(answer_[0], &answer, 1), 1);
        return answer;
    }

    void End() {
        if (child_ < 0) {
            return;
        }
        ::close(end_[1]);
        int status = -1;
        EXPECT_EQ(::waitpid(child_, &status, 0), child_);
        EXPECT_EQ(status, 0);
        child_ = -1;
        for (const int descriptor : {end_[0], answer_[0], answer_[1]}) {
            ::close(descriptor);
        }
    }

private:
    int answer_[2] = {-1, -1};
    int end_[2] = {-1, -1};
    pid_t child_ = -1;
};

class InstanceLockTest : public testing::Test {
protected:
    TemporaryFolder folder;
    std::string path = folder / "horavex.lock";
};

TEST_F(InstanceLockTest, FirstQuestionClaimsThePlaceAndLaterOnesKeepIt) {
    InstanceLock lock(path);
    EXPECT_FALSE(fs::exists(path));
    EXPECT_FALSE(lock.AnotherIsRunning());
    EXPECT_FALSE(lock.AnotherIsRunning());
    EXPECT_EQ(OtherProcess(path).Answer(), 'y');
    EXPECT_FALSE(lock.AnotherIsRunning());
}

TEST_F(InstanceLockTest, SecondProcessIsToldAndGetsThePlaceWhenTheFirstEnds) {
    OtherProcess first(path);
    ASSERT_EQ(first.Answer(), 'n');
    InstanceLock lock(path);
    EXPECT_TRUE(lock.AnotherIsRunning());
    EXPECT_TRUE(lock.AnotherIsRunning());
    first.End();
    EXPECT_FALSE(lock.AnotherIsRunning());
}

TEST_F(InstanceLockTest, FileThatAnEndedProcessLeftIsNoClaim) {
    {
        OtherProcess ended(path);
        ASSERT_EQ(ended.Answer(), 'n');
    }
    ASSERT_TRUE(fs::exists(path));
    EXPECT_FALSE(InstanceLock(path).AnotherIsRunning());
}

TEST_F(InstanceLockTest, FileIsTheUsersAlone) {
    const mode_t former = ::umask(0);
    InstanceLock lock(path);
    lock.AnotherIsRunning();
    ::umask(former);
    EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(InstanceLockTest, BrokenPlacesNeverKeepTheProgramAway) {
    fs::create_directory(folder / "folder");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    fs::create_symlink(folder / "target", folder / "link");
    for (const char* name : {"folder", "pipe", "link", "missing/horavex.lock"}) {
        InstanceLock lock(folder / name);
        EXPECT_FALSE(lock.AnotherIsRunning()) << name;
        EXPECT_FALSE(lock.AnotherIsRunning()) << name;
    }
    EXPECT_FALSE(fs::exists(folder / "target")) << "a link is not followed";
}

TEST(InstanceLockPath, IsInTheSessionsFolder) {
    const ScopedVariable session("XDG_RUNTIME_DIR", "/run/user/1234");
    EXPECT_EQ(InstanceLockPath(), "/run/user/1234/horavex.lock");
}

TEST(InstanceLockPath, WithoutASessionsFolderItIsTheUsersNameAmongTemporaryFiles) {
    const TemporaryFolder folder;
    const ScopedVariable temporary("TMPDIR", folder.Path().c_str());
    const std::string expected = folder / ("horavex-" + std::to_string(::getuid()) + ".lock");
    for (const char* session : {static_cast<const char*>(nullptr), "", "relative"}) {
        const ScopedVariable variable("XDG_RUNTIME_DIR", session);
        EXPECT_EQ(InstanceLockPath(), expected);
    }
}

TEST(InstanceLockPath, MissingFolderOfTemporaryFilesIsReplacedByTheUsualOne) {
    const ScopedVariable session("XDG_RUNTIME_DIR", nullptr);
    const ScopedVariable temporary("TMPDIR", "/missing/folder");
    EXPECT_EQ(InstanceLockPath(), "/tmp/horavex-" + std::to_string(::getuid()) + ".lock");
}

}  // namespace
}  // namespace horavex
