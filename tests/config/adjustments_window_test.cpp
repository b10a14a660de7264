#include "config/adjustments_window.h"

#include <algorithm>

#include "config/authorities.h"
#include "config/commit.h"
#include "config/settings_window.h"
#include "config/wizard.h"
#include "config/year_options.h"
#include "engine/day_driver.h"
#include "engine/year_table.h"
#include "lang/language_pack.h"
#include "lang/own_digits.h"
#include "lang/pack_keys.h"
#include "store/city_search.h"
#include "store/face_options.h"
#include "store/location_files.h"
#include "store/options.h"
#include "store/register.h"
#include "store/stored_values.h"
#include "support/program_test.h"
#include "windows/frm_adjust.h"
#include "windows/frm_wizard.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

struct AdjustmentsTest : ProgramTest {
    AdjustmentsTest() { StartAgain(); }

    /// A midsummer day, whose night in Oslo has no twilight of 18 degrees.
    void GoToOslo() {
        SetClock(2026, 6, 21, 12, 0, 0);
        ActiveSettings.CityIndex = SearchCities(ListCities(), "oslo").at(0).city->cityIndex;
        ActiveCityText = LookupLocation(ActiveSettings.CityIndex, ActiveLocation);
        ActiveSettings.TimeZone = 2.0;
        ActiveSettings.FajrAngle = 3.0;
        ActiveIshaAngle = 3.0;
        CopyActiveToWorking();
        IshaAngle = ActiveIshaAngle;
        SetAcceptedAgain();
        platform.dialogs.messages.clear();
    }

    static void Open() { frmMain->mnuAdjustments.UserClick(); }

    int RowOf(const std::string& method) const {
        const auto& items = form.cboMethod.Items();
        const auto found = std::ranges::find(items, method);
        return found == items.end() ? -1 : static_cast<int>(found - items.begin());
    }

    std::vector<std::string> Times() const {
        std::vector<std::string> times;
        for (int prayer = 0; prayer < 6; ++prayer) {
            times.push_back(form.lblTime(prayer).Caption());
        }
        return times;
    }

    static std::vector<std::string> FaceTimes() {
        std::vector<std::string> times;
        for (int prayer = 0; prayer < 6; ++prayer) {
            times.push_back(frmMain->lblTime(prayer).Caption());
        }
        return times;
    }

    static std::string StoredOption(const char* name) {
        std::string text;
        CRegister().REGGetSetting(kLocalMachine, kOptionsKey, name, "absent", text);
        return text;
    }

    AdjustForm& form = *frmAdjust;
};

TEST_F(AdjustmentsTest, OpensFromBothMenusAndFromTheSettingsWindow) {
    frmMain->mnuPopAdjustments.UserClick();
    EXPECT_TRUE(form.Visible());
    EXPECT_TRUE(form.IsModal());
    EXPECT_EQ(form.Owner(), &*frmMain);
    form.cmdCancel.UserClick();
    EXPECT_FALSE(form.IsLoaded());
    Open();
    form.UserClose();
    ShowSettingsWindow();
    HoravexMainForm->cmdAdjustments.UserClick();
    EXPECT_EQ(form.Owner(), &*HoravexMainForm);
}

TEST_F(AdjustmentsTest, ShowWhatIsInForce) {
    SaveOption(option::kHighLatitudeRule, HighLatitudeRule::kAngle);
    SaveOption(option::kIshaIntervalRamadan, 120);
    SaveOption(option::kMaghribAngle, 4.25);
    SaveOption(option::kOffsets[kAsr], -3);
    SaveOption(option::kHijriCalendar, HijriSource::kUmmAlQura);
    SaveOption(option::kHijriAdjustment, -1);
    SaveOption(option::kSunOfTheDay, 1);
    ActiveSettings.FajrAngle = 17.75;
    Open();
    EXPECT_EQ(form.lblShownFajrAngle.Caption(), "17.75°");
    EXPECT_EQ(form.cboRule.Text(), "angle/60 of the night");
    EXPECT_EQ(form.lblShownIshaInterval.Caption(), "by its angle");
    EXPECT_EQ(form.hsIshaRamadan.Value(), 120);
    EXPECT_EQ(form.lblShownIshaRamadan.Caption(), "120 min");
    EXPECT_EQ(form.lblShownMaghribAngle.Caption(), "4.25°");
    EXPECT_EQ(form.lblShownOffset(kAsr).Caption(), "\u22123 min");
    EXPECT_EQ(form.cboCalendar.Text(), "Umm al-Qura");
    EXPECT_EQ(form.cboDays.Text(), "-1");
    EXPECT_EQ(form.chkSunOfTheDay.Value(), 1);
}

