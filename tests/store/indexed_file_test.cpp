#include "store/indexed_file.h"

#include <gtest/gtest.h>

#include "base/fault.h"
#include "support/data_folder_test.h"

namespace horavex {
namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

class RecordFileTest : public DataFolderTest {
protected:
    RecordFile OpenWith(const Bytes& bytes, std::int64_t recordLength) {
        data.Write("Dat/R.DAT", bytes);
        return RecordFile("Dat\\R.DAT", recordLength);
    }
};

TEST_F(RecordFileTest, RecordsAreNumberedFromOne) {
    const RecordFile file = OpenWith({1, 2, 3, 4, 5, 6}, 2);
    EXPECT_EQ(file.Read(1), (Bytes{1, 2}));
    EXPECT_EQ(file.Read(3), (Bytes{5, 6}));
}

TEST_F(RecordFileTest, BehindTheEndThereAreZeros) {
    const RecordFile file = OpenWith({1, 2, 3}, 2);
    EXPECT_EQ(file.Read(2), (Bytes{3, 0}));
    EXPECT_EQ(file.Read(3), (Bytes{0, 0}));
    EXPECT_EQ(file.Read(64768), (Bytes{0, 0}));
}

TEST_F(RecordFileTest, NumberBelowOneIsAFaultThatNamesFileAndNumber) {
    const RecordFile file = OpenWith({1, 2}, 2);
    EXPECT_THAT([&] { file.Read(0); },
                ThrowsMessage<BoundsFault>("Dat\\R.DAT: there is no record 0"));
    EXPECT_THAT([&] { file.Read(-767); }, ThrowsMessage<BoundsFault>(HasSubstr("-767")));
}

TEST_F(RecordFileTest, CountOfACutFileIsRoundedHalfToEven) {
    const std::vector<std::int64_t> counts = {0, 0, 0, 0, 1, 1, 1, 1, 1,
                                              2,                           // 3 of 6 is a tie to 0,
                                              2, 2, 2, 2, 2, 2, 3, 3, 3};  // 9 to 2, 15 to 2
    for (std::size_t size = 0; size < counts.size(); ++size) {
        EXPECT_EQ(OpenWith(Bytes(size), 6).Count(), counts[size]) << size << " bytes";
    }
}

TEST_F(RecordFileTest, OnlyTheRecordThatEndsTheFileExactlyIsTheLast) {
    EXPECT_TRUE(OpenWith(Bytes(12), 6).IsLast(2));
    EXPECT_FALSE(OpenWith(Bytes(12), 6).IsLast(1));
    EXPECT_FALSE(OpenWith(Bytes(12), 6).IsLast(3));
    EXPECT_FALSE(OpenWith(Bytes(11), 6).IsLast(2));
    EXPECT_FALSE(OpenWith(Bytes(13), 6).IsLast(2));
}

TEST_F(RecordFileTest, MissingFileIsAFileFault) {
    EXPECT_THROW(RecordFile("Dat\\R.DAT", 2), FileFault);
    EXPECT_THROW(PackedTexts("Dat\\X.DAT"), FileFault);
}

class PackedTextsTest : public DataFolderTest {
protected:
    PackedTextsTest() { data.Write("Dat/X.DAT", DecodeText(BytesOf("Cairo"))); }

