#include "athan/athan_choices.h"

#include <gtest/gtest.h>

#include <set>

#include "base/fault.h"
#include "store/register.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

class AthanChoicesTest : public testing::Test {
protected:
    static std::string Stored(const char* name) {
        std::string text;
        CRegister().REGGetSetting(kLocalMachine, kOptionsKey, name, "nothing", text);
        return text;
    }

    static AthanChoices AllElse() {
        AthanChoices choices;
        for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
            const int n = static_cast<int>(prayer);
            choices.prayers[prayer] = {.athan = false,
                                       .sound = static_cast<AthanSound>(prayer + 1),
                                       .file = "/music/" + std::to_string(n),
                                       .volume = 10 + n,
                                       .reminder = 20 + n,
                                       .iqama = 30 + n};
        }
        choices.reminderSignal = Signal::kBoth;
        choices.iqamaSignal = Signal::kTone;
        choices.volume = 70;
        choices.fadeSeconds = 5;
        choices.device = "hall";
        choices.shown = AthanShown::kNotificationWhileBusy;
        choices.once = true;
        choices.silentMinutes = 10;
        choices.pausePlayers = true;
        choices.tellMissed = true;
        choices.alarm = false;
        choices.quietHours = {.on = true, .from = 1, .to = 2};
        return choices;
    }

    TestPlatform platform;
};

TEST_F(AthanChoicesTest, NothingStoredIsTheBase) {
    EXPECT_EQ(ReadAthanChoices(), AthanChoices());
}

TEST_F(AthanChoicesTest, EachIsReadAsItWasSaved) {
    SaveAthanChoices(AllElse());
    EXPECT_EQ(ReadAthanChoices(), AllElse());
    EXPECT_EQ(Stored("Athan Sound Shurooq"), "athan2");
    EXPECT_EQ(Stored("Athan Shown"), "notification while busy");
}

TEST_F(AthanChoicesTest, TheBaseIsStoredAsNothing) {
    SaveAthanChoices(AllElse());
    SaveAthanChoices(AthanChoices());
    EXPECT_EQ(ReadAthanChoices(), AthanChoices());
    for (const char* name : {"Athan Fajr", "Athan Sound Isha", "Athan File Asr", "Alarm",
                             "Quiet Hours", "Athan Shown", "Sound Device"}) {
        EXPECT_EQ(Stored(name), "nothing") << name;
    }
}

TEST_F(AthanChoicesTest, ChoicesOutsideTheirRangeAreNotStored) {
    AthanChoices choices;
    choices.prayers[kAsr].reminder = 61;
    EXPECT_THROW(SaveAthanChoices(choices), BoundsFault);
    EXPECT_EQ(Stored("Reminder Asr"), "nothing");
}

TEST_F(AthanChoicesTest, StoredValuesOutsideTheirRangeCountAsAbsent) {
    std::int32_t result = 0;
    for (const char* name : {"Athan Volume Asr", "Reminder Asr", "Iqama Asr", "Athan Fade",
                             "Silent Minutes", "Quiet From", "Athan Once"}) {
        CRegister().REGSaveSetting(kLocalMachine, kOptionsKey, name, "1440", result);
    }
    CRegister().REGSaveSetting(kLocalMachine, kOptionsKey, "Athan Sound Asr", "gong", result);
    EXPECT_EQ(ReadAthanChoices(), AthanChoices());
}

TEST_F(AthanChoicesTest, EveryPrayerHasValuesOfItsOwn) {
    std::set<std::string> names;
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        names.insert({option::kAthans[prayer].name, option::kAthanSounds[prayer].name,
                      option::kAthanFiles[prayer].name, option::kAthanVolumes[prayer].name,
                      option::kReminders[prayer].name, option::kIqamas[prayer].name});
        EXPECT_TRUE(std::string(option::kIqamas[prayer].name).ends_with(kPrayerKeys[prayer]));
    }
    EXPECT_EQ(names.size(), 6 * kPrayerCount);
}

}  // namespace
}  // namespace horavex
