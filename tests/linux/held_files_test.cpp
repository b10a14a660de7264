#include "linux/held_files.h"

#include "base/fault.h"
#include "base/text.h"
#include "platform/memory_files.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kPath = "/data/a.dat";

struct HeldFilesTest : testing::Test {
    HeldFilesTest() { Put("first"); }

    /// Behind its back.
    void Put(const std::string& text) { system.WriteWhole(kPath, BytesOf(text)); }

    std::string Content() { return StringOf(ReadWhole(held, kPath)); }

    MemoryFiles system;
    HeldFiles held{system};
};

TEST_F(HeldFilesTest, SystemAnswersUntilTheyAreHeld) {
    EXPECT_EQ(Content(), "first");
    Put("second");
    EXPECT_EQ(Content(), "second");
    EXPECT_EQ(held.StampOf(kPath), system.StampOf(kPath));
    system.Delete(kPath);
    EXPECT_FALSE(held.Exists(kPath));
    EXPECT_THAT(held.List("/data"), IsEmpty());
}

TEST_F(HeldFilesTest, HeldOnesStayAsTheyWereFirstAskedFor) {
    held.Hold();
    EXPECT_EQ(Content(), "first");
    EXPECT_TRUE(held.Exists(kPath));
    EXPECT_THAT(held.List("/data"), ElementsAre("a.dat"));
    const std::string stamp = held.StampOf(kPath);
    system.Delete(kPath);
    EXPECT_EQ(Content(), "first");
    EXPECT_TRUE(held.Exists(kPath));
    EXPECT_THAT(held.List("/data"), ElementsAre("a.dat"));
    EXPECT_EQ(held.StampOf(kPath), stamp);
}

TEST_F(HeldFilesTest, HeldOneIsReadInPiecesAsTheSystemReadsThem) {
    held.Hold();
    for (int turn = 0; turn < 2; ++turn) {
        const auto file = held.OpenForReading(kPath);
        EXPECT_EQ(file->Size(), 5);
        EXPECT_EQ(StringOf(file->ReadAt(1, 3)), "irs");
        EXPECT_EQ(StringOf(file->ReadAt(3, 100)), "st");
        EXPECT_THAT(file->ReadAt(5, 1), IsEmpty());
        EXPECT_THAT(file->ReadAt(9, 1), IsEmpty());
    }
}

TEST_F(HeldFilesTest, MissingFileIsAFaultUntilItIsThere) {
    held.Hold();
    EXPECT_THROW(held.OpenForReading("/data/b.dat"), FileFault);
    system.WriteWhole("/data/b.dat", BytesOf("b"));
    EXPECT_EQ(held.OpenForReading("/data/b.dat")->Size(), 1);
}

TEST_F(HeldFilesTest, FileTooLargeForATableIsReadByTheSystem) {
    held.Hold();
    system.WriteWhole(kPath, Bytes(static_cast<std::size_t>(kLargestTable) + 1));
    EXPECT_EQ(held.OpenForReading(kPath)->Size(), std::int64_t{kLargestTable} + 1);
    Put("second");
    EXPECT_EQ(Content(), "second");
}

TEST_F(HeldFilesTest, WriteThroughThemEndsTheHold) {
    held.Hold();
    EXPECT_EQ(Content(), "first");
    held.WriteWhole(kPath, BytesOf("second"));
    EXPECT_EQ(Content(), "second");
    Put("third");
    EXPECT_EQ(Content(), "third");
    held.Hold();
    EXPECT_EQ(Content(), "third");
    const auto file = held.OpenForWriting(kPath);
    file->Append(BytesOf("fourth"));
    file->Commit();
    EXPECT_EQ(Content(), "fourth");
    held.Hold();
    EXPECT_TRUE(held.Exists(kPath));
    held.Delete(kPath);
    EXPECT_FALSE(held.Exists(kPath));
}

}  // namespace
}  // namespace horavex
