#include "config/help_topics.h"

#include "support/program_copy.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class HelpCheckTest : public testing::Test {
protected:
    HelpCheckTest() { CopyBuiltProgramFolder(platform.files); }

    void Write(const std::string& name, const std::string& text) {
        platform.files.WriteWhole("/program/" + name, BytesOf(text));
    }

    static std::vector<std::string> Problems() {
        CheckReport report;
        CheckHelp(report);
        return report.problems;
    }

    TestPlatform platform;
};

TEST_F(HelpCheckTest, BuiltHelpPasses) {
    CheckReport report;
    CheckHelp(report);
    EXPECT_THAT(report.problems, IsEmpty());
    EXPECT_GE(report.passed, 3 * 12);
}

TEST_F(HelpCheckTest, MissingHelpFileIsAProblem) {
    platform.files.Delete("/program/Horavex.HLP");
    EXPECT_THAT(Problems(), ElementsAre(HasSubstr("Horavex.HLP: ")));
}

TEST_F(HelpCheckTest, HelpFileWithoutPagesOrWithABadNumberIsAProblem) {
    Write("Horavex.HLP", "[windows]\n");
    EXPECT_THAT(Problems(), ElementsAre("Horavex.HLP: names no page"));
    Write("Horavex.HLP", "[topics]\nnine=index.html\n");
    EXPECT_THAT(Problems(), ElementsAre(HasSubstr("Horavex.HLP: ")));
}

TEST_F(HelpCheckTest, EnglishPageThatIsMissingIsAProblemAndAnotherIsNot) {
    platform.files.Delete("/program/help/Arabic/moon.html");
    EXPECT_THAT(Problems(), IsEmpty());
    platform.files.Delete("/program/help/English/moon.html");
    EXPECT_THAT(Problems(), ElementsAre("help/English/moon.html: is missing"));
}

TEST_F(HelpCheckTest, PageWithoutATitleIsAProblemInAnyLanguage) {
    Write("help/Arabic/moon.html", "<h1>x</h1>");
    Write("help/French/qibla.html", "<title></title>");
    EXPECT_THAT(Problems(), ElementsAre("help/French/qibla.html: has no title",
                                        "help/Arabic/moon.html: has no title"));
}

}  // namespace
}  // namespace horavex
