#include "desktop/ports/toolkit_language.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QPushButton>

#include "lang/language_pack.h"
#include "support/program_copy.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

struct ToolkitLanguageTest : testing::Test {
    ToolkitLanguageTest() { CopyBuiltProgramFolder(platform.files); }
    ~ToolkitLanguageTest() override { CancelIn("English"); }

    /// The caption of a button of the toolkit's own.
    static std::string CancelIn(const std::string& pack) {
        currentLanguage = pack;
        SpeakLanguageOfPack();
        const QDialogButtonBox box(QDialogButtonBox::Cancel);
        return box.button(QDialogButtonBox::Cancel)->text().remove(u'&').toStdString();
    }

    TestPlatform platform;
};

TEST_F(ToolkitLanguageTest, ButtonsOfDialoguesSpeakTheLanguageOfThePack) {
    EXPECT_EQ(CancelIn("French"), "Annuler");
    EXPECT_EQ(CancelIn("German"), "Abbrechen");
    EXPECT_EQ(CancelIn("Spanish"), "Cancelar");
    EXPECT_EQ(CancelIn("Turkish"), "İptal");
    EXPECT_NE(CancelIn("Arabic"), "Cancel") << "its word is the toolkit's";
    EXPECT_EQ(CancelIn("English"), "Cancel");
}

TEST_F(ToolkitLanguageTest, PackWithoutALanguageThatIsKnownLeavesEnglish) {
    CancelIn("French");
    EXPECT_EQ(CancelIn("Missing"), "Cancel");
}

TEST_F(ToolkitLanguageTest, LanguageFromRightToLeftTurnsNoWindowAround) {
    CancelIn("Arabic");
    EXPECT_EQ(QApplication::layoutDirection(), Qt::LeftToRight);
}

}  // namespace
}  // namespace horavex
