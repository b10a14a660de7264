#include "base/code_page.h"
#include "base/int16.h"
#include "base/program_state.h"
#include "lang/lang_test.h"
#include "lang/language_pack.h"

namespace horavex {
namespace {

class PackByPathTest : public LangTest {
protected:
    void WriteEightBitPack(const std::string& fileName, const std::string& value, CodePage page) {
        WritePack(fileName, "[msg]\r\n1=" + StringOf(EncodeCodePage(value, page).value()));
    }

    static std::string Message(const std::string& packPath, std::size_t buffer = kPackTextBuffer) {
        return ReadPackString(packPath, "msg", "1", "default", buffer);
    }
};

TEST_F(PackByPathTest, PackOfThePathIsReadWhateverTheCurrentOneIs) {
    WritePack("English.ini", "[msg]\n1=Hello");
    WritePack("French.ini", "[msg]\n1=Bonjour");
    currentLanguage = "English";
    EXPECT_EQ(Message("\\lang\\French.ini"), "Bonjour");
    EXPECT_EQ(ReadPackString("msg", "1", "default", kPackTextBuffer), "Hello");
    EXPECT_EQ(GetLangString("msg", "1", "default"), "Hello");
}

TEST_F(PackByPathTest, MissingPackGivesTheDefault) {
    EXPECT_EQ(Message("\\lang\\French.ini"), "default");
    EXPECT_EQ(Message(""), "default");
}

TEST_F(PackByPathTest, CurrentPackFollowsTheLanguageAtOnce) {
    WritePack("English.ini", "[msg]\n1=Hello");
    WritePack("French.ini", "[msg]\n1=Bonjour");
    currentLanguage = "English";
    EXPECT_EQ(GetLangString("msg", "1", ""), "Hello");
    currentLanguage = "French";
    EXPECT_EQ(GetLangString("msg", "1", ""), "Bonjour");
}

TEST_F(PackByPathTest, PackThatIsNamedArabicInAnyCaseIsRead1256) {
    for (const std::string name : {"Arabic", "ARABIC", "arabic"}) {
        WriteEightBitPack(name + ".ini", "مواقيت", CodePage::kWindows1256);
        currentLanguage = "French";
        EXPECT_EQ(Message("\\lang\\" + name + ".ini"), "مواقيت") << name;
        EXPECT_EQ(Message("/lang/" + name + ".ini"), "مواقيت") << name;
    }
}

TEST_F(PackByPathTest, EveryOtherEightBitPackIsRead1252EvenInArabic) {
    currentLanguage = "Arabic";
    for (const std::string name : {"French", "Arabic.old", "MyArabic", "Arabic2"}) {
        WriteEightBitPack(name + ".ini", "prière", CodePage::kWindows1252);
        EXPECT_EQ(Message("\\lang\\" + name + ".ini"), "prière") << name;
    }
}

TEST_F(PackByPathTest, OnlyTheFileNameDecidesNotItsFolder) {
    data.Write("arabic/French.ini",
               "[msg]\n1=" + StringOf(EncodeCodePage("é", CodePage::kWindows1252).value()));
    EXPECT_EQ(Message("\\arabic\\French.ini"), "é");
}

TEST_F(PackByPathTest, CutIsMadeInTheBytesOfTheFile) {
    WriteEightBitPack("Arabic.ini", "صصصصص", CodePage::kWindows1256);
    EXPECT_EQ(Message("\\lang\\Arabic.ini", 4), "صصص");
    WritePack("Arabic.ini", "[msg]\n1=صصصصص");
    EXPECT_EQ(Message("\\lang\\Arabic.ini", 4), "ص");
}

TEST(LanguageFilesPresent, FreshProcessHasSeenNone) {
    languageFilesPresent = kTrue;
    ResetProgramState();
    EXPECT_EQ(languageFilesPresent, kFalse);
}

TEST_F(PackByPathTest, DefaultOfAMessageIsThereWithoutAnyPack) {
    EXPECT_EQ(GetLangString("msg", "18", "There are no Athan files available. "),
              "There are no Athan files available. ");
}

}  // namespace
}  // namespace horavex