TEST_F(AdjustmentsTest, WithoutAnyTheControlsSayWhatCountsInstead) {
    Open();
    EXPECT_EQ(form.cboRule.Text(), "none");
    EXPECT_EQ(form.lblShownIshaInterval.Caption(), "by its angle");
    EXPECT_EQ(form.lblShownIshaRamadan.Caption(), "as in other months");
    EXPECT_EQ(form.lblShownMaghribAngle.Caption(), "at sunset");
    EXPECT_EQ(form.lblShownOffset(kFajr).Caption(), "0 min");
    EXPECT_EQ(form.cboCalendar.Text(), "arithmetic");
    EXPECT_EQ(form.cboDays.Text(), "0");
    EXPECT_EQ(form.chkSunOfTheDay.Value(), 0);
}

TEST_F(AdjustmentsTest, MethodOfTheCountryComesFirstAndSaysSo) {
    Open();
    EXPECT_THAT(form.cboMethod.Items(), SizeIs(Authorities().size() + 1));
    EXPECT_EQ(form.cboMethod.ListItem(0), "custom");
    EXPECT_EQ(form.cboMethod.ListItem(1), "Umm al-Qura University, Mecca (usual in Saudi Arabia)");
    EXPECT_EQ(RowOf("Umm al-Qura University, Mecca"), -1) << "it stands there once";
}

TEST_F(AdjustmentsTest, MethodFillsItsFields) {
    Open();
    form.cboMethod.UserSelect(1);
    EXPECT_EQ(form.lblShownFajrAngle.Caption(), "18.5°");
    EXPECT_EQ(form.hsIshaInterval.Value(), 90);
    EXPECT_EQ(form.hsIshaRamadan.Value(), 120);
    EXPECT_FALSE(form.hsIshaAngle.Enabled()) << "an interval leaves it without effect";
    form.cboMethod.UserSelect(RowOf("Institute of Geophysics, University of Tehran"));
    EXPECT_EQ(form.lblShownFajrAngle.Caption(), "17.7°");
    EXPECT_EQ(form.lblShownIshaAngle.Caption(), "14°");
    EXPECT_EQ(form.lblShownMaghribAngle.Caption(), "4.5°");
    EXPECT_TRUE(form.hsIshaAngle.Enabled());
    form.cboMethod.UserSelect(RowOf("Diyanet İşleri Başkanlığı, Turkey"));
    EXPECT_EQ(form.hsOffset(kShurooq).Value(), -7);
    EXPECT_EQ(form.lblShownOffset(kMaghrib).Caption(), "+7 min");
}

TEST_F(AdjustmentsTest, FieldMovedByHandLeavesTheMethod) {
    Open();
    form.cboMethod.UserSelect(RowOf("Grande Mosquée de Paris"));
    EXPECT_EQ(form.cboMethod.Text(), "Grande Mosquée de Paris")
        << "others with the same figures do not take its place";
    form.hsFajrAngle.UserSlide(173);
    EXPECT_EQ(form.cboMethod.Text(), "custom");
    EXPECT_EQ(form.lblShownFajrAngle.Caption(), "17.3°");
    form.hsFajrAngle.UserDrag(180);
    EXPECT_NE(form.cboMethod.Text(), "custom") << "the figures of a method again";
}

