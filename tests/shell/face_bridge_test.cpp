#include "shell/face_bridge.h"

#include <map>

#include "base/script.h"
#include "calendar/current_calendar.h"
#include "engine/day_driver.h"
#include "engine/ruled_year.h"
#include "geo/qibla.h"
#include "lang/language_pack.h"
#include "store/city_search.h"
#include "store/location_files.h"
#include "store/location_record.h"
#include "support/program_test.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::Pair;

struct FaceBridgeTest : ProgramTest {
    FaceBridgeTest() { StartAgain(); }
};

TEST_F(FaceBridgeTest, ElevenVariablesGoOutInOrder) {
    QiblaDegrees = -137.25;
    frmMain->lblNextAthan.SetCaption("Zuhr at 12:06:28 PM");
    frmMain->lblRemaining.SetCaption("0:6:28");
    SetFlashVariables();
    EXPECT_THAT(
        platform.face.variables,
        ElementsAre(Pair("_root.iArabicDay", "10"), Pair("_root.ArabicMonth", "Jamad Thani"),
                    Pair("_root.iArabicYear", "1448"),
                    Pair("_root.sNextPrayer", "Next Athan: Zuhr at 12:06:28 PM"),
                    Pair("_root.sNextRemaining", "Remaining: 0:6:28"),
                    Pair("_root.allPrayerTime.allPrayerTimeText.sAllPrayers",
                         " Fajr:05:17 AM Shurooq:06:35 AM Zuhr:12:06 PM Asr:03:15 PM"
                         " Maghrib:05:37 PM Isha:06:55 PM"),
                    Pair("_root.icompassAngle", "-137.25"), Pair("_root.myDay", "Saturday"),
                    Pair("_root.myMonth", "November"), Pair("_root.myYear", "2026"),
                    Pair("_root.myNumber", "21")));
}

TEST_F(FaceBridgeTest, DayFollowsTheVariablesAsAValue) {
    std::vector<std::size_t> variablesBefore;
    platform.face.variables.clear();
    platform.face.onShowDay = [&](const DayView& day) {
        variablesBefore.push_back(platform.face.variables.size());
        EXPECT_EQ(day.place, ActiveCityText);
        EXPECT_EQ(day.next.prayer, 2);
        EXPECT_EQ(day.qiblaDegrees, QiblaDegrees);
    };
    ShowDay();
    EXPECT_THAT(variablesBefore, ElementsAre(11U));
}

TEST_F(FaceBridgeTest, PlaceHasItsOwnNameInTheScriptOfThePackAndClocksAreToldWhereTheyDiffer) {
    DayView day;
    platform.face.onShowDay = [&](const DayView& shown) { day = shown; };
    SetFlashVariables();
    EXPECT_EQ(day.place, ActiveCityText);
    EXPECT_EQ(day.clocks, "");
    currentLanguage = "Arabic";
    RuledYear.rules.moments.zone = {{DateSerial(2025, 12, 30), 9.5, false}};
    SetFlashVariables();
    EXPECT_THAT(day.place, testing::EndsWith(" \u00b7 " + ActiveCityText));
    EXPECT_EQ(ScriptOf(day.place), ScriptOf("\u0645"));
    EXPECT_THAT(day.clocks, testing::EndsWith(ActiveLocation.City.Name + ": UTC+9:30"));
}

// The first of the city's names in the script has a letter of Urdu.
TEST_F(FaceBridgeTest, NameInTheArabicScriptIsOneOfTheArabicLanguage) {
    DayView day;
    platform.face.onShowDay = [&](const DayView& shown) { day = shown; };
    currentLanguage = "Arabic";
    const auto cities = ListCities();
    ActiveSettings.CityIndex = SearchCities(cities, "dubai").at(0).city->cityIndex;
    ActiveCityText = LookupLocation(ActiveSettings.CityIndex, ActiveLocation);
    SetFlashVariables();
    EXPECT_THAT(day.place, testing::StartsWith("\u062f\u0628\u0649 \u00b7 "));
}

