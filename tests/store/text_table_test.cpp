#include "store/text_table.h"

#include "base/fault.h"
#include "store/indexed_file.h"
#include "support/data_folder_test.h"

namespace horavex {
namespace {

using TextTableTest = DataFolderTest;

/// Entries by number, those without a name among them.
std::string Item(std::uint16_t entry, std::int16_t language) {
    return TextItem(TextEntry{entry}, language);
}

TEST_F(TextTableTest, EveryEntryHasATextInEachOfSixLanguages) {
    data.WriteTexts(3);
    for (std::uint16_t entry = 1; entry <= 3; ++entry) {
        for (std::int16_t language = 1; language <= 6; ++language) {
            EXPECT_EQ(Item(entry, language),
                      "text " + std::to_string(entry) + " in " + std::to_string(language));
        }
    }
}

TEST(PrayerNameEntry, CountsFromFajrToIsha) {
    EXPECT_EQ(PrayerNameEntry(0), TextEntry::kFajr);
    EXPECT_EQ(PrayerNameEntry(2), TextEntry::kZuhr);
    EXPECT_EQ(PrayerNameEntry(5), TextEntry::kIsha);
}

TEST_F(TextTableTest, LanguageZeroIsTheFirst) {
    data.WriteTexts(2);
    EXPECT_EQ(Item(2, 0), "text 2 in 1");
}

TEST_F(TextTableTest, LanguageBeyondTheSixthIsTheNextEntry) {
    data.WriteTexts(2);
    EXPECT_EQ(Item(1, 7), "text 2 in 1");
    EXPECT_EQ(Item(2, -1), "text 1 in 5");
}

TEST_F(TextTableTest, VeryLastTextTakesItsLengthFromTheFile) {
    data.WriteText(TextEntry{1}, 6, "the end");
    EXPECT_EQ(Item(1, 6), "the end");
    data.ShrinkBy("Dat/T.DAT", 4);
    EXPECT_EQ(Item(1, 6), "the");
}

TEST_F(TextTableTest, EntryBeyondTheIndexIsEmpty) {
    data.WriteTexts(2);
    EXPECT_EQ(Item(3, 1), "");
    EXPECT_EQ(Item(5461, 6), "");
}

TEST_F(TextTableTest, EmptyTextIsEmpty) {
    data.WriteText(TextEntry{2}, 3, "");
    EXPECT_EQ(Item(2, 3), "");
    EXPECT_EQ(Item(2, 4), "text 2 in 4");
}

TEST_F(TextTableTest, ArabicColumnIsReadInItsOwnCodePage) {
    data.WriteText(TextEntry{1}, 4, "شمال");
    data.WriteText(TextEntry{1}, 2, "Café à l’été");
    EXPECT_EQ(Item(1, 4), "شمال");
    EXPECT_EQ(Item(1, 2), "Café à l’été");
}

TEST_F(TextTableTest, SameByteIsAnotherCharacterInTheArabicColumn) {
    data.WriteText(TextEntry{1}, 4, "ش");
    data.WriteText(TextEntry{1}, 5, "\u00D4");  // the byte of the Arabic letter in Windows-1252
    const Bytes texts = data.Read("Dat/T.DAT");
    EXPECT_EQ(texts[33], texts[34]);
    EXPECT_EQ(Item(1, 4), "ش");
    EXPECT_EQ(Item(1, 5), "\u00D4");
}

TEST_F(TextTableTest, AnyStoredByteIsPartOfAText) {
    data.Write("Dat/TI.DAT", Bytes{1, 0});
    data.Write("Dat/T.DAT", Bytes{13, 10, 26, 0, 255, 9, 127});
    EXPECT_EQ(Item(1, 1), std::string("Œ‰™\0ÿˆþ", 15));
}

TEST_F(TextTableTest, EntryZeroIsAFault) {
    data.WriteTexts(1);
    for (std::int16_t language = 0; language <= 6; ++language) {
        EXPECT_THROW(Item(0, language), BoundsFault) << language;
    }
}

/// An index of the most records that a 16-bit number reaches; all texts but the last are empty.
void WriteLargestTable(DataFolder& data) {
    Bytes index;
    for (int record = 1; record <= 32767; ++record) {
        index.insert(index.end(), {3, 0});
    }
    data.Write("Dat/TI.DAT", index);
    data.Write("Dat/T.DAT", DecodeText(BytesOf("..last")));
}

TEST_F(TextTableTest, Record32767IsTheLastThatSixteenBitsReach) {
    WriteLargestTable(data);
    EXPECT_EQ(Item(5462, 1), "last");
    EXPECT_EQ(Item(5462, 0), "last");
    EXPECT_EQ(Item(5461, 6), std::string());
}

TEST_F(TextTableTest, RecordNumberBeyondSixteenBitsIsAFault) {
    WriteLargestTable(data);
    EXPECT_THROW(Item(5462, 2), OverflowFault);
    EXPECT_THROW(Item(5463, 1), OverflowFault);
    EXPECT_THROW(Item(5463, -6), OverflowFault);  // though the sum would fit again
    EXPECT_THROW(Item(32767, 1), OverflowFault);
    EXPECT_THROW(Item(65535, 1), OverflowFault);
}

TEST_F(TextTableTest, StartBehindTheNextOneIsAFault) {
    data.WriteTexts(1);
    data.SetInt16("Dat/TI.DAT", 2, 100);
    EXPECT_THROW(Item(1, 2), BoundsFault);
}

TEST_F(TextTableTest, StartsBeyondSixteenBitsTurnNegativeAndAreAFault) {
    data.WriteTexts(1);
    data.SetInt16("Dat/TI.DAT", 10, static_cast<std::int16_t>(0x8001));
    EXPECT_THROW(Item(1, 6), BoundsFault);
}

TEST_F(TextTableTest, MissingFilesAreFileFaults) {
    data.WriteTexts(1);
    data.Remove("Dat/TI.DAT");
    EXPECT_THROW(Item(1, 1), FileFault);
    EXPECT_THROW(Item(65535, 1), FileFault);  // the files are opened first
    data.WriteTexts(1);
    data.Remove("Dat/T.DAT");
    EXPECT_THROW(Item(1, 1), FileFault);
}

TEST_F(TextTableTest, FilesAreOpenedOnEveryCall) {
    data.WriteText(TextEntry{1}, 1, "before");
    EXPECT_EQ(Item(1, 1), "before");
    data.WriteText(TextEntry{1}, 1, "after");
    EXPECT_EQ(Item(1, 1), "after");
}

TEST_F(TextTableTest, EveryFailingCallIsAFileFaultAndTheNextLookupWorks) {
    data.WriteTexts(2);
    platform.failingFiles.FailCall(0);
    Item(1, 1);
    const int calls = platform.failingFiles.Calls();
    ASSERT_EQ(calls, 5);  // two opens, two starts, the text
    for (int n = 1; n <= calls; ++n) {
        platform.failingFiles.FailCall(n);
        EXPECT_THROW(Item(1, 1), FileFault) << n;
        EXPECT_EQ(Item(1, 1), "text 1 in 1");
    }
}

TEST(TextColumnCodePage, IsArabicForTheFourthColumnAlone) {
    for (std::int16_t language = 1; language <= 6; ++language) {
        EXPECT_EQ(TextColumnCodePage(language),
                  language == 4 ? CodePage::kWindows1256 : CodePage::kWindows1252);
    }
}

}  // namespace
}  // namespace horavex
