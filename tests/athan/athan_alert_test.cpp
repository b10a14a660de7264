#include "athan/athan_alert.h"

#include "athan/athan_state.h"
#include "support/program_test.h"

namespace horavex {
namespace {

struct AlarmTest : ProgramTest {
    AlarmTest() {
        StartAgain();
        ActiveSettings.AlarmTime = 78;
    }

    /// How long the alarm stood, in seconds.
    double SoundAlarm() {
        const double before = platform.clock.SteadySeconds();
        sub04F9(7);
        return platform.clock.SteadySeconds() - before;
    }
};

TEST_F(AlarmTest, StandsForThreeHundredAndTenSeconds) {
    EXPECT_NEAR(SoundAlarm(), 2 + 20 * 3 + 20 * 12.504, 0.5);
    EXPECT_EQ(platform.dialogs.beeps, 20);
    EXPECT_FALSE(fMessage->IsLoaded());
}

TEST_F(AlarmTest, TellsItsTimeAndOffersClose) {
    platform.loop.After(1.0, [&] {
        EXPECT_EQ(fMessage->lblMessage2.Caption(), "06:30 AM : It is time for your alarm.");
        EXPECT_EQ(fMessage->Caption(), "Horavex Prayer Time Software ");
        EXPECT_TRUE(fMessage->cmdAlarmClose.Visible());
        EXPECT_FALSE(fMessage->CmdCancel.Visible());
        EXPECT_FALSE(fMessage->Shape1.Visible());
        EXPECT_TRUE(fMessage->Visible());
        EXPECT_EQ(platform.dialogs.beeps, 0) << "the first beep comes after two seconds";
    });
    SoundAlarm();
}

TEST_F(AlarmTest, ClosingEndsItAtTheNextPass) {
    platform.loop.After(9.0, [] { fMessage->cmdAlarmClose.UserClick(); });
    EXPECT_NEAR(SoundAlarm(), 11.0, 0.5);
    EXPECT_EQ(platform.dialogs.beeps, 3);
    EXPECT_EQ(alarmDismissed, -1);
}

TEST_F(AlarmTest, NextAlarmForgetsTheDismissal) {
    alarmDismissed = -1;
    SoundAlarm();
    EXPECT_EQ(platform.dialogs.beeps, 20);
}

TEST_F(AlarmTest, EnablesTheSettingsWindow) {
    HoravexMainForm->SetEnabled(false);
    SoundAlarm();
    EXPECT_TRUE(HoravexMainForm->Enabled());
}

TEST_F(AlarmTest, SunriseReturnsAtOnce) {
    HoravexMainForm->SetEnabled(false);
    sub04F9(1);
    EXPECT_FALSE(HoravexMainForm->Enabled());
}

}  // namespace
}  // namespace horavex
