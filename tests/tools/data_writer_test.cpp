#include "lib/data_writer.h"

#include <fstream>
#include <iterator>

#include "base/fault.h"
#include "store/indexed_file.h"
#include "support/temporary_folder.h"

namespace horavex {
namespace {

using testing::ElementsAre;

TEST(TextPacker, TextsFollowEachOtherFromPositionOne) {
    TextPacker packer(100);
    EXPECT_EQ(packer.Add("abc", CodePage::kWindows1252), 1);
    EXPECT_EQ(packer.Add("d", CodePage::kWindows1252), 4);
    EXPECT_EQ(packer.Add("ef", CodePage::kWindows1252), 5);
    EXPECT_EQ(packer.Packed().size(), 6U);
}

TEST(TextPacker, TextsAreStoredUnderTheSubstitution) {
    TextPacker packer(100);
    packer.Add("aé", CodePage::kWindows1252);
    EXPECT_THAT(packer.Packed(), ElementsAre('a' + 127, 0xE9 - 127));
    EXPECT_THAT(DecodeText(packer.Packed()), ElementsAre('a', 0xE9));
}

TEST(TextPacker, CodePageMakesTheBytes) {
    TextPacker packer(100);
    packer.Add("ش", CodePage::kWindows1256);
    EXPECT_THAT(DecodeText(packer.Packed()), ElementsAre(0xD4));
}

TEST(TextPacker, CharacterOutsideTheCodePageIsAFaultThatNamesTheText) {
    TextPacker packer(100);
    EXPECT_THAT([&] { packer.Add("Łódź", CodePage::kWindows1252); },
                testing::ThrowsMessage<TypeMismatchFault>(testing::HasSubstr("Łódź")));
    EXPECT_THROW(packer.Add("ش", CodePage::kWindows1252), TypeMismatchFault);
    EXPECT_THROW(packer.Add("ř", CodePage::kWindows1256), TypeMismatchFault);
    EXPECT_TRUE(packer.Packed().empty());
}

TEST(TextPacker, LastTextMayBeginAtTheLargestPositionAndReachBeyond) {
    TextPacker packer(5);
    packer.Add("abcd", CodePage::kWindows1252);
    EXPECT_EQ(packer.Add("efgh", CodePage::kWindows1252), 5);
    EXPECT_THROW(packer.Add("i", CodePage::kWindows1252), OverflowFault);
}

TEST(DataWriter, NumbersAreLittleEndian) {
    Bytes bytes;
    AppendInt16(bytes, -2);
    AppendInt32(bytes, 0x01020304);
    EXPECT_THAT(bytes, ElementsAre(0xFE, 0xFF, 4, 3, 2, 1));
}

TEST(DataWriter, NumberThatLeavesItsFieldIsAFault) {
    Bytes bytes;
    EXPECT_THROW(AppendInt16(bytes, 32768), OverflowFault);
    EXPECT_THROW(AppendInt16(bytes, -32769), OverflowFault);
}

TEST(DataWriter, MakesTheFolderAndReplacesTheFile) {
    const TemporaryFolder folder;
    WriteDataFile(folder / "a/b", "X.DAT", Bytes{1, 2, 3});
    WriteDataFile(folder / "a/b", "X.DAT", Bytes{4});
    std::ifstream in(folder / "a/b/X.DAT", std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}), "\x04");
}

TEST(DataWriter, FileThatCannotBeWrittenIsAFault) {
    const TemporaryFolder folder;
    WriteDataFile(folder / "X.DAT", "inside", {});
    EXPECT_THROW(WriteDataFile(folder.Path(), "X.DAT", Bytes{1}), FileFault);
}

}  // namespace
}  // namespace horavex
