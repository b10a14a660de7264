#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "base/text.h"
#include "ctl_json.h"
#include "support/build_folder.h"
#include "support/pseudo_terminal.h"

namespace horavex {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

/// What the command prints about itself, as a file that a tool reads.
struct OwnTexts : testing::Test {
    std::string FileOf(const std::string& line, const std::string& name) const {
        const ProgramRun run = ctl.Run(line);
        EXPECT_EQ(run.status, 0) << run.err;
        std::ofstream(ctl / name) << run.out;
        return ctl / name;
    }

    std::string Use(const std::vector<std::string>& words) const {
        Environment variables = ctl.variables;
        variables["PATH"] = "/usr/bin:/bin";
        const ProgramRun run = RunCommand(words, variables);
        EXPECT_EQ(run.status, 0) << run.err;
        EXPECT_EQ(run.err, "");
        return run.out;
    }

    Ctl ctl;
};

struct BashCompletionTest : OwnTexts {
    /// What is offered for the last word of a line.
    std::vector<std::string> Offers(const std::string& line) const {
        const std::size_t words = Split(line, ' ').size();
        const std::string out =
            Use({"bash", "-c",
                 "source \"$0\"; COMP_WORDS=(" + line +
                     "); [ \"${1: -1}\" = ' ' ] && COMP_WORDS+=('')\n"
                     "COMP_CWORD=" +
                     std::to_string(words - 1) + "; _horavexctl; printf '%s ' \"${COMPREPLY[@]}\"",
                 script, line});
        return Split(std::string(Trim(out)), ' ');
    }

    std::string script = FileOf("completion bash", "completion.bash");
};

TEST_F(BashCompletionTest, OffersCommandsFirst) {
    EXPECT_THAT(Offers("horavexctl qu"), testing::ElementsAre("quiet"));
    EXPECT_THAT(Offers("horavexctl "), AllOf(Contains("today"), Contains("--version")));
}

TEST_F(BashCompletionTest, OffersTheOptionsOfTheCommand) {
    EXPECT_THAT(Offers("horavexctl status --f"), testing::ElementsAre("--follow", "--format"));
    EXPECT_THAT(Offers("horavexctl status --json --fol"), testing::ElementsAre("--follow"));
}

TEST_F(BashCompletionTest, OffersTheChoicesOfAValueAndOfAWord) {
    EXPECT_THAT(Offers("horavexctl export --format h"), testing::ElementsAre("html"));
    EXPECT_THAT(Offers("horavexctl athan s"), testing::ElementsAre("stop"));
}

TEST_F(BashCompletionTest, FreeValueIsLeftToTheUser) {
    EXPECT_THAT(Offers("horavexctl today --city "), testing::ElementsAre(""));
}

TEST_F(BashCompletionTest, FileIsOneOfTheFolder) {
    EXPECT_THAT(Offers("horavexctl export --output " + script.substr(0, script.size() - 3)),
                testing::ElementsAre(script));
}

TEST_F(BashCompletionTest, NameOfAFileWithABlankStaysOne) {
    std::ofstream(ctl / "year of ours.csv") << "";
    const std::string out =
        Use({"bash", "-c",
             "source \"$0\"; COMP_WORDS=(horavexctl export --output \"$1\"); COMP_CWORD=3; "
             "_horavexctl; printf '%s\\n' \"${COMPREPLY[@]}\"",
             script, ctl / "year"});
    EXPECT_EQ(out, (ctl / "year of ours.csv") + "\n");
}

TEST_F(BashCompletionTest, ValueMayStandBehindAnEqualsSign) {
    EXPECT_THAT(Offers("horavexctl export --format = h"), testing::ElementsAre("html"));
    EXPECT_THAT(Offers("horavexctl export --paper ="), Contains("letter"));
}

TEST_F(BashCompletionTest, WordIsOfferedOnce) {
    EXPECT_THAT(Offers("horavexctl athan "), AllOf(Contains("now"), Contains("stop")));
    EXPECT_THAT(Offers("horavexctl athan now s"), testing::ElementsAre(""));
    EXPECT_THAT(Offers("horavexctl athan now --j"), testing::ElementsAre("--json"));
}

struct FishCompletionTest : OwnTexts {
    std::string Offers(const std::string& line) const {
        return Use(
            {"fish", "--no-config", "-c", "source $argv[1]; complete -C $argv[2]", script, line});
    }