// Names with letters of other languages of the script stand before Urdu's own.
TEST_F(FaceBridgeTest, NameInUrduIsOneOfUrdu) {
    DayView day;
    platform.face.onShowDay = [&](const DayView& shown) { day = shown; };
    currentLanguage = "Urdu";
    const auto cities = ListCities();
    for (const auto& [city, name] : std::map<std::string, std::string>{
             {"cairo", "قاہرہ"}, {"dhaka", "ڈھاکہ"}, {"karachi", "کراچی"}, {"lahore", "لاہور"}}) {
        ActiveSettings.CityIndex = SearchCities(cities, city).at(0).city->cityIndex;
        ActiveCityText = LookupLocation(ActiveSettings.CityIndex, ActiveLocation);
        SetFlashVariables();
        EXPECT_THAT(day.place, testing::StartsWith(name + " \u00b7 "));
    }
}

TEST_F(FaceBridgeTest, PlaceByCoordinatesHasNoOtherName) {
    DayView day;
    platform.face.onShowDay = [&](const DayView& shown) { day = shown; };
    currentLanguage = "Arabic";
    ActiveCityText = ActiveLocation.City.Name = "My house";
    SetFlashVariables();
    EXPECT_EQ(day.place, "My house");
}

TEST_F(FaceBridgeTest, CalendarIsAsItWasAfterwards) {
    CurrentCalendar = kHijriCalendar;
    SetFlashVariables();
    EXPECT_EQ(CurrentCalendar, kHijriCalendar);
    EXPECT_EQ(platform.face.Value("_root.myYear"), "2026");
}

TEST_F(FaceBridgeTest, WithoutAPackTheMonthIsEmptyAndTheRestGoesOut) {
    currentLanguage = "Nowhere";
    SetFlashVariables();
    EXPECT_EQ(platform.face.variables.size(), 11U);
    EXPECT_EQ(platform.face.Value("_root.ArabicMonth"), "");
    EXPECT_EQ(platform.face.Value("_root.iArabicDay"), "10");
}

TEST_F(FaceBridgeTest, MonthStaysEnglishInArabicAndTheWeekdayTheSystems) {
    currentLanguage = "Arabic";
    SetFlashVariables();
    EXPECT_EQ(platform.face.Value("_root.myMonth"), "November");
    EXPECT_EQ(platform.face.Value("_root.myDay"), "Saturday");
}

TEST_F(FaceBridgeTest, HijriMonthFollowsTheLanguageOfTheMoment) {
    currentLanguage = "Arabic";
    SetFlashVariables();
    EXPECT_EQ(platform.face.Value("_root.ArabicMonth"), "جمادى الآخرة");
    currentLanguage = "English";
    SetFlashVariables();
    EXPECT_EQ(platform.face.Value("_root.ArabicMonth"), "Jamad Thani");
}

TEST_F(FaceBridgeTest, ArabicTurnsNoTextsAround) {
    currentLanguage = "ARABIC";
    frmMain->Label1.SetCaption("1");
    frmMain->lblNextAthan.SetCaption("2");
    frmMain->Label3.SetCaption("3");
    frmMain->lblRemaining.SetCaption("4");
    SetFlashVariables();
    EXPECT_EQ(platform.face.Value("_root.sNextPrayer"), "1 2");
    EXPECT_EQ(platform.face.Value("_root.sNextRemaining"), "3 4");
}

