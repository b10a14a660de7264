#include "config/about_window.h"

#include "base/program_version.h"
#include "lang/language_pack.h"
#include "support/program_test.h"
#include "windows/frm_about.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct AboutWindowTest : ProgramTest {
    AboutWindowTest() { StartAgain(); }
};

TEST_F(AboutWindowTest, ShowsTitleAndVersion) {
    ShowAboutWindow();
    EXPECT_EQ(frmAbout->Caption(), "About Horavex");
    EXPECT_EQ(frmAbout->lblTitle.Caption(), "Horavex");
    EXPECT_EQ(frmAbout->lblVersion.Caption(), FullVersionText());
}

TEST_F(AboutWindowTest, PackGivesTheTextsButTitleVersionAndCaption) {
    currentLanguage = "German";
    ShowAboutWindow();
    EXPECT_THAT(frmAbout->lblDescription.Caption(), HasSubstr("Gebetszeiten"));
    EXPECT_THAT(frmAbout->SkinLabel1.Caption(), HasSubstr("Horavex"));
    EXPECT_EQ(frmAbout->Caption(), "About Horavex");
    EXPECT_EQ(frmAbout->lblVersion.Caption(), FullVersionText());
}

TEST_F(AboutWindowTest, WithoutPacksTheDefinitionSpeaks) {
    languageFilesPresent = 0;
    ShowAboutWindow();
    EXPECT_EQ(frmAbout->cmdSysInfo.Caption(), "&System Info...");
    EXPECT_EQ(frmAbout->lblTitle.Caption(), "Horavex");
}

TEST_F(AboutWindowTest, CreditsNameTheSourcesAndTheirLicences) {
    ShowAboutWindow();
    for (const char* credit : {"GeoNames (CC BY 4.0)", "Natural Earth", "MIT"}) {
        EXPECT_THAT(frmAbout->lblCredits.Caption(), HasSubstr(credit));
    }
}

TEST_F(AboutWindowTest, OkUnloadsIt) {
    ShowAboutWindow();
    frmAbout->cmdOK.UserClick();
    EXPECT_FALSE(frmAbout->IsLoaded());
}

TEST_F(AboutWindowTest, IconIsDrawnAtEachLoad) {
    ShowAboutWindow();
    EXPECT_EQ(frmAbout->picIcon.drawing.size(), 5U);
    frmAbout->cmdOK.UserClick();
    ShowAboutWindow();
    EXPECT_EQ(frmAbout->picIcon.drawing.size(), 5U);
}

TEST_F(AboutWindowTest, ButtonOpensTheSystemInformation) {
    ShowAboutWindow();
    platform.desktop.calls.clear();
    frmAbout->cmdSysInfo.UserClick();
    EXPECT_THAT(platform.desktop.calls, ElementsAre("OpenSystemInformation"));
}

}  // namespace
}  // namespace horavex