TEST_F(AdjustmentsTest, AnglesHaveTheRangeOfTheLatitudeAndOneOfTheirOwnUnderARule) {
    GoToOslo();
    Open();
    const int karachi = RowOf("University of Islamic Sciences, Karachi");
    EXPECT_EQ(form.hsFajrAngle.Max(), 40);
    EXPECT_EQ(form.cboMethod.ItemRefusal(karachi),
              "Without a rule for high latitudes the angles of this place go from 3 to 4 degrees");
    form.cboRule.UserSelect(1);
    EXPECT_EQ(form.hsFajrAngle.Min(), 40);
    EXPECT_EQ(form.hsFajrAngle.Max(), 200);
    EXPECT_EQ(form.cboMethod.ItemRefusal(karachi), "");
    EXPECT_EQ(form.lblShownFajrAngle.Caption(), "3°") << "a range moves no angle";
}

TEST_F(AdjustmentsTest, ChosenRuleIsExplained) {
    Open();
    std::vector<std::string> sentences;
    for (int rule = 0; rule < form.cboRule.ListCount(); ++rule) {
        form.cboRule.UserSelect(rule);
        sentences.push_back(form.lblShownRule.Caption());
    }
    EXPECT_THAT(sentences,
                ElementsAre(StartsWith("A year with nights"), HasSubstr("middle"),
                            HasSubstr("seventh"), HasSubstr("sixtieth"), HasSubstr("last day")));
}

TEST_F(AdjustmentsTest, TodayFollowsTheControlsAndNothingElseDoes) {
    const auto face = FaceTimes();
    Open();
    EXPECT_EQ(Times(), face);
    const auto accepted = TodayTimes;
    form.hsOffset(kZuhr).UserDrag(2);
    EXPECT_EQ(form.lblTime(kZuhr).Caption(),
              platform.formats.MediumTime(accepted[kZuhr] + 2.0 / 1440.0));
    form.cboMethod.UserSelect(1);
    EXPECT_EQ(form.lblTime(kIsha).Caption(),
              platform.formats.MediumTime(accepted[kMaghrib] + 90.0 / 1440.0));
    EXPECT_EQ(TodayTimes, accepted);
    EXPECT_EQ(FaceTimes(), face);
    EXPECT_EQ(StoredOption("Offset Zuhr"), "absent");
}

TEST_F(AdjustmentsTest, TimeByARuleIsMarkedAndOneBeyondMidnightSaysItsDay) {
    GoToOslo();
    Open();
    form.cboRule.UserSelect(1);
    form.cboMethod.UserSelect(RowOf("Muslim World League (usual in Norway)"));
    EXPECT_THAT(form.lblTime(kFajr).Caption(), EndsWith(" †"));
    EXPECT_THAT(form.lblTime(kIsha).Caption(), EndsWith(", next day †"));
    EXPECT_THAT(form.lblShownNote.Caption(), HasSubstr("middle of the night"));
    EXPECT_THAT(form.lblTime(kZuhr).Caption(), testing::Not(HasSubstr("†")));
}

TEST_F(AdjustmentsTest, YearThatCannotBeCalculatedIsSaidWithoutABox) {
    GoToOslo();
    Open();
    form.cboRule.UserSelect(1);
    form.hsFajrAngle.UserSlide(180);
    EXPECT_THAT(form.lblShownNote.Caption(), StartsWith("Times marked"));
    form.cboRule.UserSelect(0);
    EXPECT_THAT(form.lblShownNote.Caption(), StartsWith("With these values the year cannot"));
    EXPECT_THAT(Times(), testing::Each("--"));
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
}

TEST_F(AdjustmentsTest, SunOfTheDayShowsAndIsStored) {
    SetClock(2028, 3, 10, 12, 0, 0);
    SetAcceptedAgain();
    const auto face = TodayTimes;
    Open();
    form.chkSunOfTheDay.UserClick();
    form.cmdOK.UserClick();
    EXPECT_EQ(StoredOption("Sun Of The Day"), "1");
    EXPECT_NE(TodayTimes, face);
}

TEST_F(AdjustmentsTest, WizardThatIsOpenComesUpInTheirPlace) {
    ShowWizard();
    frmMain->mnuAdjustments.UserClick();
    EXPECT_FALSE(form.IsLoaded());
    EXPECT_TRUE(frmWizard->IsLoaded());
}

