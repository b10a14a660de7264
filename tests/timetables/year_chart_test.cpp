#include "timetables/year_chart.h"

#include "engine/solar_event.h"
#include "timetables/sample_timetable.h"

namespace horavex {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::SizeIs;

// A chart of these sizes has a pixel a day and 20 of them an hour: days from 50 to 415 across,
// hours from 10 to 490 down.
constexpr double kWidth = (50.0 + 365.0 + 10.0) * 15.0;
constexpr double kHeight = (10.0 + 480.0 + 30.0) * 15.0;

class YearChartTest : public TimetableTest {
protected:
    Drawing Draw() {
        table = TakeTimetable();
        return YearChart(table, words, kWidth, kHeight).Draw(platform.clock.Today());
    }

    template <class Step>
    static std::vector<Step> StepsOf(const Drawing& drawing) {
        std::vector<Step> steps;
        for (const DrawingStep& step : drawing) {
            if (const auto* found = std::get_if<Step>(&step)) {
                steps.push_back(*found);
            }
        }
        return steps;
    }

    /// The place in pixels of the days and hours.
    static Point At(double row, double hours) {
        return {(50.0 + row) * 15.0, (10.0 + 20.0 * hours) * 15.0};
    }

    TimetableWords words = TakeTimetableWords();
    Timetable table;
};

TEST_F(YearChartTest, NightLiesUnderFiveBands) {
    const auto areas = StepsOf<PolygonStep>(Draw());
    ASSERT_THAT(areas, SizeIs(7)) << "paper, night and five bands";
    EXPECT_THAT(areas[1].corners, ElementsAre(At(0, 0), At(365, 0), At(365, 24), At(0, 24)));
    constexpr double kEdges[][2] = {
        {5.0, 6.5}, {6.5, 12.0}, {12.0, 15.25}, {15.25, 18.0}, {18.0, 19.5}};
    for (std::size_t band = 0; band < 5; ++band) {
        const auto& corners = areas[2 + band].corners;
        ASSERT_THAT(corners, SizeIs(365 * 4));
        EXPECT_EQ(corners.front(), At(0, kEdges[band][0]));
        EXPECT_EQ(corners.back(), At(0, kEdges[band][1]));
    }
}

TEST_F(YearChartTest, DaylightSavingIsAStepOfAnHour) {
    for (auto& column : Times) {
        for (std::size_t row = 120; row < 273; ++row) {
            column[row] += 1.0;
        }
    }
    const auto corners = StepsOf<PolygonStep>(Draw()).at(2).corners;
    EXPECT_THAT(corners, Contains(At(120, 5.0)));
    EXPECT_THAT(corners, Contains(At(120, 6.0)));
    EXPECT_THAT(corners, Contains(At(273, 6.0)));
    EXPECT_THAT(corners, Contains(At(273, 5.0)));
}

TEST_F(YearChartTest, TimeThatDoesNotExistInterruptsItsBands) {
    Times[kIsha][100] = NoEvent;
    const auto areas = StepsOf<PolygonStep>(Draw());
    ASSERT_THAT(areas, SizeIs(8));
    EXPECT_THAT(areas[6].corners, SizeIs(100 * 4));
    EXPECT_THAT(areas[7].corners, SizeIs(264 * 4));
}

TEST_F(YearChartTest, HourBehindMidnightIsCutOff) {
    Times[kIsha].fill(25.0);
    EXPECT_EQ(StepsOf<PolygonStep>(Draw()).at(6).corners.back(), At(0, 24));
}

TEST_F(YearChartTest, LineStandsInTheMiddleOfToday) {
    const auto lines = StepsOf<LineStep>(Draw());
    EXPECT_EQ(lines.back().from, At(324.5, 0));
    EXPECT_EQ(lines.back().to, At(324.5, 24));
    EXPECT_EQ(lines.back().pen.width, 2);
}

TEST_F(YearChartTest, OtherYearHasNoLine) {
    TakeYear(2027);
    for (const LineStep& line : StepsOf<LineStep>(Draw())) {
        EXPECT_EQ(line.pen.width, 1);
    }
}

TEST_F(YearChartTest, HoursAndTimesHaveTheirNames) {
    std::vector<std::string> texts;
    for (const TextStep& text : StepsOf<TextStep>(Draw())) {
        texts.push_back(text.text);
    }
    EXPECT_THAT(texts,
                ElementsAre("00:00", "03:00", "06:00", "09:00", "12:00", "15:00", "18:00", "21:00",
                            "24:00", "Fajr", "Shurooq", "Zuhr", "Asr", "Maghrib", "Isha"));
}

TEST_F(YearChartTest, NamesStandBetweenTheCurvesAndTheLines) {
    const auto texts = StepsOf<TextStep>(Draw());
    EXPECT_EQ(texts.at(9).at, (Point{At(2, 5.5).x, At(2, 5.5).y - 120.0})) << "not on 06:00";
    EXPECT_EQ(texts.at(10).at, (Point{At(2, 7.25).x, At(2, 7.25).y - 120.0})) << "below its curve";
}

TEST_F(YearChartTest, MonthsAreNamedInARowByWholeOrBriefNames) {
    words.shortMonths[1] = "Feb";
    const auto rows = StepsOf<TextRowStep>(Draw());
    ASSERT_THAT(rows, SizeIs(1));
    ASSERT_THAT(rows[0].entries, SizeIs(12));
    EXPECT_EQ(rows[0].entries[1].text, "February");
    EXPECT_EQ(rows[0].entries[1].brief, "Feb");
    EXPECT_EQ(rows[0].entries[1].at, (Point{At(31, 24).x + 30.0, At(31, 24).y + 90.0}));
    EXPECT_EQ(rows[0].room, 24.0 * 15.0) << "four pixels less than February";
}

TEST_F(YearChartTest, PlaceOfThePictureIsADay) {
    table = TakeTimetable();
    const YearChart chart(table, words, kWidth, kHeight);
    EXPECT_EQ(chart.RowAt(At(0.0, 12.0)), 0U);
    EXPECT_EQ(chart.RowAt(At(324.9, 3.0)), 324U);
    EXPECT_EQ(chart.RowAt(At(364.9, 3.0)), 364U);
    EXPECT_EQ(chart.RowAt(At(-0.1, 3.0)), std::nullopt);
    EXPECT_EQ(chart.RowAt(At(365.1, 3.0)), std::nullopt);
}

}  // namespace
}  // namespace horavex
