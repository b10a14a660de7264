#include "lang/language_pack.h"

#include <random>

#include "base/code_page.h"
#include "base/fault.h"
#include "base/program_state.h"
#include "base/utf8.h"
#include "lang/lang_test.h"
#include "support/data_folder_test.h"

namespace horavex {
namespace {

class LanguagePackTest : public DataFolderTest {
protected:
    LanguagePackTest() { currentLanguage = "English"; }

    /// A pack of one message, "1" of section "msg".
    void WritePack(const std::string& value) {
        data.Write("lang/" + currentLanguage + ".ini", "[msg]\r\n1=" + value + "\r\n");
    }

    void WriteEightBitPack(const std::string& value, CodePage page) {
        data.Write("lang/" + currentLanguage + ".ini",
                   "[msg]\r\n1=" + StringOf(EncodeCodePage(value, page).value()) + "\r\n");
    }

    static std::string Message() { return GetLangString("msg", "1", "default"); }
};

std::string Repeat(const std::string& text, int times) {
    std::string repeated;
    for (int i = 0; i < times; ++i) {
        repeated += text;
    }
    return repeated;
}

TEST_F(LanguagePackTest, PackLiesInTheLangFolder) {
    EXPECT_EQ(LanguagePackPath("Arabic"), "\\lang\\Arabic.ini");
}

TEST_F(LanguagePackTest, MessageComesFromTheCurrentPack) {
    WritePack("Hello");
    EXPECT_EQ(Message(), "Hello");
    currentLanguage = "French";
    WritePack("Bonjour");
    EXPECT_EQ(Message(), "Bonjour");
}

TEST_F(LanguagePackTest, BothSpellingsOfFolderAndNameMeanTheOne) {
    data.Write("Lang/English.INI", "[msg]\n1=Hello");
    EXPECT_EQ(Message(), "Hello");
    currentLanguage = "ENGLISH";
    EXPECT_EQ(Message(), "Hello");
}

TEST_F(LanguagePackTest, MissingPackSectionOrKeyGivesTheDefaultAsItStands) {
    const std::string asItStands = " \"" + Repeat("é", 1000) + "\" \r\n";
    EXPECT_EQ(GetLangString("msg", "18", asItStands), asItStands);
    WritePack("Hello");
    EXPECT_EQ(GetLangString("msg", "18", asItStands), asItStands);
    EXPECT_EQ(GetLangString("other", "1", asItStands), asItStands);
}

TEST_F(LanguagePackTest, EmptyValueIsEmptyAndNotTheDefault) {
    WritePack("");
    EXPECT_EQ(Message(), "");
}

TEST_F(LanguagePackTest, NothingIsCached) {
    WritePack("before");
    EXPECT_EQ(Message(), "before");
    WritePack("after");
    EXPECT_EQ(Message(), "after");
    data.Remove("lang/English.ini");
    EXPECT_EQ(Message(), "default");
}

TEST_F(LanguagePackTest, Utf8PackIsReadAsSuchInAnyLanguage) {
    for (const std::string language : {"English", "Arabic"}) {
        currentLanguage = language;
        WritePack("Café شروق");
        EXPECT_EQ(Message(), "Café شروق");
    }
}

TEST_F(LanguagePackTest, ByteOrderMarkDoesNotHideTheFirstSection) {
    data.Write("lang/English.ini", "\xEF\xBB\xBF[msg]\r\n1=Prière");
    EXPECT_EQ(Message(), "Prière");
}

TEST_F(LanguagePackTest, EightBitPackIsLatin) {
    WriteEightBitPack("Prière – €", CodePage::kWindows1252);
    EXPECT_EQ(Message(), "Prière – €");
}

TEST_F(LanguagePackTest, EightBitPackOfArabicIsArabicWhateverItsCase) {
    for (const std::string language : {"Arabic", "ARABIC", "arabic"}) {
        currentLanguage = language;
        WriteEightBitPack("صلاة الفجر", CodePage::kWindows1256);
        EXPECT_EQ(Message(), "صلاة الفجر");
    }
}

TEST_F(LanguagePackTest, OneBadByteAnywhereMakesThePackEightBit) {
    data.Write("lang/English.ini", "[msg]\n1=\xC3\xA9\n[x]\ny=\xFF");
    EXPECT_EQ(Message(), "Ã©");
}

TEST_F(LanguagePackTest, ValueIsCutAtTheBufferLessOne) {
    WritePack(Repeat("x", 1023));
    EXPECT_EQ(Message(), Repeat("x", 1023));
    WritePack(Repeat("x", 1024));
    EXPECT_EQ(Message(), Repeat("x", 1023));
    EXPECT_EQ(ReadPackString("msg", "1", "", 255), Repeat("x", 254));
}

TEST_F(LanguagePackTest, CutNeverSplitsACharacter) {
    WritePack(Repeat("x", 1021) + "é!");
    EXPECT_EQ(Message(), Repeat("x", 1021) + "é");
    WritePack(Repeat("x", 1022) + "é!");
    EXPECT_EQ(Message(), Repeat("x", 1022));
    WritePack(Repeat("x", 252) + "€");
    EXPECT_EQ(ReadPackString("msg", "1", "", 255), Repeat("x", 252));
}

TEST_F(LanguagePackTest, CutCountsTheBytesOfAnEightBitPack) {
    WriteEightBitPack(Repeat("é", 2000), CodePage::kWindows1252);
    EXPECT_EQ(Message(), Repeat("é", 1023));
    EXPECT_EQ(ReadPackString("msg", "1", "", 255), Repeat("é", 254));
    currentLanguage = "Arabic";
    WriteEightBitPack(Repeat("ش", 2000), CodePage::kWindows1256);
    EXPECT_EQ(Message(), Repeat("ش", 1023));
    EXPECT_EQ(ReadPackString("msg", "1", "", 255), Repeat("ش", 254));
}

TEST_F(LanguagePackTest, QuotesAreTakenOffBeforeTheCut) {
    WritePack("\"" + Repeat("x", 1023) + "\"");
    EXPECT_EQ(Message(), Repeat("x", 1023));
}

TEST_F(LanguagePackTest, LanguageThatLeadsOutOfTheFolderIsAMissingPack) {
    data.Write("secret.ini", "[msg]\n1=secret");
    currentLanguage = "../secret";
    EXPECT_EQ(Message(), "default");
    currentLanguage = "";
    EXPECT_EQ(Message(), "default");
}

TEST_F(LanguagePackTest, EveryFailingCallGivesTheDefault) {
    WritePack("Hello");
    platform.failingFiles.FailCall(0);
    Message();
    const int calls = platform.failingFiles.Calls();
    ASSERT_EQ(calls, 2);  // the open and the read
    for (int n = 1; n <= calls; ++n) {
        const std::string changed = "Hello " + std::to_string(n);
        WritePack(changed);
        platform.failingFiles.FailCall(n);
        EXPECT_EQ(Message(), "default");
        EXPECT_EQ(Message(), changed);
    }
}

TEST_F(LanguagePackTest, PackIsReadAgainOnlyWhenItIsAnotherOrHasChanged) {
    WritePack("Hello");
    Message();
    platform.failingFiles.FailCall(0);
    EXPECT_EQ(Message(), "Hello");
    EXPECT_EQ(platform.failingFiles.Calls(), 0);
    WritePack("Good day");
    EXPECT_EQ(Message(), "Good day");
    currentLanguage = "French";
    WritePack("Bonjour");
    EXPECT_EQ(Message(), "Bonjour");
    data.Remove("lang/French.ini");
    EXPECT_EQ(Message(), "default");
    currentLanguage = "English";
    EXPECT_EQ(Message(), "Good day");
}

TEST_F(LanguagePackTest, EveryCutOfAPackGivesABeginningOrTheDefault) {
    WritePack("Grüße");
    const std::string whole = Message();
    for (std::size_t length = data.Read("lang/English.ini").size(); length-- > 0;) {
        data.ShrinkTo("lang/English.ini", length);
        const std::string cut = Message();
        const bool splits = length == 12 || length == 14;  // inside "ü" and "ß"
        EXPECT_TRUE(splits || cut == "default" || whole.starts_with(cut)) << length << " " << cut;
        EXPECT_EQ(cut == "default", length < 9) << length;  // up to the sign of equality
    }
}

TEST_F(LanguagePackTest, RandomBytesGiveTextOrTheDefault) {
    std::mt19937 random(7);  // a fixed seed
    for (int run = 0; run < 3000; ++run) {
        currentLanguage = run % 2 == 0 ? "English" : "Arabic";
        Bytes noise(random() % 60);
        for (std::uint8_t& byte : noise) {
            byte = static_cast<std::uint8_t>(random());
        }
        const std::string tail = StringOf(noise);
        data.Write("lang/" + currentLanguage + ".ini",
                   run % 3 == 0 ? tail : "[msg]\n1=" + tail + "\n" + tail);
        EXPECT_TRUE(IsUtf8(Message())) << run;
    }
}

TEST_F(LanguagePackTest, HugePackIsReadToItsEnd) {
    data.Write("lang/English.ini", Repeat("[filler]\r\nkey=value\r\n", 45000) + "[msg]\r\n1=found");
    EXPECT_EQ(Message(), "found");
}

TEST_F(LanguagePackTest, HugeLineIsCut) {
    WritePack(Repeat("0123456789", 100000));
    EXPECT_EQ(Message().size(), 1023U);
}

TEST_F(LanguagePackTest, FileLargerThanAnyPackIsAsGoodAsNone) {
    const std::string pack = "[msg]\r\n1=found\r\n";
    data.Write("lang/English.ini", pack + std::string(kLargestText - pack.size(), ';'));
    EXPECT_EQ(Message(), "found");
    data.Write("lang/English.ini", pack + std::string(kLargestText - pack.size() + 1, ';'));
    EXPECT_NE(Message(), "found");
}

TEST_F(LanguagePackTest, ArabicIsToldByItsNameInAnyCase) {
    for (const std::string language : {"Arabic", "ARABIC", "arabic"}) {
        currentLanguage = language;
        EXPECT_TRUE(IsArabicPack()) << language;
    }
    for (const std::string language : {"", "English", "Arabic2", "Arab"}) {
        currentLanguage = language;
        EXPECT_FALSE(IsArabicPack()) << language;
    }
}

TEST_F(LanguagePackTest, FreshProcessHasNoLanguage) {
    ResetProgramState();
    EXPECT_EQ(currentLanguage, "");
}

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class PackFilesTest : public LangTest {};

TEST_F(PackFilesTest, ListsTheFilesOfASuffixInAnyCaseInTheOrderOfTheFolder) {
    for (const char* name : {"b.ini", "a.INI", "c.Ini", "c.bmp", "ini", "d.ini.bak", "e.inix"}) {
        WritePack(name, "x");
    }
    EXPECT_THAT(ListLanguageFiles(".ini"), ElementsAre("a.INI", "b.ini", "c.Ini"));
    EXPECT_THAT(ListLanguageFiles(".bmp"), ElementsAre("c.bmp"));
}

TEST_F(PackFilesTest, BothSpellingsOfTheFolderAreTheOne) {
    data.Write("LANG/French.ini", "x");
    EXPECT_THAT(ListLanguageFiles(".ini"), ElementsAre("French.ini"));
    EXPECT_EQ(StringOf(platform.folder.ReadWhole(LanguageFilePath("French.ini"))), "x");
}

TEST_F(PackFilesTest, MissingFolderIsEmpty) {
    EXPECT_THAT(ListLanguageFiles(".ini"), IsEmpty());
}

TEST(LanguageOfFile, IsTheNameUpToTheFirstSuffix) {
    EXPECT_EQ(LanguageOfFile("French.ini"), "French");
    EXPECT_EQ(LanguageOfFile("Old.ini.ini"), "Old");
    EXPECT_EQ(LanguageOfFile("Odd.ini.INI"), "Odd");
    EXPECT_EQ(LanguageOfFile("Two.words here.ini"), "Two.words here");
    EXPECT_EQ(LanguageOfFile(".ini"), "");
}

TEST(LanguageOfFile, SuffixInCapitalsIsNotFound) {
    for (const char* name : {"FRENCH.INI", "French.Ini", "French"}) {
        try {
            LanguageOfFile(name);
            ADD_FAILURE() << name;
        } catch (const BoundsFault& fault) {
            EXPECT_THAT(fault.what(), HasSubstr(name));
        }
    }
}

}  // namespace
}  // namespace horavex