TEST_F(AdjustmentsTest, TimesAroundTheDayAreSwitchedByABox) {
    Open();
    form.chkAroundTheDay.UserClick();
    form.cmdOK.UserClick();
    EXPECT_EQ(StoredOption("Around The Day"), "1");
    Open();
    EXPECT_EQ(form.chkAroundTheDay.Value(), 1);
    form.cmdReset.UserClick();
    EXPECT_EQ(form.chkAroundTheDay.Value(), 0);
}

TEST_F(AdjustmentsTest, DigitsOfTheLanguageAreSwitchedByABoxWithOK) {
    currentLanguage = "Arabic";
    Open();
    EXPECT_EQ(form.chkOwnDigits.Value(), 0);
    EXPECT_TRUE(form.chkOwnDigits.Enabled());
    form.chkOwnDigits.UserClick();
    EXPECT_EQ(InShownDigits("12"), "12");
    form.cmdOK.UserClick();
    EXPECT_EQ(InShownDigits("12"), "١٢");
    EXPECT_EQ(StoredOption("Own Digits"), "1");
    Open();
    EXPECT_EQ(form.chkOwnDigits.Value(), 1);
    form.chkOwnDigits.UserClick();
    form.cmdOK.UserClick();
    EXPECT_EQ(InShownDigits("12"), "12");
    EXPECT_EQ(StoredOption("Own Digits"), "absent");
}

TEST_F(AdjustmentsTest, LanguageWithoutDigitsOfItsOwnSaysWhyTheyCannotBeChosen) {
    SaveOption(option::kOwnDigits, 1);
    currentLanguage = "English";
    Open();
    EXPECT_FALSE(form.chkOwnDigits.Enabled());
    EXPECT_EQ(form.chkOwnDigits.ToolTipText(), "The language in use has no digits of its own");
    form.cmdOK.UserClick();
    EXPECT_EQ(StoredOption("Own Digits"), "1") << "the choice waits for a language that has them";
}

TEST_F(AdjustmentsTest, WhatASecondStartDoesIsSwitchedByABoxWithOK) {
    Open();
    EXPECT_EQ(form.chkShowRunning.Value(), 0);
    form.chkShowRunning.UserClick();
    form.cmdCancel.UserClick();
    EXPECT_EQ(StoredOption("Show Running"), "absent");
    Open();
    form.chkShowRunning.UserClick();
    form.cmdOK.UserClick();
    EXPECT_EQ(StoredOption("Show Running"), "1");
    Open();
    EXPECT_EQ(form.chkShowRunning.Value(), 1);
    form.chkShowRunning.UserClick();
    form.cmdOK.UserClick();
    EXPECT_EQ(StoredOption("Show Running"), "absent");
}

TEST_F(AdjustmentsTest, HijriDateFollowsItsControls) {
    Open();
    EXPECT_EQ(form.lblShownHijri.Caption(), "10 Jamad Thani 1448");
    form.cboCalendar.UserSelect(1);
    EXPECT_EQ(form.lblShownHijri.Caption(), "11 Jamad Thani 1448");
    form.cboDays.UserSelect(4);
    EXPECT_EQ(form.lblShownHijri.Caption(), "13 Jamad Thani 1448");
}

TEST_F(AdjustmentsTest, OKStoresTheOptionsAndTheAnglesAndTheFaceGoesByThem) {
    Open();
    form.cboMethod.UserSelect(1);
    form.cboRule.UserSelect(2);
    form.cboCalendar.UserSelect(1);
    const auto preview = Times();
    form.cmdOK.UserClick();
    EXPECT_FALSE(form.IsLoaded());
    EXPECT_EQ(FaceTimes(), preview);
    EXPECT_EQ(StoredOption("Isha Interval"), "90");
    EXPECT_EQ(StoredOption("Isha Interval Ramadan"), "120");
    EXPECT_EQ(StoredOption("High Latitude Rule"), "seventh");
    EXPECT_EQ(StoredOption("Hijri Calendar"), "umm-al-qura");
    EXPECT_EQ(ActiveSettings.FajrAngle, 18.5);
    EXPECT_EQ(Settings.FajrAngle, 18.5);
    EXPECT_FALSE(HoravexMainForm->Visible());
    LoadActiveSettings();
    EXPECT_EQ(ActiveSettings.FajrAngle, 18.5) << "on disk";
}

