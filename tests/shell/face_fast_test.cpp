#include "shell/face_fast.h"

#include "engine/day_driver.h"
#include "lang/language_pack.h"
#include "support/program_test.h"

namespace horavex {
namespace {

// By the arithmetic calendar Ramadan 1447 goes from 18 February to 19 March 2026.
struct FaceFastTest : ProgramTest {
    static std::string FastBefore(std::int16_t prayer, Date now, bool isTomorrows = false) {
        DayView day;
        day.now = now;
        day.next.prayer = prayer;
        day.next.isTomorrows = isTomorrows;
        return FastOfFace(day);
    }
};

TEST_F(FaceFastTest, CountdownToMaghribOfRamadanIsThatToTheIftarAndToFajrToTheEndOfSuhoor) {
    const Date noon = DateSerial(2026, 3, 1) + 0.5;
    EXPECT_EQ(FastBefore(kMaghrib, noon), "Iftar in");
    EXPECT_EQ(FastBefore(kFajr, noon), "Suhoor ends in");
    currentLanguage = "German";
    EXPECT_EQ(FastBefore(kFajr, noon), "Suhur endet in");
}

TEST_F(FaceFastTest, OtherPrayersAndMonthsHaveNone) {
    const Date noon = DateSerial(2026, 3, 1) + 0.5;
    for (const std::int16_t prayer : {kZuhr, kAsr, kIsha}) {
        EXPECT_EQ(FastBefore(prayer, noon), "");
    }
    EXPECT_EQ(FastBefore(kMaghrib, DateSerial(2026, 2, 17) + 0.5), "");
    EXPECT_EQ(FastBefore(kMaghrib, DateSerial(2026, 3, 20) + 0.5), "");
}

TEST_F(FaceFastTest, NightBeforeTheFirstDayHasASuhoorAndTheNightBehindTheLastHasNone) {
    EXPECT_EQ(FastBefore(kFajr, DateSerial(2026, 2, 17) + 0.9, true), "Suhoor ends in");
    EXPECT_EQ(FastBefore(kFajr, DateSerial(2026, 3, 19) + 0.9, true), "");
}

TEST_F(FaceFastTest, FaceGetsItBesideTheVariables) {
    StartAgain();
    SetClock(2026, 3, 1, 17, 0, 0);
    std::string told;
    platform.face.onShowDay = [&](const DayView& day) { told = day.fast; };
    ShowDay();
    EXPECT_EQ(told, "Iftar in");
    EXPECT_THAT(platform.face.Value("_root.sNextRemaining"), testing::StartsWith("Remaining: "));
}

}  // namespace
}  // namespace horavex