    std::string script = FileOf("completion fish", "completion.fish");
};

TEST_F(FishCompletionTest, OffersCommandsOptionsAndChoicesWithWhatTheyDo) {
    EXPECT_EQ(Offers("horavexctl qu"), "quiet\tNo athan for so many minutes\n");
    EXPECT_EQ(Offers("horavexctl status --fol"), "--follow\tPrint a line at each change\n");
    EXPECT_THAT(Offers("horavexctl export --format ht"), StartsWith("html\t"));
    EXPECT_THAT(Offers("horavexctl athan st"), StartsWith("stop\t"));
    EXPECT_THAT(Offers("horavexctl show "), Not(HasSubstr("quiet")));
}

TEST_F(FishCompletionTest, OffersAWordOnceAndFilesWhereTheyAreWanted) {
    EXPECT_THAT(Offers("horavexctl athan "), AllOf(HasSubstr("now\t"), HasSubstr("stop\t")));
    EXPECT_THAT(Offers("horavexctl athan now "), Not(HasSubstr("stop")));
    EXPECT_THAT(Offers("horavexctl export --output " + script.substr(0, script.size() - 3)),
                StartsWith(script));
    EXPECT_THAT(Offers("horavexctl today --city " + script.substr(0, script.size() - 3)),
                IsEmpty());
    EXPECT_THAT(Offers("horavexctl export --format=ht"), HasSubstr("=html"));
    EXPECT_THAT(Offers("horavexctl --h"), StartsWith("--help\t"));
}

struct ZshCompletionTest : OwnTexts {
    ZshCompletionTest() {
        shell.Type(
            "PS1=; unsetopt ZLE_RPROMPT_INDENT; autoload -U compinit; compinit -u -D; "
            "source " +
            script + "; print REA''DY\n");
        shell.ReadTo("READY");
    }

    static Environment Variables(Environment variables) {
        variables["PATH"] = "/usr/bin:/bin";
        variables["TERM"] = "dumb";
        return variables;
    }

    /// Waits until the shell has completed what was typed; throws where it does not.
    void ExpectCompleted(const std::string& typed, const std::string& whole) {
        shell.Type(typed + "\t");
        shell.ReadTo(whole);
        shell.Type("\x15");  // takes the line away
    }

    std::string script = FileOf("completion zsh", "completion.zsh");
    PseudoTerminal shell{"/usr/bin/zsh", {"-f", "-i"}, Variables(ctl.variables)};
};

TEST_F(ZshCompletionTest, CompletesCommandsOptionsAndChoices) {
    ExpectCompleted("horavexctl qui", "quiet");
    ExpectCompleted("horavexctl status --fol", "--follow");
    ExpectCompleted("horavexctl export --format ht", "html");
    ExpectCompleted("horavexctl athan st", "stop");
    ExpectCompleted("horavexctl export --format=ht", "--format=html");
    ExpectCompleted("horavexctl export --output " + script.substr(0, script.size() - 3), "zsh");
}

TEST(ZshCompletionByName, IsLoadedAtTheFirstUse) {
    const Ctl ctl;
    std::filesystem::create_directory(ctl / "functions");
    std::ofstream(ctl / "functions/_horavexctl") << ctl.Run("completion zsh").out;
    Environment variables = ctl.variables;
    variables["PATH"] = "/usr/bin:/bin";
    variables["TERM"] = "dumb";
    PseudoTerminal shell{"/usr/bin/zsh", {"-f", "-i"}, variables};
    shell.Type("PS1=; fpath=(" + (ctl / "functions") +
               " $fpath); autoload -U compinit; compinit -u -D; print REA''DY\n");
    shell.ReadTo("READY");
    shell.Type("horavexctl qui\t");
    shell.ReadTo("quiet");
}

struct ManualPageTest : OwnTexts {
    std::string page = FileOf("manual", "horavexctl.1");
};

TEST_F(ManualPageTest, IsSetWithoutAWarning) {
    EXPECT_THAT(Use({"groff", "-man", "-Tutf8", "-ww", page}), Not(IsEmpty()));
}

TEST_F(ManualPageTest, HasEveryCommandWithItsOptions) {
    const std::string text = Use({"sh", "-c", "groff -man -Tascii -P-cbou \"$0\"", page});
    const std::string help = ctl.Run("--help").out;
    const std::size_t list = help.find("Subcommands:\n");
    for (const std::string& line : Split(help.substr(list + 13), '\n')) {
        const std::string name(Trim(line.substr(0, line.find(' ', 2))));
        EXPECT_THAT(text, HasSubstr("horavexctl " + name)) << name;
    }
    EXPECT_THAT(text, HasSubstr("--high-latitude TEXT"));
    EXPECT_THAT(text, HasSubstr("Degrees, north positive (-90 to 90)"));
}

TEST(OwnTextsJson, HoldsTheText) {
    const Ctl ctl;
    EXPECT_THAT(JsonOf(ctl, "completion bash")["text"].get<std::string>(),
                HasSubstr("_horavexctl"));
    EXPECT_THAT(JsonOf(ctl, "manual")["text"].get<std::string>(), StartsWith(".TH"));
}

TEST(OwnTextsUsage, UnknownShellIsRefused) {
    EXPECT_EQ(Ctl().Run("completion csh").status, 2);
    EXPECT_EQ(Ctl().Run("completion").status, 2);
}

}  // namespace
}  // namespace horavex