TEST_F(AdjustmentsTest, OKTakesTheIshaAngleToo) {
    Open();
    form.cboMethod.UserSelect(RowOf("Islamic Society of North America"));
    form.cmdOK.UserClick();
    EXPECT_EQ(ActiveIshaAngle, 15.0);
    EXPECT_EQ(IshaAngle, 15.0);
    EXPECT_EQ(Stored("Isha Dep Angle"), "15");
}

TEST_F(AdjustmentsTest, OKShowsProgressForItsSeconds) {
    Open();
    const double before = platform.clock.SteadySeconds();
    form.cmdOK.UserClick();
    EXPECT_GE(platform.clock.SteadySeconds() - before, 3.0);
}

TEST_F(AdjustmentsTest, WhatIsNoneStaysAbsent) {
    Open();
    form.hsOffset(kFajr).UserSlide(2);
    form.cmdOK.UserClick();
    EXPECT_EQ(StoredOption("Offset Fajr"), "2");
    for (const char* name :
         {"High Latitude Rule", "Isha Interval", "Isha Interval Ramadan", "Maghrib Angle",
          "Offset Isha", "Hijri Calendar", "Hijri Adjustment"}) {
        EXPECT_EQ(StoredOption(name), "absent") << name;
    }
}

TEST_F(AdjustmentsTest, CancelAndCloseChangeNothing) {
    const auto face = FaceTimes();
    const SettingsRecord accepted = ActiveSettings;
    for (const bool close : {false, true}) {
        Open();
        form.cboMethod.UserSelect(1);
        form.hsOffset(kFajr).UserSlide(10);
        close ? form.UserClose() : form.cmdCancel.UserClick();
        EXPECT_FALSE(form.IsLoaded());
        EXPECT_EQ(ActiveSettings, accepted);
        EXPECT_EQ(Settings, accepted);
        EXPECT_EQ(FaceTimes(), face);
        EXPECT_EQ(StoredOption("Offset Fajr"), "absent");
    }
    Open();
    EXPECT_EQ(form.hsOffset(kFajr).Value(), 0) << "nothing is remembered";
}

TEST_F(AdjustmentsTest, AnglesHaveTheDecimalMarkOfThePack) {
    currentLanguage = "German";
    Open();
    form.hsFajrAngle.UserSlide(175);
    EXPECT_EQ(form.lblShownFajrAngle.Caption(), "17,5°");
}

TEST_F(AdjustmentsTest, ResetLeavesNoOptionAndBothAngles) {
    SaveOption(option::kIshaInterval, 90);
    SaveOption(option::kOffsets[kAsr], 4);
    Open();
    form.hsFajrAngle.UserSlide(170);
    form.cmdReset.UserClick();
    EXPECT_EQ(form.lblShownIshaInterval.Caption(), "by its angle");
    EXPECT_EQ(form.hsOffset(kAsr).Value(), 0);
    EXPECT_EQ(form.lblShownFajrAngle.Caption(), "17°");
    form.cmdOK.UserClick();
    EXPECT_EQ(ReadRuleOptions(), YearOptions{});
    EXPECT_EQ(StoredOption("Isha Interval"), "absent");
    EXPECT_EQ(StoredOption("Offset Asr"), "absent");
}

struct RefusedAdjustmentsTest : AdjustmentsTest {
    RefusedAdjustmentsTest() {
        GoToOslo();
        SaveOption(option::kOffsets[kFajr], 2);
        SetAcceptedAgain();
        Open();
        form.hsOffset(kFajr).UserSlide(9);
        form.cboRule.UserSelect(1);
        form.hsFajrAngle.UserSlide(180);
        form.hsIshaAngle.UserSlide(170);
        form.cboRule.UserSelect(0);
    }
};