TEST_F(FaceBridgeTest, CompassIsNotRoundedAndHasTheDecimalMarkOfTheUser) {
    struct : FixedFormats {
        char DecimalMark() const override { return ','; }
    } comma;
    const Platform& own = Ports();
    const Platform ports{own.clock,     own.eventLoop,   own.files,     own.programFolder,
                         comma,         own.dialogs,     own.registry,  own.instanceGuard,
                         own.face,      own.windows,     own.tray,      own.shell,
                         own.network,   own.athanFace,   own.audioFile, own.audioPlayer,
                         own.zoneRules, own.whereabouts, own.notices,   own.mediaPlayers,
                         own.session,   own.almanac,     own.broadcast};
    InstallPlatform(&ports);
    QiblaDegrees = 58.4817263540912;
    SetFlashVariables();
    EXPECT_EQ(platform.face.Value("_root.icompassAngle"), "58,4817263540912");
}

TEST_F(FaceBridgeTest, DaysOfOneDigitHaveNoZeroBeforeThem) {
    SetClock(2027, 1, 9, 12, 0, 0);
    SetFlashVariables();
    EXPECT_EQ(platform.face.Value("_root.myNumber"), "9");
    SetClock(2027, 1, 10, 12, 0, 0);
    SetFlashVariables();
    EXPECT_EQ(platform.face.Value("_root.iArabicDay"), "1");
}

TEST_F(FaceBridgeTest, SameValuesAreSentAgain) {
    SetFlashVariables();
    SetFlashVariables();
    EXPECT_EQ(platform.face.variables.size(), 22U);
}

struct FaceCommandTest : FaceBridgeTest {
    void Command(const std::string& command) { platform.face.onFSCommand(command, "anything"); }
};

TEST_F(FaceCommandTest, MenusPopUpAtTheirPlaces) {
    Command("IDC_FS_azan");
    Command("IDC_FS_settings");
    Command("IDC_FS_tools");
    Command("IDC_FS_help");
    EXPECT_THAT(
        platform.desktop.calls,
        ElementsAre("PopUpMenu frmMain mnuAthan 50 135", "PopUpMenu frmMain mnuSettings 100 135",
                    "PopUpMenu frmMain mnuTools 150 135", "PopUpMenu frmMain mnuHelp 200 135"));
}

TEST_F(FaceCommandTest, ClockAndDayOpenTheDateAndTimeTool) {
    Command("IDC_FS_Clock");
    Command("IDC_FS_Day");
    EXPECT_THAT(platform.desktop.calls, ElementsAre("OpenDateTimeTool", "OpenDateTimeTool"));
}

TEST_F(FaceCommandTest, DragStartsADragOfTheWindow) {
    Command("IDC_FS_drag");
    EXPECT_THAT(platform.desktop.calls, ElementsAre("StartDrag frmMain"));
}

TEST_F(FaceCommandTest, CloseHidesAndMinimizeMinimises) {
    Command("IDC_FS_minimize");
    EXPECT_EQ(frmMain->State(), WindowState::kMinimized);
    Command("IDC_FS_close");
    EXPECT_FALSE(frmMain->Visible());
}

TEST_F(FaceCommandTest, QiblaAndAllTimesAreTheirMenuEntries) {
    std::vector<std::string> chosen;
    frmMain->mnuQibla.onClick = [&] { chosen.push_back("qibla"); };
    frmMain->mnuPrayerTimes.onClick = [&] { chosen.push_back("times"); };
    Command("IDC_FS_Qibla");
    Command("IDC_FS_allTimes");
    EXPECT_THAT(chosen, ElementsAre("qibla", "times"));
}

TEST_F(FaceCommandTest, PlaceIsTheMenuEntryOfTheSettings) {
    int times = 0;
    frmMain->mnumSettings.onClick = [&times] { ++times; };
    Command("IDC_FS_place");
    EXPECT_EQ(times, 1);
}

TEST_F(FaceCommandTest, OtherSpellingsAreIgnored) {
    Command("IDC_FS_CLOSE");
    Command("idc_fs_close");
    Command("");
    EXPECT_TRUE(frmMain->Visible());
    EXPECT_THAT(platform.desktop.calls, testing::IsEmpty());
}

}  // namespace
}  // namespace horavex
