#include "desktop/face/poster_layout.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetricsF>
#include <algorithm>

#include "desktop/face/fitted_text.h"
#include "desktop/pack_day.h"
#include "support/program_copy.h"
#include "support/shipped_languages.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

const QSize kScreens[] = {{1024, 768}, {1280, 1024}, {1280, 800},
                          {1366, 768}, {1920, 1080}, {1080, 1920}};

double UnitOf(QSize screen) {
    return std::min<double>(screen.height(), screen.width() / 2.0);
}

/// The poster in the words of a pack, in a family of letters; an empty one is the desktop's.
class PosterLayoutTest : public testing::TestWithParam<std::tuple<std::string, const char*>> {
protected:
    PosterLayoutTest() {
        CopyBuiltProgramFolder(platform.files);
        QFont font = before;
        if (const QString family = QLatin1String(std::get<1>(GetParam())); !family.isEmpty()) {
            font.setFamilies({family});
        }
        QApplication::setFont(font);
        SpeakPack(std::get<0>(GetParam()));
    }

    ~PosterLayoutTest() override {
        currentLanguage = "English";
        SpeakLanguageOfPack();
        QApplication::setFont(before);
    }

    static std::vector<PosterText> TextsOn(QSize screen, const FaceDay& day) {
        const PosterLayout layout(screen);
        std::vector<PosterText> texts = layout.Rest(day, LongDates());
        std::ranges::copy(layout.Countdown(day), std::back_inserter(texts));
        return texts;
    }

    /// Each text lies whole in its area, in type that is large enough for a wall.
    static void ExpectReadable(const std::vector<PosterText>& texts, double unit) {
        constexpr double kLeast = 0.03;  // of the unit
        for (const PosterText& text : texts) {
            const QFontMetricsF metrics(FaceFont(text.pixels, text.bold));
            const std::string said = text.text.toStdString();
            EXPECT_LE(metrics.horizontalAdvance(text.text), text.area.width() + 1.0) << said;
            EXPECT_LE(text.pixels, text.area.height()) << said;
            EXPECT_GE(text.pixels, kLeast * unit) << said;
        }
    }

    const QFont before = QApplication::font();
    TestPlatform platform;
};

TEST_P(PosterLayoutTest, NoTextIsCutOrSmallOnAnyScreen) {
    for (const QSize& screen : kScreens) {
        SCOPED_TRACE(std::to_string(screen.width()) + "x" + std::to_string(screen.height()));
        ExpectReadable(TextsOn(screen, FaceDayOf(DayWithIqamas())), UnitOf(screen));
        ExpectReadable(TextsOn(screen, FaceDayOf(NightOfRamadan())), UnitOf(screen));
    }
}

TEST_P(PosterLayoutTest, TheSixTimesAreReadAcrossAHall) {
    constexpr double kLeast = 0.045;  // of the unit
    const FaceDay day = FaceDayOf(NightOfRamadan());
    for (const QSize& screen : kScreens) {
        const auto texts = TextsOn(screen, day);
        for (const PrayerEntry& cell : day.cells) {
            const auto time = std::ranges::find(texts, cell.time, &PosterText::text);
            ASSERT_NE(time, texts.end());
            EXPECT_GE(time->pixels, kLeast * UnitOf(screen)) << cell.time.toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, PosterLayoutTest,
                         testing::Combine(testing::ValuesIn(kShippedLanguages),
                                          testing::Values("", "DejaVu Sans")),
                         [](const auto& test) {
                             const bool usual = *std::get<1>(test.param) == '\0';
                             return std::get<0>(test.param) + (usual ? "" : "InDejaVu");
                         });

class PosterTextsTest : public testing::Test {
protected:
    TestPlatform platform;
    const PosterLayout layout{{1280, 960}};
};

TEST_F(PosterTextsTest, TextsSideBySideHaveOneSize) {
    FaceDay day = FaceDayOf(DayWithIqamas());
    day.cells[kIsha].time = "12:15 AM+1\u2020";
    std::vector<int> sizes;
    for (const PosterText& text : layout.Rest(day, {})) {
        if (std::ranges::find(day.cells, text.text, &PrayerEntry::time) != day.cells.end()) {
            sizes.push_back(text.pixels);
        }
    }
    EXPECT_EQ(sizes, std::vector<int>(kPrayerCount, sizes.front()));
}

TEST_F(PosterTextsTest, CellsTellThePrayerAloneAndTheCountdownThatItIsTomorrows) {
    frmMain->lblZoritNameArabic(kFajr).SetCaption("Fajr");
    const FaceDay day = FaceDayOf(NightOfRamadan());
    const auto texts = layout.Rest(day, {});
    EXPECT_NE(std::ranges::find(texts, QString("Fajr"), &PosterText::text), texts.end());
    EXPECT_TRUE(layout.Countdown(day).front().text.startsWith("Fajr tomorrow"));
}

TEST_F(PosterTextsTest, IqamasStandBelowTheirTimes) {
    const FaceDay day = FaceDayOf(DayWithIqamas());
    const auto texts = layout.Rest(day, {});
    const auto asr = std::ranges::find(texts, day.cells[kAsr].time, &PosterText::text);
    const auto iqama = std::ranges::find(texts, QString("Iqama 02:46 PM"), &PosterText::text);
    ASSERT_NE(iqama, texts.end());
    EXPECT_GE(iqama->area.top(), asr->area.bottom());
    EXPECT_EQ(iqama->area.center().x(), asr->area.center().x());
}

TEST_F(PosterTextsTest, NamesAndTimesStandInTheMiddleOfCardsWithoutIqamas) {
    FaceDay day = FaceDayOf(NightOfRamadan());
    std::ranges::fill(day.iqamas, QString());
    const auto texts = layout.Rest(day, {});
    const QRectF card = layout.Cell(kAsr, Qt::LeftToRight);
    const auto name = std::ranges::find(texts, day.cells[kAsr].name, &PosterText::text);
    const auto time = std::ranges::find(texts, day.cells[kAsr].time, &PosterText::text);
    EXPECT_NEAR(name->area.top() - card.top(), card.bottom() - time->area.bottom(), 1.0);
    EXPECT_GE(time->area.left() - card.left(), 0.015 * 640);
}

TEST_F(PosterTextsTest, CountdownStaysWhereItIsFromSecondToSecond) {
    FaceDay day = FaceDayOf(DayWithIqamas());
    const auto before = layout.Countdown(day);
    day.seconds -= 1;
    const auto after = layout.Countdown(day);
    EXPECT_NE(after[1].text, before[1].text);
    EXPECT_EQ(after[0].area, before[0].area);
    EXPECT_EQ(after[1].area, before[1].area);
}

TEST_F(PosterTextsTest, CellsAndCountdownBeginWhereTheScriptDoes) {
    EXPECT_LT(layout.Cell(kFajr, Qt::LeftToRight).left(),
              layout.Cell(kIsha, Qt::LeftToRight).left());
    EXPECT_GT(layout.Cell(kFajr, Qt::RightToLeft).left(),
              layout.Cell(kIsha, Qt::RightToLeft).left());
    FaceDay day = FaceDayOf(DayWithIqamas());
    day.rows[kAsr].name = "العصر";
    const auto countdown = layout.Countdown(day);
    EXPECT_GT(countdown[0].area.left(), countdown[1].area.right());
}

}  // namespace
}  // namespace horavex
