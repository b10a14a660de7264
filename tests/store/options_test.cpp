#include "store/options.h"

#include <limits>
#include <set>

#include "base/fault.h"
#include "store/distance_options.h"
#include "store/face_options.h"
#include "store/register.h"
#include "store/start_options.h"
#include "support/data_folder_test.h"

namespace horavex {
namespace {

class OptionsTest : public DataFolderTest {
protected:
    static void Store(const char* name, const std::string& text) {
        std::int32_t result = 0;
        CRegister().REGSaveSetting(kLocalMachine, kOptionsKey, name, text, result);
    }

    static std::string Stored(const char* name) {
        std::string text;
        CRegister().REGGetSetting(kLocalMachine, kOptionsKey, name, "nothing", text);
        return text;
    }
};

/// Rows of the table that hold whole numbers.
std::vector<WholeOption> WholeOptions() {
    std::vector<WholeOption> options = {
        option::kAutomaticZone,   option::kIshaInterval,   option::kIshaIntervalRamadan,
        option::kHijriAdjustment, option::kSunOfTheDay,    option::kAlarm,
        option::kFaceSmall,       option::kFaceFullScreen, option::kFaceAbove,
        option::kShowRunning,     option::kOwnDigits,      option::kDistanceFromHere};
    options.insert(options.end(), option::kOffsets.begin(), option::kOffsets.end());
    return options;
}

TEST_F(OptionsTest, AbsentValuesGiveTheBase) {
    EXPECT_EQ(ReadOption(option::kAutomaticZone), 0);
    EXPECT_EQ(ReadOption(option::kZoneName), "");
    EXPECT_EQ(ReadOption(option::kHighLatitudeRule), HighLatitudeRule::kNone);
    EXPECT_EQ(ReadOption(option::kIshaInterval), 0);
    EXPECT_EQ(ReadOption(option::kIshaIntervalRamadan), 0);
    EXPECT_EQ(ReadOption(option::kMaghribAngle), 0.0);
    for (const WholeOption& offset : option::kOffsets) {
        EXPECT_EQ(ReadOption(offset), 0);
    }
    EXPECT_EQ(ReadOption(option::kHijriCalendar), HijriSource::kArithmetic);
    EXPECT_EQ(ReadOption(option::kHijriAdjustment), 0);
    EXPECT_EQ(ReadOption(option::kSunOfTheDay), 0);
    EXPECT_EQ(ReadOption(option::kAlarm), 1);
    EXPECT_EQ(Stored("Alarm"), "nothing") << "reading writes nothing";
}

TEST_F(OptionsTest, EveryOptionHasAValueOfItsOwn) {
    std::set<std::string> names = {option::kZoneName.name, option::kHighLatitudeRule.name,
                                   option::kMaghribAngle.name, option::kHijriCalendar.name};
    for (const WholeOption& option : WholeOptions()) {
        names.insert(option.name);
    }
    EXPECT_EQ(names.size(), 4 + WholeOptions().size());
}

TEST_F(OptionsTest, OffsetsAreInTheOrderOfThePrayers) {
    EXPECT_STREQ(option::kOffsets[0].name, "Offset Fajr");
    EXPECT_STREQ(option::kOffsets[2].name, "Offset Zuhr");
    EXPECT_STREQ(option::kOffsets[5].name, "Offset Isha");
}

TEST_F(OptionsTest, BothEndsOfARangeAreReadAndWhatLiesBehindCountsAsAbsent) {
    for (const WholeOption& option : WholeOptions()) {
        for (const int value : {option.least, option.most}) {
            Store(option.name, std::to_string(value));
            EXPECT_EQ(ReadOption(option), value) << option.name;
        }
        for (const int value : {option.least - 1, option.most + 1}) {
            Store(option.name, std::to_string(value));
            EXPECT_EQ(ReadOption(option), option.base) << option.name;
        }
    }
}

TEST_F(OptionsTest, RangesAreThoseOfTheTable) {
    EXPECT_EQ(option::kIshaInterval.most, 180);
    EXPECT_EQ(option::kIshaIntervalRamadan.most, 180);
    EXPECT_EQ(option::kOffsets[3].least, -60);
    EXPECT_EQ(option::kOffsets[3].most, 60);
    EXPECT_EQ(option::kHijriAdjustment.least, -2);
    EXPECT_EQ(option::kHijriAdjustment.most, 2);
}

TEST_F(OptionsTest, DegreesHaveFractionsWithPointOrComma) {
    Store("Maghrib Angle", "4.5");
    EXPECT_EQ(ReadOption(option::kMaghribAngle), 4.5);
    Store("Maghrib Angle", "4,5");
    EXPECT_EQ(ReadOption(option::kMaghribAngle), 4.5);
    Store("Maghrib Angle", "10");
    EXPECT_EQ(ReadOption(option::kMaghribAngle), 10.0);
    for (const std::string text : {"10.01", "-0.01", "1E+300"}) {
        Store("Maghrib Angle", text);
        EXPECT_EQ(ReadOption(option::kMaghribAngle), 0.0) << text;
    }
}

TEST_F(OptionsTest, DamagedNumberCountsAsAbsent) {
    for (const std::string text : {"", "yes", "1.5", "0 minutes", "nan", "1E+999", "-", "0x1"}) {
        Store("Alarm", text);
        EXPECT_EQ(ReadOption(option::kAlarm), 1) << text;
        Store("Isha Interval", text);
        EXPECT_EQ(ReadOption(option::kIshaInterval), 0) << text;
    }
    Store("Isha Interval", "1.5");
    EXPECT_EQ(ReadOption(option::kIshaInterval), 0) << "minutes are whole";
}

TEST_F(OptionsTest, WordsAreReadInAnyCase) {
    Store("High Latitude Rule", "Seventh");
    EXPECT_EQ(ReadOption(option::kHighLatitudeRule), HighLatitudeRule::kSeventh);
    Store("Hijri Calendar", "UMM-AL-QURA");
    EXPECT_EQ(ReadOption(option::kHijriCalendar), HijriSource::kUmmAlQura);
}

TEST_F(OptionsTest, UnknownWordCountsAsAbsent) {
    for (const std::string text : {"", "seven", "seventh of the night", "3"}) {
        Store("High Latitude Rule", text);
        EXPECT_EQ(ReadOption(option::kHighLatitudeRule), HighLatitudeRule::kNone) << text;
    }
}

TEST_F(OptionsTest, WrittenValuesAreReadAgain) {
    for (const WholeOption& option : WholeOptions()) {
        EXPECT_EQ(SaveOption(option, option.least), 0);
        EXPECT_EQ(ReadOption(option), option.least) << option.name;
    }
    SaveOption(option::kMaghribAngle, 4.25);
    EXPECT_EQ(ReadOption(option::kMaghribAngle), 4.25);
    SaveOption(option::kZoneName, "Africa/Cairo");
    EXPECT_EQ(ReadOption(option::kZoneName), "Africa/Cairo");
    for (const auto rule : {HighLatitudeRule::kMiddle, HighLatitudeRule::kSeventh,
                            HighLatitudeRule::kAngle, HighLatitudeRule::kNearest}) {
        SaveOption(option::kHighLatitudeRule, rule);
        EXPECT_EQ(ReadOption(option::kHighLatitudeRule), rule);
    }
    SaveOption(option::kHijriCalendar, HijriSource::kUmmAlQura);
    EXPECT_EQ(ReadOption(option::kHijriCalendar), HijriSource::kUmmAlQura);
}

TEST_F(OptionsTest, ValuesAreStoredAsTexts) {
    SaveOption(option::kOffsets[0], -5);
    EXPECT_EQ(Stored("Offset Fajr"), "-5");
    SaveOption(option::kMaghribAngle, 4.5);
    EXPECT_EQ(Stored("Maghrib Angle"), "4.5");
    SaveOption(option::kHighLatitudeRule, HighLatitudeRule::kAngle);
    EXPECT_EQ(Stored("High Latitude Rule"), "angle");
}

TEST_F(OptionsTest, DefaultIsWrittenTooToStandInFrontOfAMachineWideOne) {
    SaveOption(option::kAlarm, 1);
    EXPECT_EQ(Stored("Alarm"), "1");
    SaveOption(option::kHighLatitudeRule, HighLatitudeRule::kNone);
    EXPECT_EQ(Stored("High Latitude Rule"), "none");
}

TEST_F(OptionsTest, ValueOutsideItsRangeIsNotWritten) {
    SaveOption(option::kIshaInterval, 90);
    EXPECT_THROW(SaveOption(option::kIshaInterval, 181), BoundsFault);
    EXPECT_THROW(SaveOption(option::kIshaInterval, -1), BoundsFault);
    EXPECT_EQ(Stored("Isha Interval"), "90");
    EXPECT_THROW(SaveOption(option::kMaghribAngle, 10.5), BoundsFault);
    EXPECT_THROW(SaveOption(option::kMaghribAngle, std::numeric_limits<double>::quiet_NaN()),
                 BoundsFault);
    EXPECT_EQ(Stored("Maghrib Angle"), "nothing");
}

TEST_F(OptionsTest, OptionsLieApartFromTheSettings) {
    SaveOption(option::kZoneName, "Africa/Cairo");
    std::string value;
    EXPECT_NE(CRegister().REGGetSetting(kLocalMachine, kSettingsKey, "Zone Name", "", value), 0);
    EXPECT_EQ(CRegister().REGGetSetting(kLocalMachine, "Software\\Horavex\\Options", "Zone Name",
                                        "", value),
              0);
    EXPECT_EQ(value, "Africa/Cairo");
}

TEST_F(OptionsTest, RestrictedUserReadsAndKeepsNothing) {
    SaveOption(option::kAlarm, 0);
    platform.registry.DenyWriting(true);
    EXPECT_EQ(SaveOption(option::kAlarm, 1), kRegistryAccessDenied);
    EXPECT_EQ(ReadOption(option::kAlarm), 0);
}

TEST_F(OptionsTest, FailedReadGivesTheBase) {
    SaveOption(option::kAlarm, 0);
    platform.registry.FailCall(1);
    EXPECT_EQ(ReadOption(option::kAlarm), 1);
    EXPECT_EQ(ReadOption(option::kAlarm), 0);
}

}  // namespace
}  // namespace horavex