TEST_F(RefusedAdjustmentsTest, AreToldOnceAndStayToBeMended) {
    form.cmdOK.UserClick();
    EXPECT_THAT(platform.dialogs.messages, SizeIs(1));
    EXPECT_TRUE(form.Visible());
    EXPECT_TRUE(form.Enabled());
    EXPECT_EQ(form.lblShownFajrAngle.Caption(), "18°");
    EXPECT_FALSE(HoravexMainForm->Visible());
}

TEST_F(RefusedAdjustmentsTest, LeaveOptionsAnglesAndTheFaceAsTheyWere) {
    const auto face = FaceTimes();
    const SettingsRecord accepted = ActiveSettings;
    form.cmdOK.UserClick();
    EXPECT_EQ(CalcFailed, -1);
    EXPECT_EQ(StoredOption("Offset Fajr"), "2");
    EXPECT_EQ(ActiveSettings, accepted);
    EXPECT_EQ(Settings, accepted);
    EXPECT_EQ(ActiveIshaAngle, 3.0);
    EXPECT_EQ(IshaAngle, 3.0);
    EXPECT_EQ(Stored("Isha Dep Angle"), "3") << "the next start goes by it";
    LoadWorkingSettings();
    EXPECT_EQ(Settings.FajrAngle, 3.0);
    EXPECT_EQ(FaceTimes(), face);
}

TEST_F(AdjustmentsTest, OpenSettingsWindowKeepsItsEditsAndTakesTheAngles) {
    ShowSettingsWindow();
    HoravexMainForm->hsAlarm.UserSlide(60);
    HoravexMainForm->txtTimeZone.SetText("4");
    HoravexMainForm->cmdAdjustments.UserClick();
    form.cboMethod.UserSelect(RowOf("Islamic Society of North America"));
    form.cmdOK.UserClick();
    EXPECT_TRUE(HoravexMainForm->Visible());
    EXPECT_EQ(Settings.AlarmTime, 60);
    EXPECT_NE(ActiveSettings.AlarmTime, 60);
    EXPECT_EQ(HoravexMainForm->txtTimeZone.Text(), "4");
    EXPECT_EQ(HoravexMainForm->hsDepr.Value(), 15);
    EXPECT_EQ(HoravexMainForm->hsDepr2.Value(), 15);
    HoravexMainForm->UserClose();
    EXPECT_EQ(HoravexMainForm->hsDepr.Value(), 15);
}

TEST_F(AdjustmentsTest, WhileACommitRunsTheWindowIsShutAndNoneOpens) {
    Open();
    bool enabled = true;
    bool closed = true;
    platform.loop.After(1.0, [&] {
        enabled = form.Enabled();
        form.UserClose();
        closed = !form.IsLoaded();
    });
    form.cmdOK.UserClick();
    EXPECT_FALSE(enabled);
    EXPECT_FALSE(closed);
    EXPECT_FALSE(form.IsLoaded()) << "the commit's end closes it";
    platform.loop.After(1.0, [&] {
        OpenAdjustments(*frmMain);
        closed = !form.IsLoaded();
    });
    SetAcceptedAgain();
    EXPECT_TRUE(closed);
    EXPECT_TRUE(form.Enabled());
}

TEST_F(AdjustmentsTest, SpeakThePacksLanguage) {
    currentLanguage = "German";
    Open();
    EXPECT_EQ(form.Caption(), "Anpassungen");
    EXPECT_EQ(form.cboMethod.ListItem(1),
              "Umm-al-Qura-Universität, Mekka (üblich in: Saudi Arabia)");
    EXPECT_EQ(form.cboRule.Text(), "keine");
    EXPECT_EQ(form.lblShownMaghribAngle.Caption(), "bei Sonnenuntergang");
}

TEST(AdjustmentsVocabulary, PacksHaveANameForEachAuthority) {
    std::vector<std::string> keys;
    for (const Authority& authority : Authorities()) {
        keys.emplace_back(authority.key);
    }
    const auto& sections = PackVocabularies();
    const auto methods = std::ranges::find(sections, "methods", &PackSection::name);
    ASSERT_NE(methods, sections.end());
    EXPECT_THAT(methods->keys, testing::UnorderedElementsAreArray(keys));
}

}  // namespace
}  // namespace horavex
