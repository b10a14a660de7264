#include "lang/pack_files.h"

#include "base/fault.h"
#include "lang/lang_test.h"

namespace horavex {
namespace {

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
