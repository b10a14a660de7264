#include "lang/pack_check.h"

#include "lang/lang_test.h"
#include "lang/pack_keys.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class PackCheckTest : public LangTest {
protected:
    /// A pack with every key that the program asks for.
    static std::string SoundPack() {
        std::string pack;
        for (const PackSection& section : PackSections()) {
            pack += "[" + section.name + "]\r\n";
            for (const std::string& key : section.keys) {
                pack += key + "=text of " + key + "\r\n";
            }
        }
        return pack;
    }

    /// The sound pack with one piece of its text put in the place of another.
    static std::string PackWith(const std::string& present, const std::string& replacement) {
        std::string pack = SoundPack();
        return pack.replace(pack.find(present), present.size(), replacement);
    }

    static std::size_t KeyCount() {
        std::size_t count = 0;
        for (const PackSection& section : PackSections()) {
            count += section.keys.size();
        }
        return count;
    }

    static CheckReport Check() {
        CheckReport report;
        CheckLanguagePacks(report);
        return report;
    }

    static std::vector<std::string> Problems() { return Check().problems; }
};

TEST_F(PackCheckTest, SoundPacksHaveNoProblem) {
    data.Write("lang/English.ini", SoundPack());
    data.Write("lang/French.ini", SoundPack());
    EXPECT_THAT(Problems(), IsEmpty());
    EXPECT_GT(Check().passed, 2 * static_cast<int>(KeyCount()));  // at least one for every key
}

TEST_F(PackCheckTest, PackWithAByteOrderMarkIsSound) {
    data.Write("lang/English.ini", "\xEF\xBB\xBF" + SoundPack());
    EXPECT_THAT(Problems(), IsEmpty());
}

TEST_F(PackCheckTest, NoPackIsNoProblem) {
    EXPECT_THAT(Problems(), IsEmpty());
    EXPECT_EQ(Check().passed, 0);
}

TEST_F(PackCheckTest, OtherFilesOfTheFolderAreNoPacks) {
    data.Write("lang/README.md", "no pack");
    data.Write("lang/English.bmp", "a picture");
    EXPECT_THAT(Problems(), IsEmpty());
}

TEST_F(PackCheckTest, MissingKeyIsNamedWithFileAndSection) {
    data.Write("lang/English.ini", PackWith("24=text of 24\r\n", ""));
    EXPECT_THAT(Problems(), ElementsAre("lang/English.ini: [msg] 24 is missing"));
}

TEST_F(PackCheckTest, EmptyKeyIsNamedWithFileAndSection) {
    data.Write("lang/French.ini", PackWith("Maghrib=text of Maghrib", "Maghrib="));
    EXPECT_THAT(Problems(), ElementsAre("lang/French.ini: [other] Maghrib is empty"));
}

TEST_F(PackCheckTest, MissingSectionMissesEachOfItsKeys) {
    data.Write("lang/English.ini", PackWith("[Azan]", "[Athan]"));
    const auto problems = Problems();
    EXPECT_THAT(problems, SizeIs(10));  // five keys missed, and five that nothing reads
    EXPECT_EQ(problems.front(), "lang/English.ini: [Azan] 0 is missing");
    EXPECT_EQ(problems.back(), "lang/English.ini: [Athan] 5 is read by nothing");
}

TEST_F(PackCheckTest, KeyThatNothingReadsIsNamed) {
    data.Write("lang/English.ini",
               PackWith("[Azan]\r\n", "8=spare\r\nSunrise=x\r\n[Azan]\r\n1=x\r\n"));
    EXPECT_THAT(Problems(), ElementsAre("lang/English.ini: [other] Sunrise is read by nothing",
                                        "lang/English.ini: [Azan] 1 is read by nothing"));
}

TEST_F(PackCheckTest, CaseOfSectionsAndKeysDoesNotMatter) {
    data.Write("lang/English.ini", PackWith("Fajr=text", "FAJR=text"));
    EXPECT_THAT(Problems(), IsEmpty());
}

TEST_F(PackCheckTest, MissingEmptyAndUnknownKeysOfAFormAreNamed) {
    std::string pack = PackWith("mnuExport=text of mnuExport\r\n", "");
    pack.replace(pack.find("optAsrRatio_1=text"), 18, "optAsrRatio_1=\r\nx=");
    data.Write("lang/French.ini", pack);
    EXPECT_THAT(Problems(), ElementsAre("lang/French.ini: [frmMain] mnuExport is missing",
                                        "lang/French.ini: [HoravexMainForm] optAsrRatio_1 is empty",
                                        "lang/French.ini: [HoravexMainForm] x is read by nothing"));
}

TEST_F(PackCheckTest, RuntimeControlsAreNotExpectedAndTheirKeysAreReadByNothing) {
    data.Write("lang/French.ini",
               PackWith("[frmMain]\r\n", "[frmMain]\r\nmnuL_0=x\r\nlblTime_0=x\r\nlblCity=x\r\n"));
    EXPECT_THAT(Problems(), ElementsAre("lang/French.ini: [frmMain] mnuL_0 is read by nothing",
                                        "lang/French.ini: [frmMain] lblTime_0 is read by nothing",
                                        "lang/French.ini: [frmMain] lblCity is read by nothing"));
}

TEST_F(PackCheckTest, TooltipKeyOfAControlWithoutOneIsReadByNothing) {
    data.Write("lang/French.ini", PackWith("[fMessage]\r\n", "[fMessage]\r\nCmdCancelTTIP=x\r\n"));
    EXPECT_THAT(Problems(),
                ElementsAre("lang/French.ini: [fMessage] CmdCancelTTIP is read by nothing"));
}

TEST_F(PackCheckTest, SectionOfAnUnknownFormIsReadByNothing) {
    data.Write("lang/French.ini", SoundPack() + "[frmGone]\r\nfrmGone=x\r\n");
    EXPECT_THAT(Problems(), ElementsAre("lang/French.ini: [frmGone] frmGone is read by nothing"));
}

TEST_F(PackCheckTest, SuffixThatTheMenuCannotReadIsAProblem) {
    data.Write("lang/FRENCH.INI", SoundPack());
    EXPECT_THAT(Problems(), ElementsAre(HasSubstr("lang/FRENCH.INI: the name of a language file")));
}

TEST_F(PackCheckTest, PackWithoutANameIsAProblem) {
    data.Write("lang/.ini", SoundPack());
    EXPECT_THAT(Problems(), ElementsAre("lang/.ini: has no name"));
}

TEST_F(PackCheckTest, EmptyPackMissesEverything) {
    data.Write("lang/English.ini", "");
    EXPECT_THAT(Problems(), SizeIs(KeyCount()));
}

TEST_F(PackCheckTest, PackThatCannotBeReadIsAProblemOfItsOwn) {
    data.Write("lang/English.ini", SoundPack());
    data.Write("lang/French.ini", SoundPack());
    platform.failingFiles.FailCall(1);
    EXPECT_THAT(Problems(), ElementsAre(HasSubstr("lang/English.ini: ")));
}

TEST_F(PackCheckTest, FolderInThePlaceOfAPackIsAProblem) {
    data.Write("lang/English.ini/file", "x");
    EXPECT_THAT(Problems(), ElementsAre(HasSubstr("lang/English.ini: ")));
}

}  // namespace
}  // namespace horavex