    std::string Read(std::int64_t start, std::int64_t end) {
        return StringOf(PackedTexts("Dat\\X.DAT").Read(start, end));
    }
};

TEST_F(PackedTextsTest, PositionsCountFromOneAndTheEndIsOutside) {
    EXPECT_EQ(Read(1, 6), "Cairo");
    EXPECT_EQ(Read(2, 4), "ai");
    EXPECT_EQ(PackedTexts("Dat\\X.DAT").End(), 6);
}

TEST_F(PackedTextsTest, BehindTheEndThereIsNothing) {
    EXPECT_EQ(Read(4, 100), "ro");
    EXPECT_EQ(Read(6, 7), "");
    EXPECT_EQ(Read(2000000000, 2147483647), "");
}

TEST_F(PackedTextsTest, NoLengthIsNoTextWhereverItStands) {
    EXPECT_EQ(Read(0, 0), "");
    EXPECT_EQ(Read(-5, -5), "");
    EXPECT_EQ(Read(3, 3), "");
}

TEST_F(PackedTextsTest, NegativeLengthIsAFaultThatNamesTheFile) {
    EXPECT_THAT([&] { Read(3, 2); },
                ThrowsMessage<BoundsFault>("Dat\\X.DAT: no text from position 3 to 2"));
}

TEST_F(PackedTextsTest, PositionBelowOneIsAFault) {
    EXPECT_THROW(Read(0, 3), BoundsFault);
    EXPECT_THROW(Read(-32768, 32767), BoundsFault);
}

/// An index of any record length over the texts "one", "", "three" and "four".
class ReadIndexedTextTest : public DataFolderTest,
                            public testing::WithParamInterface<std::int64_t> {
protected:
    ReadIndexedTextTest() {
        std::int16_t position = 1;
        for (const std::string& text : texts) {
            Bytes record(Length());  // the start in front, the rest is not looked at
            PutInt16(record, 0, position);
            index.insert(index.end(), record.begin(), record.end());
            packed += text;
            position = static_cast<std::int16_t>(packed.size() + 1);
        }
        data.Write("Dat/R.DAT", index);
        data.Write("Dat/X.DAT", DecodeText(BytesOf(packed)));
    }

    static std::size_t Length() { return static_cast<std::size_t>(GetParam()); }

    std::string Read(std::int64_t number) {
        return StringOf(ReadIndexedText(RecordFile("Dat\\R.DAT", GetParam()),
                                        PackedTexts("Dat\\X.DAT"), number, ShortStart));
    }

    const std::vector<std::string> texts = {"one", "", "three", "four"};
    Bytes index;
    std::string packed;
};

TEST_P(ReadIndexedTextTest, ATextEndsWhereTheNextBegins) {
    EXPECT_EQ(Read(1), "one");
    EXPECT_EQ(Read(2), "");
    EXPECT_EQ(Read(3), "three");
}

TEST_P(ReadIndexedTextTest, LastTextTakesItsLengthFromTheFile) {
    EXPECT_EQ(Read(4), "four");
    data.Write("Dat/X.DAT", DecodeText(BytesOf(packed + "teen")));
    EXPECT_EQ(Read(4), "fourteen");
    data.ShrinkBy("Dat/X.DAT", 6);
    EXPECT_EQ(Read(4), "fo");
}

TEST_P(ReadIndexedTextTest, BehindTheIndexThereIsNoText) {
    EXPECT_EQ(Read(5), "");
    EXPECT_EQ(Read(32767), "");
}

TEST_P(ReadIndexedTextTest, EveryCutOfTheTextsShortensThemOrIsAFaultOfTheLast) {
    for (std::size_t length = packed.size(); length-- > 0;) {
        SCOPED_TRACE(length);
        data.ShrinkTo("Dat/X.DAT", length);
        EXPECT_EQ(Read(1), packed.substr(0, length).substr(0, 3));
        EXPECT_EQ(Read(2), "");
        EXPECT_EQ(Read(3), length > 3 ? packed.substr(0, length).substr(3, 5) : "");
        if (length + 1 < 9) {  // "four" starts at position 9
            EXPECT_THROW(Read(4), BoundsFault);
        } else {
            EXPECT_EQ(Read(4), packed.substr(8, length - 8));
        }
    }
}

TEST_P(ReadIndexedTextTest, EveryCutOfTheIndexLeavesTheTextsBeforeIt) {
    for (std::size_t length = index.size(); length-- > 0;) {
        SCOPED_TRACE(length);
        data.ShrinkTo("Dat/R.DAT", length);
        const std::size_t whole = length / Length();
        const bool hasRest = length % Length() != 0;
        for (std::size_t number = 1; number < whole; ++number) {
            EXPECT_EQ(Read(static_cast<std::int64_t>(number)), texts[number - 1]);
        }
        const auto last = static_cast<std::int64_t>(whole);
        if (whole > 0 && hasRest) {  // the next start is still there in its low byte
            EXPECT_EQ(Read(last), texts[whole - 1]);
        } else if (whole > 0) {  // now the last: its text runs to the end of the file
            EXPECT_EQ(Read(last), packed.substr(data.Read("Dat/R.DAT")[length - Length()] - 1U));
        }
        if (hasRest) {  // its own start is left, the next one reads as 0
            EXPECT_THROW(Read(last + 1), BoundsFault);
        } else {
            EXPECT_EQ(Read(last + 1), "");
        }
    }
}

INSTANTIATE_TEST_SUITE_P(RecordLengths, ReadIndexedTextTest, testing::Values(2, 6, 10));

TEST_F(DataFolderTest, LongStartsReachBeyondSixteenBits) {
    Bytes record(4);
    PutInt32(record, 0, 70001);
    EXPECT_EQ(LongStart(record), 70001);
    data.Write("Dat/R.DAT", record);
    data.Write("Dat/X.DAT", Bytes(70000));
    EXPECT_EQ(ReadIndexedText(RecordFile("Dat\\R.DAT", 4), PackedTexts("Dat\\X.DAT"), 1, LongStart),
              Bytes());
    data.Write("Dat/X.DAT", DecodeText(BytesOf(std::string(70000, ' ') + "Zagreb")));
    EXPECT_EQ(StringOf(ReadIndexedText(RecordFile("Dat\\R.DAT", 4), PackedTexts("Dat\\X.DAT"), 1,
                                       LongStart)),
              "Zagreb");
}

TEST_F(DataFolderTest, BothWidthsOfAStartAreSignedAndLittleEndian) {
    EXPECT_EQ(ShortStart(Bytes{0x34, 0x12, 0x99, 0x99}), 0x1234);
    EXPECT_EQ(ShortStart(Bytes{0xFE, 0xFF}), -2);
    EXPECT_EQ(LongStart(Bytes{0x78, 0x56, 0x34, 0x12, 0x99}), 0x12345678);
    EXPECT_EQ(LongStart(Bytes{0xFE, 0xFF, 0xFF, 0xFF}), -2);
}

std::uint8_t DecodeOne(int code) {
    const Bytes stored = {static_cast<std::uint8_t>(code)};
    return DecodeText(stored).at(0);
}

TEST(DecodeText, LowCodesMoveUpBy127) {
    for (int code = 1; code <= 127; ++code) {
        EXPECT_EQ(DecodeOne(code), code + 127);
    }
}

TEST(DecodeText, HighCodesMoveDownBy127) {
    for (int code = 128; code <= 254; ++code) {
        EXPECT_EQ(DecodeOne(code), code - 127);
    }
}

TEST(DecodeText, ZeroAnd255Stay) {
    EXPECT_EQ(DecodeOne(0), 0);
    EXPECT_EQ(DecodeOne(255), 255);
}

TEST(DecodeText, TwiceGivesBackEveryCode) {
    Bytes all;
    for (int code = 0; code <= 255; ++code) {
        all.push_back(static_cast<std::uint8_t>(code));
    }
    EXPECT_EQ(DecodeText(DecodeText(all)), all);
}

TEST(DecodeText, KeepsOrderAndLength) {
    const Bytes stored = {0xC2, 0xE0, 0xE8, 0xF1, 0xEE};
    EXPECT_EQ(StringOf(DecodeText(stored)), "Cairo");
    EXPECT_TRUE(DecodeText(Bytes()).empty());
}

}  // namespace
}  // namespace horavex
