#include "engine/year_calculation.h"

#include <barrier>
#include <future>

#include "base/fault.h"
#include "engine/angle.h"
#include "engine/sample_year.h"
#include "engine/solar_event.h"

namespace horavex {
namespace {

/// A place in degrees with equal angles of twilight, without daylight saving.
YearInputs At(std::int16_t year, double latitude, double longitude, double zone, double angle) {
    return {year, {DegToRad(latitude), -DegToRad(longitude), zone}, {angle, angle, 1.0, 0, 0, 0}};
}

YearInputs Jakarta() {
    YearInputs inputs = At(2026, -6.2, 106.8, 7.0, 18.0);
    inputs.method.asrRatio = 2.0;
    return inputs;
}

/// Its summer lies over the end of the year.
YearInputs Sydney() {
    YearInputs inputs = At(2024, -33.87, 151.21, 10.0, 15.0);
    inputs.method.dstEnabled = 1;
    inputs.method.dstStart = 280;
    inputs.method.dstEnd = 98;
    return inputs;
}

/// Gives up in May.
YearInputs NorthOfTwilight() {
    YearInputs inputs = At(2001, 51.5, -0.12, 0.0, 18.0);
    inputs.method.ishaAngle = 17.0;
    return inputs;
}

void ExpectSame(const YearTable& table, const YearTable& wanted) {
    EXPECT_EQ(table.times, wanted.times);
    EXPECT_EQ(table.failure, wanted.failure);
}

TEST(CalculateYear, SuccessIsAWholeTable) {
    const YearTable table = CalculateYear(Sydney());
    EXPECT_FALSE(table.failure);
    EXPECT_NEAR(table.times[kZuhr][0], 13.0, 0.05);
    EXPECT_NEAR(table.times[kZuhr][98], 11.95, 0.05) << "the day behind daylight saving";
    EXPECT_NEAR(table.times[kZuhr][365], 12.95, 0.05) << "of the leap year";
}

TEST(CalculateYear, FailureNamesItsRowAndLeavesTheRestAtZero) {
    const YearTable table = CalculateYear(NorthOfTwilight());
    EXPECT_EQ(table.failure, (YearFailure{'A', 142}));
    EXPECT_EQ(table.times[kFajr][142], NoEvent);
    EXPECT_EQ(RowOf(table.times, 143), PrayerRow{});
}

TEST(CalculateYear, DaylightDayOutsideTheTableIsAFault) {
    YearInputs inputs = Sydney();
    inputs.method.dstEnd = 0;
    inputs.method.dstStart = 0;
    EXPECT_THROW(CalculateYear(inputs), BoundsFault);
}

struct CalculateYearTest : EngineTest {
    /// The program's own run for the same inputs.
    void RunProgram(const YearInputs& inputs, const ProgressReport& report = nullptr) {
        CurrentYear = inputs.year;
        CalcFailed = 0;
        LatitudeRad = inputs.place.latitudeRad;
        LongitudeWestRad = inputs.place.longitudeWestRad;
        Settings.TimeZone = inputs.place.timeZone;
        Settings.FajrAngle = inputs.method.fajrAngle;
        Settings.AsrRatio = inputs.method.asrRatio;
        Settings.DstEnabled = inputs.method.dstEnabled;
        Settings.DstStart = inputs.method.dstStart;
        Settings.DstEnd = inputs.method.dstEnd;
        IshaAngle = inputs.method.ishaAngle;
        Times = {};
        ComputeYearConstants(inputs.year);
        ComputeYearTimes(0, static_cast<std::int16_t>(365 + LeapFlagOf(inputs.year)), report);
    }
};

TEST_F(CalculateYearTest, ProgramsTableIsTheSameBitForBit) {
    for (const YearInputs& inputs : {Jakarta(), Sydney(), NorthOfTwilight()}) {
        RunProgram(inputs);
        ExpectSame({Times, LastYearFailure}, CalculateYear(inputs));
        EXPECT_EQ(CalcFailed, LastYearFailure ? -1 : 0);
    }
}

TEST_F(CalculateYearTest, ProgramsStateIsLeftAlone) {
    RunProgram(Jakarta());
    const YearTimes before = Times;
    const YearConstants constants = CurrentYearConstants;
    CalculateYear(NorthOfTwilight());
    EXPECT_EQ(Times, before);
    EXPECT_EQ(CalcFailed, 0);
    EXPECT_EQ(LastYearFailure, std::nullopt);
    EXPECT_EQ(CurrentYearConstants, constants);
    EXPECT_TRUE(platform.dialogs.messages.empty());
    EXPECT_EQ(platform.loop.Pumps(), 0);
}

TEST_F(CalculateYearTest, RunInsideAnotherIsTheSameAsAlone) {
    const YearTable alone = CalculateYear(Jakarta());
    RunProgram(Jakarta());
    const YearTimes undisturbed = Times;
    RunProgram(Sydney(), [&](double percent) {
        if (percent > 30.0 && percent < 31.0) {
            ExpectSame(CalculateYear(Jakarta()), alone);
        }
    });
    ExpectSame({Times, LastYearFailure}, CalculateYear(Sydney()));
    EXPECT_EQ(undisturbed, alone.times);
}

// Day by day by turns: neither begins a day before the other has ended the one before.
TEST(FillYear, TwoPlacesByTurnsAreTheSameAsAlone) {
    std::barrier turn(2);
    const auto run = [&turn](const YearInputs& inputs) {
        YearTable table;
        table.failure = FillYear(
            YearConstantsOf(inputs.year), inputs, {0, 365}, [&](double) { turn.arrive_and_wait(); },
            table.times);
        return table;
    };
    YearInputs sydney = Sydney();
    sydney.year = 2025;
    auto there = std::async(std::launch::async, run, Jakarta());
    ExpectSame(run(sydney), CalculateYear(sydney));
    ExpectSame(there.get(), CalculateYear(Jakarta()));
}

// What a click changes while the bar grows counts from the next day on.
TEST(FillYear, EachDayIsWorkedOutFromTheInputsOfThen) {
    YearInputs inputs = Jakarta();
    YearTimes times{};
    FillYear(
        YearConstantsOf(2026), inputs, {0, 365},
        [&](double percent) { inputs.method.asrRatio = percent < 50.0 ? 2.0 : 1.0; }, times);
    const YearTimes second = CalculateYear(Jakarta()).times;
    EXPECT_EQ(RowOf(times, 181), RowOf(second, 181));
    EXPECT_LT(times[kAsr][182], second[kAsr][182] - 0.5);
}

}  // namespace
}  // namespace horavex
