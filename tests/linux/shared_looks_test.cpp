#include "linux/shared_looks.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "linux/file_status.h"
#include "linux/posix_files.h"
#include "linux/system_clock.h"
#include "support/temporary_folder.h"

namespace horavex {
namespace {

int looks = 0;

std::string Count(const std::string& path) {
    return path + std::to_string(++looks);
}

std::string CountBack(const std::string& path) {
    return path + std::to_string(--looks);
}

struct SharedLooksTest : testing::Test {
    SharedLooksTest() { looks = 0; }
};

TEST_F(SharedLooksTest, EachLookIsTheSystemsWithoutOne) {
    EXPECT_EQ(SharedLooks::Of(Count, "a"), "a1");
    EXPECT_EQ(SharedLooks::Of(Count, "a"), "a2");
    { const SharedLooks shared; }
    EXPECT_EQ(SharedLooks::Of(Count, "a"), "a3");
    SharedLooks::Renew();
}

TEST_F(SharedLooksTest, AnswerCountsForTheRestOfATurn) {
    const SharedLooks shared;
    EXPECT_EQ(SharedLooks::Of(Count, "a"), "a1");
    EXPECT_EQ(SharedLooks::Of(Count, "b"), "b2");
    EXPECT_EQ(SharedLooks::Of(CountBack, "a"), "a1") << "another question";
    EXPECT_EQ(SharedLooks::Of(Count, "b"), "b2");
    EXPECT_EQ(looks, 1);
    SharedLooks::Renew();
    EXPECT_EQ(SharedLooks::Of(Count, "b"), "b2");
    EXPECT_EQ(SharedLooks::Of(Count, "b"), "b2");
    EXPECT_EQ(looks, 2);
}

TEST_F(SharedLooksTest, FilesAreLookedAtAnewWithEachTurnAndBehindAWriteOfOnesOwn) {
    const TemporaryFolder folder;
    const std::string path = folder / "a";
    PosixFiles files;
    const SharedLooks shared;
    const std::string none = StampOfFile(path);
    EXPECT_EQ(SettledStamp(path), none);
    files.WriteWhole(path, BytesOf("1"));
    const std::string first = StampOfFile(path);
    EXPECT_NE(first, none);
    EXPECT_EQ(SettledStamp(path), "");
    WriteChosenFile(files, path, BytesOf("12"));
    EXPECT_NE(StampOfFile(path), first);
    files.Delete(path);
    EXPECT_EQ(StampOfFile(path), none);
}

TEST_F(SharedLooksTest, ZoneIsFollowedWithEachTurn) {
    const char* former = std::getenv("TZ");
    const std::string kept = former == nullptr ? "" : former;
    const SharedLooks shared;
    ::setenv("TZ", "UTC0", 1);
    EXPECT_EQ(LocalOffset(0).hours, 0.0);
    ::setenv("TZ", "EST5", 1);
    EXPECT_EQ(LocalOffset(0).hours, 0.0);
    SharedLooks::Renew();
    EXPECT_EQ(LocalOffset(0).hours, -5.0);
    former == nullptr ? ::unsetenv("TZ") : ::setenv("TZ", kept.c_str(), 1);
}

}  // namespace
}  // namespace horavex
