#include "desktop/ports/pack_font.h"

#include <QApplication>
#include <QFontMetrics>
#include <QGlyphRun>
#include <QRawFont>
#include <QSet>
#include <QTextLayout>

#include "lang/language_pack.h"
#include "support/program_copy.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

struct PackFontTest : testing::Test {
    PackFontTest() {
        CopyBuiltProgramFolder(platform.files);
        QFont font = before;
        font.setFamilies({"DejaVu Sans"});  // which has not all the letters of Urdu
        QApplication::setFont(font);
    }

    ~PackFontTest() override {
        Speak("English");
        QApplication::setFont(before);
    }

    static void Speak(const std::string& pack) {
        currentLanguage = pack;
        UseFontOfPack();
    }

    /// Families that a word is put together of.
    static QSet<QString> FamiliesOf(const QString& word) {
        QTextLayout layout(word, QApplication::font());
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        QSet<QString> families;
        for (const QGlyphRun& run : layout.glyphRuns()) {
            families.insert(run.rawFont().familyName());
        }
        return families;
    }

    const QFont before = QApplication::font();
    TestPlatform platform;
};

TEST_F(PackFontTest, WordsOfUrduAreWrittenInOneFontSoThatTheirLettersJoin) {
    EXPECT_EQ(FamiliesOf("مہینے").size(), 2) << "the desktop's own font";
    Speak("Urdu");
    EXPECT_EQ(FamiliesOf("مہینے").size(), 1);
}

TEST_F(PackFontTest, OtherPacksKeepTheFontOfTheDesktop) {
    const QFont own = QApplication::font();
    for (const char* pack : {"Arabic", "English", "Turkish", "Missing"}) {
        Speak(pack);
        EXPECT_EQ(QApplication::font(), own) << pack;
    }
}

TEST_F(PackFontTest, FontOfTheDesktopComesBackWithAnotherPack) {
    const QFont own = QApplication::font();
    Speak("Urdu");
    EXPECT_EQ(QApplication::font().families().back(), "DejaVu Sans");
    EXPECT_EQ(QApplication::font().pointSizeF(), own.pointSizeF());
    Speak("English");
    EXPECT_EQ(QApplication::font(), own);
}

TEST_F(PackFontTest, LinesStayAsHighAsThoseOfADesktopWithoutArabicLetters) {
    QFont font = before;
    font.setFamilies({"Noto Sans"});
    QApplication::setFont(font);
    Speak("Urdu");
    EXPECT_EQ(FamiliesOf("مہینے").size(), 1);
    EXPECT_EQ(QFontMetrics(QApplication::font()).height(), QFontMetrics(font).height());
}

TEST_F(PackFontTest, LatinLettersAreThoseOfTheDesktopsFont) {
    Speak("Urdu");
    EXPECT_EQ(FamiliesOf("Horavex"), QSet<QString>{"DejaVu Sans"});
}

}  // namespace
}  // namespace horavex
