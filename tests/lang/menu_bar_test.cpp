#include "lang/menu_bar.h"

#include "lang/lang_test.h"
#include "lang/language_pack.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::Pair;

class SetMenuBarTest : public LangTest {};

TEST_F(SetMenuBarTest, HandsFourTitlesOverInOrder) {
    WritePack("Pack.ini", "[frmMain]\nmnuHelp=H\nmnuTools=T\nmnuSettings=S\nmnuAthan=A");
    SetMenuBar("\\lang\\Pack.ini");
    EXPECT_THAT(platform.face.variables,
                ElementsAre(Pair("_root.azan", "A"), Pair("_root.settings", "S"),
                            Pair("_root.tools", "T"), Pair("_root.help", "H")));
}

TEST_F(SetMenuBarTest, PackIsTheGivenOneAndNotTheCurrent) {
    WritePack("Pack.ini", "[frmMain]\nmnuAthan=given");
    WritePack("French.ini", "[frmMain]\nmnuAthan=current");
    currentLanguage = "French";
    SetMenuBar("\\lang\\Pack.ini");
    EXPECT_EQ(platform.face.Value("_root.azan"), "given");
}

TEST_F(SetMenuBarTest, MissingTitleIsHandedOverEmpty) {
    SetMenuBar("\\lang\\Nowhere.ini");
    EXPECT_THAT(platform.face.variables,
                ElementsAre(Pair("_root.azan", ""), Pair("_root.settings", ""),
                            Pair("_root.tools", ""), Pair("_root.help", "")));
}

TEST_F(SetMenuBarTest, TitleIsCutAtItsShorterBuffer) {
    WritePack("Pack.ini", "[frmMain]\nmnuTools=" + std::string(300, 'x'));
    SetMenuBar("\\lang\\Pack.ini");
    EXPECT_EQ(platform.face.Value("_root.tools"), std::string(254, 'x'));
}

TEST_F(SetMenuBarTest, TitleIsHandedOverAsReadWithItsAccessKey) {
    WritePack("Pack.ini", "[frmMain]\nmnuHelp=&Hilfe");
    SetMenuBar("\\lang\\Pack.ini");
    EXPECT_EQ(platform.face.Value("_root.help"), "&Hilfe");
}

}  // namespace
}  // namespace horavex
