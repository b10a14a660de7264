#include "linux/line_reader.h"

#include <gmock/gmock.h>

#include <fstream>

#include "support/temporary_folder.h"

namespace horavex {
namespace {

using testing::ElementsAre;

std::vector<std::string> LinesOf(const std::string& content, std::size_t longest) {
    const TemporaryFolder folder;
    std::ofstream(folder / "lines", std::ios::binary) << content;
    LineReader reader(folder / "lines", longest);
    std::vector<std::string> lines;
    while (const auto line = reader.Next()) {
        lines.push_back(*line);
    }
    return lines;
}

TEST(LineReader, TakesEitherEndOfALine) {
    EXPECT_THAT(LinesOf("a\r\n\nb\nc", 10), ElementsAre("a", "", "b", "c"));
    EXPECT_THAT(LinesOf("", 10), ElementsAre());
    EXPECT_THAT(LinesOf("a\n", 10), ElementsAre("a"));
}

TEST(LineReader, CutsALongLineAndGoesOnBehindIt) {
    EXPECT_THAT(LinesOf("0123456789\nshort\n", 4), ElementsAre("0123", "shor"));
}

TEST(LineReader, LineMayGoOverBlocks) {
    const std::string line(100'000, 'x');
    EXPECT_THAT(LinesOf(line + "\n" + line + "\nend", 200'000), ElementsAre(line, line, "end"));
    EXPECT_THAT(LinesOf(line + "\nend", 5), ElementsAre("xxxxx", "end"));
}

TEST(LineReader, MissingFileAndFolderAreFaults) {
    const TemporaryFolder folder;
    EXPECT_THROW(LineReader(folder / "none", 5), FileFault);
    LineReader reader(folder.Path(), 5);
    EXPECT_THROW(reader.Next(), FileFault);
}

}  // namespace
}  // namespace horavex
