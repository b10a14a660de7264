#include "lib/text_source.h"

#include <fstream>

#include "base/fault.h"
#include "support/temporary_folder.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct TextSource : testing::Test {
    std::string Write(const std::string& content) {
        std::ofstream(folder / "source", std::ios::binary) << content;
        return folder / "source";
    }

    TemporaryFolder folder;
};

TEST_F(TextSource, ReadsEveryByteOfAFile) {
    const std::string content("a\r\n\0\xFF", 5);
    EXPECT_EQ(ReadText(Write(content)), content);
}

TEST_F(TextSource, MissingFileIsAFaultThatNamesIt) {
    try {
        ReadText(folder / "nowhere");
        FAIL() << "no fault";
    } catch (const FileFault& fault) {
        EXPECT_EQ(fault.Path(), folder / "nowhere");
    }
}

TEST_F(TextSource, LinesEndWithOrWithoutALineEnd) {
    EXPECT_THAT(ReadLines(Write("a\nb\n")), ElementsAre("a", "b"));
    EXPECT_THAT(ReadLines(Write("a\nb")), ElementsAre("a", "b"));
    EXPECT_THAT(ReadLines(Write("a\n\nb\n")), ElementsAre("a", "", "b"));
}

TEST_F(TextSource, FileWithoutAHeadingIsAFault) {
    EXPECT_THROW(ReadLines(Write("")), TypeMismatchFault);
    EXPECT_THROW(ReadCsv(Write("")), TypeMismatchFault);
}

TEST_F(TextSource, TabsSplitALineEmptyFieldsIncluded) {
    EXPECT_THAT(SplitTabs("a\t\tb\t"), ElementsAre("a", "", "b", ""));
}

TEST_F(TextSource, CommasSplitRows) {
    EXPECT_THAT(ReadCsv(Write("a,b\n,c\n")),
                ElementsAre(ElementsAre("a", "b"), ElementsAre("", "c")));
}

TEST_F(TextSource, RowsMayEndWithCarriageReturnsAndTheLastWithNothing) {
    EXPECT_THAT(ReadCsv(Write("a,b\r\nc,d")),
                ElementsAre(ElementsAre("a", "b"), ElementsAre("c", "d")));
}

TEST_F(TextSource, CommaAtTheEndOfTheFileOpensAnEmptyField) {
    EXPECT_THAT(ReadCsv(Write("a,")), ElementsAre(ElementsAre("a", "")));
}

TEST_F(TextSource, QuotesProtectCommasAndLineEnds) {
    EXPECT_THAT(ReadCsv(Write("\"a,b\",\"c\nd\"\n")), ElementsAre(ElementsAre("a,b", "c\nd")));
}

TEST_F(TextSource, DoubledQuotesAreOne) {
    EXPECT_THAT(ReadCsv(Write("\"say \"\"no\"\"\",\"\"\"\"\n")),
                ElementsAre(ElementsAre("say \"no\"", "\"")));
}

TEST_F(TextSource, EmptyQuotesAreAnEmptyField) {
    EXPECT_THAT(ReadCsv(Write("\"\",a\n")), ElementsAre(ElementsAre("", "a")));
}

TEST_F(TextSource, UnclosedQuoteIsAFault) {
    EXPECT_THROW(ReadCsv(Write("a,\"b\nc,d\n")), TypeMismatchFault);
    EXPECT_THROW(ReadCsv(Write("a,\"")), TypeMismatchFault);
    EXPECT_THROW(ReadCsv(Write("a,\"b\"\"")), TypeMismatchFault);
}

TEST_F(TextSource, TextBehindAClosedQuoteIsAFault) {
    EXPECT_THROW(ReadCsv(Write("a,\"b\"c\n")), TypeMismatchFault);
}

TEST_F(TextSource, WholeNumbersHaveASignAtMost) {
    EXPECT_EQ(WholeNumber("2143"), 2143);
    EXPECT_EQ(WholeNumber("-7"), -7);
}

TEST_F(TextSource, EverythingElseIsNoWholeNumber) {
    for (const char* text : {"", " 1", "1 ", "+1", "1.5", "x", "99999999999"}) {
        EXPECT_THROW(WholeNumber(text), TypeMismatchFault) << text;
    }
}

}  // namespace
}  // namespace horavex
