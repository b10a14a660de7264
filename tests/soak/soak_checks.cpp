#include "soak/soak_checks.h"

#include <cmath>

#include "athan/athan_state.h"
#include "athan/calls.h"
#include "base/int16.h"
#include "calendar/current_calendar.h"
#include "config/commit.h"
#include "config/year_options.h"
#include "engine/current_year.h"
#include "engine/day_driver.h"
#include "engine/moment_text.h"
#include "engine/moments.h"
#include "engine/ruled_year.h"
#include "engine/year_table.h"
#include "shell/public_state.h"
#include "shell/tray_icon.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "store/stored_values.h"
#include "windows/f_country.h"
#include "windows/f_message.h"
#include "windows/frm_adjust.h"
#include "windows/frm_date_convert.h"
#include "windows/frm_main.h"
#include "windows/frm_wizard.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

constexpr double kWindow = 10.0;      // seconds in which a prayer arrives
constexpr double kSame = 0.5 / 24.0;  // days
constexpr const char* kActive = "/program/Dat/AI.DAT";
constexpr const char* kArrived = "PrayerArrived ";

bool Comes(const Moment& moment) {
    return std::fabs(moment.hours) < NoEvent;
}

/// Those within their ten seconds at a moment that the year has, each with its own day's moment.
std::vector<Call> ArrivedAt(Date now) {
    std::vector<Call> arrived;
    const std::optional<DayView> day = TakeDayView(now);
    if (!day) {
        return arrived;
    }
    const auto add = [&](Prayer prayer, const Moment& moment) {
        const double since = SecondOfDay(now) - moment.hours * 3600.0;
        if (prayer != kShurooq && Comes(moment) && since > 0.001 && since < kWindow - 0.001) {
            arrived.push_back({CallKind::kArrival, prayer, day->date + moment.hours / 24.0});
        }
    };
    for (const auto& [prayer, moment] : day->late) {
        add(prayer, moment);
    }
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        add(static_cast<Prayer>(prayer), day->moments[prayer]);
    }
    for (const auto& [prayer, moment] : day->early) {
        add(prayer, moment);
    }
    return arrived;
}

YearInputs AcceptedInputs(const YearRules& rules) {
    return {CurrentYear, PlaceOf(ActiveLocation.City, ActiveSettings.TimeZone),
            MethodUnder(rules.moments, MethodOf(ActiveSettings, ActiveIshaAngle)),
            rules.moments.start};
}

/// Where the accepted state has no year there is nothing to compare.
void CheckYear() {
    const YearRules rules =
        PossibleRulesOfYear(ReadYearOptions(ActiveSettings.CityIndex), CurrentYear);
    const YearTable table = CalculateYear(AcceptedInputs(rules));
    if (table.failure) {
        return;
    }
    EXPECT_EQ(RuledYear.rules.moments, rules.moments) << "rules of the year";
    for (std::size_t row = 0; row < 365U + static_cast<std::size_t>(LeapFlag); ++row) {
        ASSERT_EQ(TimesOfRow(row), RowOf(table.times, row)) << "row " << row;
    }
}

void CheckFiles(TestPlatform& platform) {
    if (!platform.files.Exists(kActive)) {
        return;
    }
    const Bytes bytes = ReadWhole(platform.files, kActive);
    ASSERT_GE(bytes.size(), kSettingsRecordSize);
    SettingsBytes record;
    std::copy_n(bytes.begin(), record.size(), record.begin());
    EXPECT_EQ(DecodeSettings(record), ActiveSettings) << "the accepted record on disk";
}

void CheckWindows() {
    EXPECT_FALSE(CommitIsRunning());
    for (const Form* form : std::initializer_list<const Form*>{&*HoravexMainForm, &*frmWizard,
                                                               &*fCountry, &*frmAdjust}) {
        EXPECT_TRUE(form->Enabled()) << form->Name() << " is shut";
    }
    EXPECT_EQ(alarmActive, kFalse);
    EXPECT_FALSE(fMessage->Visible()) << "progress of nothing";
    if (!frmDateConvert->IsLoaded()) {
        EXPECT_EQ(CurrentCalendar, kGregorianCalendar);
        EXPECT_TRUE(frmMain->tmrUpdate.Running());
    }
}

}  // namespace

int ArrivalLedger::Take(Date tick, std::vector<std::string>& signals) {
    int arrivals = 0;
    for (const std::string& signal : signals) {
        if (signal.starts_with(kArrived)) {
            ++arrivals;
            ExpectToldOnce(tick, signal);
        }
    }
    signals.clear();
    return arrivals;
}

void ArrivalLedger::ExpectAllTold(Date tick) {
    for (const Call& call : ArrivedAt(tick)) {
        EXPECT_TRUE(WasCalled(call)) << kPrayerKeys[call.prayer] << " was not told";
    }
}

void ArrivalLedger::ExpectToldOnce(Date tick, const std::string& signal) {
    const std::string prayer = signal.substr(0, signal.find(' ', std::string(kArrived).size()));
    std::erase_if(told_, [&](const auto& one) { return std::fabs(one.second - tick) > kSame; });
    for (const auto& [former, at] : told_) {
        EXPECT_NE(former, prayer) << signal << ", twice, at " << std::to_string(tick) << " and "
                                  << std::to_string(at);
    }
    told_.emplace_back(prayer, tick);
}

void ArrivalLedger::Forget() {
    told_.clear();
}

void CheckWhatIsShown(const TestPlatform& platform) {
    const Date now = platform.clock.Now();
    const std::optional<DayView> day = TakeDayView(now);
    if (!day) {
        return;
    }
    EXPECT_EQ(ShownDay.date, std::floor(now));
    EXPECT_EQ(ShownDay.moments, day->moments);
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        EXPECT_EQ(TodayTimes[prayer], day->moments[prayer].hours / 24.0);
        EXPECT_EQ(frmMain->lblTime(static_cast<int>(prayer)).Caption(),
                  MomentText(day->moments[prayer]));
    }
    EXPECT_EQ(frmMain->lblCurrTime.Caption(), platform.formats.LongTime(now));
    EXPECT_EQ(platform.face.Value("_root.sNextRemaining"),
              frmMain->Label3.Caption() + " " + frmMain->lblRemaining.Caption());
    EXPECT_EQ(platform.broadcast.state, PublicState());
    EXPECT_EQ(CurrentYear, CivilFromDate(now).year);
}

void CheckWhatIsAccepted(TestPlatform& platform) {
    CheckWindows();
    CheckFiles(platform);
    CheckYear();
    EXPECT_EQ(frmMain->lblCity.Caption(), ActiveCityText);
}

}  // namespace horavex
