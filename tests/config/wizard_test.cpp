#include "config/wizard.h"

#include "base/fault.h"
#include "base/int16.h"
#include "config/settings_controls.h"
#include "config/settings_window.h"
#include "config/wizard_preview.h"
#include "engine/current_year.h"
#include "engine/day_driver.h"
#include "engine/place.h"
#include "lang/language_pack.h"
#include "store/angle_band.h"
#include "store/city_search.h"
#include "store/location_files.h"
#include "store/stored_values.h"
#include "support/program_test.h"
#include "windows/f_country.h"
#include "windows/frm_wizard.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::StartsWith;

struct WizardTest : ProgramTest {
    WizardTest() { StartAgain(); }

    /// Lets the modal picker be acted on while it is open.
    struct ModalScript : FormHost {
        ModalScript() { InstallFormHost(this); }
        ~ModalScript() override { InstallFormHost(nullptr); }
        void Loaded(Form&) override {}
        void Unloaded(Form&) override {}
        void BroughtUp(Form&) override {}
        void RunModal(Form& form) override { act(form); }
        std::function<void(Form&)> act = [](Form&) {};
    };

    static std::int16_t IndexOf(const std::string& text) {
        const auto cities = ListCities();
        return SearchCities(cities, text).at(0).city->cityIndex;
    }

    void GoTo(int page) {
        while (form.currentPage < page) {
            const std::int16_t before = form.currentPage;
            form.cmdNext.UserClick();
            ASSERT_EQ(form.currentPage, before + 1);
        }
    }

    /// Picks a city with the picker's own controls.
    void PickCity(const std::string& name) {
        ModalScript script;
        script.act = [&](Form&) {
            EXPECT_TRUE(fCountry->IsModal());
            EXPECT_EQ(fCountry->Owner(), &*frmWizard);
            fCountry->txtSearch.UserType(name);
            fCountry->lstFound.UserSelect(0);
            fCountry->cmdOK.UserClick();
        };
        form.cmdSetCity.UserClick();
    }

    std::vector<int> PagesOnView() const {
        std::vector<int> pages;
        for (int page = 1; page <= 4; ++page) {
            if (form.Frame(page).Visible() && form.Frame2(page).Visible()) {
                pages.push_back(page);
            }
        }
        return pages;
    }

    std::string Preview() const {
        std::string times;
        for (int prayer = 0; prayer < 6; ++prayer) {
            times += form.lblTime(prayer).Caption() + " ";
        }
        return times;
    }

    WizardForm& form = *frmWizard;
    SettingsForm& settings = *HoravexMainForm;
};

TEST_F(WizardTest, OpensOnTheFirstPage) {
    ShowWizard();
    EXPECT_FALSE(form.hsBegin.Enabled()) << "without daylight saving";
    EXPECT_THAT(PagesOnView(), ElementsAre(1));
    EXPECT_FALSE(form.cmdPrev.Enabled());
    EXPECT_FALSE(form.label5.Visible());
    EXPECT_EQ(form.lblCity.Caption(), "Mecca, Mecca - Saudi Arabia");
    EXPECT_EQ(form.Caption(), "Horavex Prayer Times Configuration Wizard");
}

TEST_F(WizardTest, GreetsOnAFirstRun) {
    firstRun = kTrue;
    ShowWizard();
    EXPECT_TRUE(form.label5.Visible());
}

TEST_F(WizardTest, TakesOverWhatTheSettingsWindowShows) {
    settings.hsDepr2.UserSlide(15);
    settings.hsDepr21.UserSlide(1);
    settings.chkDayLT.UserClick();
    settings.txtTimeZone.SetText("+3.50");
    frmMain->lblZoritName(0).SetCaption("First light");
    ShowWizard();
    EXPECT_EQ(form.hsDepr.Value(), 18);
    EXPECT_EQ(form.hsDepr2.Value(), 15);
    EXPECT_EQ(form.hsDepr21.Value(), 1);
    EXPECT_EQ(IshaAngle, 15.25);
    EXPECT_EQ(form.chkDayLT.Value(), 1);
    EXPECT_EQ(form.txtTimeZone.Text(), "+3.50");
    EXPECT_EQ(form.lblZoritName(0).Caption(), "First light");
    EXPECT_EQ(form.lblDepr1.Caption(), "degrees 15.25");
    EXPECT_EQ(form.hsDepr.Max(), 20);
    EXPECT_EQ(form.lblDeprMin.Caption(), "5");
    EXPECT_TRUE(form.optAsrRatio(1).Value());
}

TEST_F(WizardTest, ProposesItsOwnDaysOfDaylightSavingEachTime) {
    for (int opening = 0; opening < 2; ++opening) {
        Settings.DstStart = 94;
        Settings.DstEnd = 297;
        ShowWizard();
        EXPECT_EQ(Settings.DstStart, 121);
        EXPECT_EQ(Settings.DstEnd, 274);
        EXPECT_EQ(form.lblBegin.Caption(), "Friday, May 1, 2026");
        EXPECT_EQ(form.hsBegin.Max(), 364);
        EXPECT_EQ(form.hsEnd.LargeStep(), 30);
        form.Command3.UserClick();
    }
}

TEST_F(WizardTest, CancelKeepsTheFieldsUntilTheWorkingCopyIsReloaded) {
    ShowWizard();
    form.Command3.UserClick();
    EXPECT_FALSE(form.IsLoaded());
    EXPECT_EQ(Settings.DstStart, 121);
    EXPECT_EQ(Settings.DstEnd, 274);
    EXPECT_NE(ActiveSettings.DstStart, 121);
    Settings_Form_Load();
    EXPECT_EQ(Settings.DstStart, ActiveSettings.DstStart);
}

TEST_F(WizardTest, EgyptSetsItsAnglesOnEveryOpening) {
    settings.lblCity.SetCaption("New EGYPT, New Jersey - United States");
    for (int opening = 0; opening < 2; ++opening) {
        ShowWizard();
        EXPECT_EQ(Settings.FajrAngle, 19.5);
        EXPECT_EQ(IshaAngle, 17.75);
        EXPECT_EQ(form.txtTimeZone.Text(), "+3.00") << "the refresh takes the settings' box";
        form.hsDepr.SetValue(15);
        form.Command3.UserClick();
    }
}

TEST_F(WizardTest, GoesThroughFourPagesAndBack) {
    ShowWizard();
    for (int page = 2; page <= 4; ++page) {
        form.cmdNext.UserClick();
        EXPECT_THAT(PagesOnView(), ElementsAre(page));
        EXPECT_EQ(form.currentPage, page);
        EXPECT_TRUE(form.cmdPrev.Enabled());
        EXPECT_EQ(form.cmdNext.Caption(), page == 4 ? "&Finish" : "&Next");
        EXPECT_GT(form.Frame(page).Stacking(), form.Frame(page - 1).Stacking());
        EXPECT_GT(form.Frame2(page).Stacking(), form.Frame2(page - 1).Stacking());
    }
    form.cmdPrev.UserClick();
    EXPECT_EQ(form.cmdNext.Caption(), "&Next");
    form.cmdNext.UserClick();
    EXPECT_EQ(form.cmdNext.Caption(), "&Finish");
    for (int page = 3; page >= 1; --page) {
        form.cmdPrev.UserClick();
        EXPECT_THAT(PagesOnView(), ElementsAre(page));
    }
    EXPECT_FALSE(form.cmdPrev.Enabled());
}

TEST_F(WizardTest, ButtonsCaptionsComeFromThePack) {
    currentLanguage = "German";
    ShowWizard();
    EXPECT_EQ(form.cmdNext.Caption(), "&Weiter");
    GoTo(4);
    EXPECT_EQ(form.cmdNext.Caption(), "&Fertigstellen");
    form.cmdPrev.UserClick();
    EXPECT_EQ(form.cmdNext.Caption(), "&Weiter");
}

TEST_F(WizardTest, PackWithoutTheKeyGivesFinish) {
    platform.files.WriteWhole("/program/lang/Short.ini", BytesOf("[other]\n"));
    currentLanguage = "Short";
    ShowWizard();
    GoTo(4);
    EXPECT_EQ(form.cmdNext.Caption(), "&Finish");
}

class WizardZone : public WizardTest,
                   public testing::WithParamInterface<std::pair<const char*, bool>> {};

TEST_P(WizardZone, PageTwoTakesFromMinusTwelveToEleven) {
    ShowWizard();
    GoTo(2);
    form.txtTimeZone.SetText(GetParam().first);
    form.cmdNext.UserClick();
    EXPECT_EQ(form.currentPage, GetParam().second ? 3 : 2);
    if (!GetParam().second) {
        ASSERT_EQ(platform.dialogs.messages.size(), 1U);
        EXPECT_EQ(platform.dialogs.messages[0].text, "Invalid GMT");
        EXPECT_EQ(platform.dialogs.messages[0].icon, MessageIcon::kExclamation);
        EXPECT_EQ(Settings.TimeZone, 3.0);
    }
}

INSTANTIATE_TEST_SUITE_P(Zones, WizardZone,
                         testing::Values(std::pair("-12", true), std::pair("11", true),
                                         std::pair("12", false), std::pair("11.5", false),
                                         std::pair("-12.25", false), std::pair("abc", false),
                                         std::pair("1e400", false), std::pair("", false)));

TEST_F(WizardTest, ZoneTypedOnPageTwoReachesThePreviewButNotTheCommit) {
    ShowWizard();
    GoTo(2);
    const std::string before = Preview();
    form.txtTimeZone.UserType("4");
    form.cmdNext.UserClick();
    EXPECT_EQ(Settings.TimeZone, 4.0);
    EXPECT_NE(Preview(), before);
    EXPECT_EQ(form.txtTimeZone.Text(), "+3.00") << "the settings window's box comes back";
    GoTo(4);
    form.cmdNext.UserClick();
    EXPECT_EQ(ActiveSettings.TimeZone, 3.0);
}

TEST_F(WizardTest, ZoneBoxThrowsOutWhatIsNoZone) {
    ShowWizard();
    GoTo(2);
    form.txtTimeZone.UserType("-");
    EXPECT_EQ(form.txtTimeZone.Text(), "+3.00");
    form.txtTimeZone.UserType("13");
    EXPECT_EQ(form.txtTimeZone.Text(), "+3.00");
    form.txtTimeZone.UserType("12.6");  // rounds to 13
    EXPECT_EQ(form.txtTimeZone.Text(), "+3.00");
    form.txtTimeZone.UserType("-5.5");
    EXPECT_EQ(form.txtTimeZone.Text(), "-5.5");
    form.txtTimeZone.UserType("12.5");  // rounds to the even 12
    EXPECT_EQ(form.txtTimeZone.Text(), "12.5");
}

TEST_F(WizardTest, ComputerZoneFillsTheSettingsBoxAndIsCommitted) {
    platform.clock.SetOffset(0.0, {2.0, false});
    platform.clock.SetOffset(DateSerial(2026, 4, 24), {3.0, true});
    platform.clock.SetOffset(DateSerial(2026, 10, 30), {2.0, false});
    ShowWizard();
    GoTo(2);
    form.cmdComputerZone.UserClick();
    EXPECT_EQ(settings.txtTimeZone.Text(), "+2.00");
    EXPECT_EQ(form.txtTimeZone.Text(), "+2.00");
    GoTo(3);
    EXPECT_EQ(form.chkDayLT.Value(), 1);
    EXPECT_EQ(form.lblBegin.Caption(), "Friday, April 24, 2026");
    EXPECT_EQ(form.lblEnd.Caption(), "Thursday, October 29, 2026");
    EXPECT_TRUE(form.hsBegin.Enabled());
    GoTo(4);
    form.cmdNext.UserClick();
    EXPECT_EQ(ActiveSettings.TimeZone, 2.0);
    EXPECT_EQ(ActiveSettings.DstStart, 114);
    EXPECT_EQ(ActiveSettings.DstEnd, 302);
}

// Pages three and four write the working record.

TEST_F(WizardTest, DaylightPageWritesItsFieldsWithoutThePreview) {
    ShowWizard();
    GoTo(3);
    form.chkDayLT.UserClick();
    EXPECT_EQ(Settings.DstEnabled, 1);
    EXPECT_TRUE(form.lblBeginAt.Enabled());
    form.lblTime(0).SetCaption("as it was");
    form.hsBegin.UserSlide(90);
    form.hsEnd.UserDrag(300);
    EXPECT_EQ(Settings.DstStart, 91);
    EXPECT_EQ(Settings.DstEnd, 301);
    EXPECT_EQ(form.lblEnd.Caption(), "Wednesday, October 28, 2026");
    EXPECT_EQ(form.lblTime(0).Caption(), "as it was");
    form.chkDayLT.UserClick();
    EXPECT_FALSE(form.hsEnd.Enabled());
}

TEST_F(WizardTest, PreviewFollowsEachMovementOfTheAngles) {
    ShowWizard();
    GoTo(4);
    EXPECT_EQ(form.lblTime(0).Caption(), frmMain->lblTime(0).Caption());
    EXPECT_EQ(form.lblTime(5).Caption(), frmMain->lblTime(5).Caption());
    const std::string fajr = form.lblTime(0).Caption();
    form.hsDepr.UserDrag(15);
    EXPECT_NE(form.lblTime(0).Caption(), fajr);
    EXPECT_EQ(Settings.FajrAngle, 15.0);
    EXPECT_EQ(form.lblDepr.Caption(), "degrees 15");
    const std::string isha = form.lblTime(5).Caption();
    form.hsDepr21.UserSlide(2);
    EXPECT_NE(form.lblTime(5).Caption(), isha);
    EXPECT_EQ(IshaAngle, 18.5);
    EXPECT_EQ(ActiveSettings.FajrAngle, 18.0);
}

TEST_F(WizardTest, PreviewFollowsTheDaysOfDaylightSavingWithTheNextPage) {
    ShowWizard();
    GoTo(3);
    form.chkDayLT.UserClick();
    form.hsEnd.UserDrag(364);
    const std::string standard = Preview();
    GoTo(4);
    EXPECT_NE(Preview(), standard) << "21 November has become a day of summer time";
}

TEST_F(WizardTest, PreviewWaitsUntilAllThatItDependsOnHasMoved) {
    ShowWizard();
    GoTo(4);
    const std::string before = Preview();
    {
        const PreviewHold hold;
        form.hsDepr.UserDrag(15);
        EXPECT_EQ(Preview(), before);
    }
    EXPECT_NE(Preview(), before);
}

TEST_F(WizardTest, PreviewFollowsTheAsrRatio) {
    ShowWizard();
    GoTo(4);
    const std::string before = Preview();
    form.optAsrRatio(2).UserClick();
    EXPECT_EQ(Settings.AsrRatio, 2.0);
    EXPECT_NE(Preview(), before);
}

TEST_F(WizardTest, PreviewThatFailsSaysSoOnce) {
    ShowWizard();
    GoTo(4);
    form.hsDepr.SetMin(0);
    form.hsDepr.UserSlide(1);
    EXPECT_EQ(platform.dialogs.messages.size(), 1U);
    form.cmdPrev.UserClick();
    form.cmdNext.UserClick();
    EXPECT_EQ(platform.dialogs.messages.size(), 1U) << "the same values are no news";
    form.hsDepr1.UserSlide(1);
    EXPECT_EQ(platform.dialogs.messages.size(), 2U);
}

TEST_F(WizardTest, PreviewIsThereAgainWhenTheWizardOpensAgain) {
    ShowWizard();
    GoTo(4);
    const std::string times = Preview();
    form.Command3.UserClick();
    ShowWizard();
    GoTo(4);
    EXPECT_EQ(Preview(), times);
}

TEST_F(WizardTest, PreviewLeavesTheEnginesPlaceAlone) {
    ShowWizard();
    const double latitude = LatitudeRad;
    PickCity("Jakarta");
    EXPECT_EQ(LatitudeRad, latitude);
    EXPECT_NE(Preview(), "");
}

TEST_F(WizardTest, ClosedWizardWritesNothing) {
    const SettingsRecord before = Settings;
    SetDepressionLimits(6000);
    EXPECT_EQ(form.hsDepr.Max(), AngleBand.largest);
    Settings = before;
    IshaAngle = 18.0;
    form.hsDepr2.SetValue(form.hsDepr2.Max());
    form.hsBegin.SetValue(5);
    form.chkDayLT.SetValue(1);
    EXPECT_EQ(Settings, before);
    EXPECT_EQ(IshaAngle, 18.0);
    EXPECT_EQ(form.lblTime(0).Caption(), "");
}

// The city.

TEST_F(WizardTest, PickedCityShowsBesideTheAcceptedOne) {
    ShowWizard();
    EXPECT_FALSE(form.lblPicked.Visible());
    PickCity("Cairo");
    EXPECT_EQ(form.lblCity.Caption(), "Mecca, Mecca - Saudi Arabia") << "until the finish";
    EXPECT_TRUE(form.lblPicked.Visible());
    EXPECT_EQ(form.lblPickedCity.Caption(), "Cairo, Cairo - Egypt");
    EXPECT_EQ(form.txtTimeZone.Text(), "") << "the zone is to be a conscious choice";
    EXPECT_THAT(form.lblLocationLat.Caption(), StartsWith("Latitude: 30 degrees"));
    EXPECT_THAT(form.lblTimeZone.Caption(), EndsWith("( 2, 3, ...)"));
    EXPECT_EQ(form.hsDepr.Value(), 19);
    EXPECT_EQ(form.hsDepr1.Value(), 2);
    EXPECT_EQ(IshaAngle, 17.75);
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
}

TEST_F(WizardTest, PickedCityKeepsFromGoingOnWithoutAZone) {
    ShowWizard();
    PickCity("Cairo");
    GoTo(2);
    form.cmdNext.UserClick();
    EXPECT_EQ(form.currentPage, 2);
    EXPECT_EQ(platform.dialogs.messages.back().text, "Invalid GMT");
}

TEST_F(WizardTest, PickOfANarrowBandSaysNothingOnTheWay) {
    SetClock(2026, 6, 21, 12, 0, 0);
    LastRefreshDate = platform.clock.Today();
    ShowWizard();
    Settings.TimeZone = 1.0;
    PickCity("Berlin");
    EXPECT_EQ(form.hsDepr.Max(), AngleBand.largest);
    EXPECT_LE(IshaAngle, AngleBand.largest + 1.0);
    EXPECT_EQ(form.lblDeprMax.Caption(), std::to_string(AngleBand.largest));
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
}

TEST_F(WizardTest, CancelledProgressLeavesTheWizardAsItWas) {
    ShowWizard();
    platform.loop.AtPump(platform.loop.Pumps() + 2, [] { fMessage->UserClose(); });
    form.cmdSetCity.UserClick();
    EXPECT_FALSE(fCountry->IsLoaded());
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(form.txtTimeZone.Text(), "+3.00");
}

// The finish.

TEST_F(WizardTest, FinishCommitsAndUnloads) {
    ShowWizard();
    PickCity("Jakarta");
    settings.txtTimeZone.SetText("7");
    GoTo(2);
    form.cmdNext.UserClick();
    GoTo(4);
    form.optAsrRatio(2).UserClick();
    form.cmdNext.UserClick();
    EXPECT_FALSE(form.IsLoaded());
    EXPECT_EQ(ActiveSettings.CityIndex, IndexOf("Jakarta"));
    EXPECT_EQ(ActiveSettings.AsrRatio, 2.0);
    EXPECT_EQ(ActiveSettings.TimeZone, 7.0);
    EXPECT_EQ(ActiveCityText, "Jakarta, Jakarta - Indonesia");
}

TEST_F(WizardTest, FinishWithABadZoneUnloadsAllTheSame) {
    ShowWizard();
    GoTo(4);
    settings.txtTimeZone.SetText("");
    const SettingsRecord accepted = ActiveSettings;
    form.cmdNext.UserClick();
    EXPECT_FALSE(form.IsLoaded());
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_THAT(platform.dialogs.messages[0].text, StartsWith("Please check the Time Zone"));
    EXPECT_EQ(ActiveSettings, accepted);
}

TEST_F(WizardTest, FinishUnloadsThoughTheSetFaults) {
    ShowWizard();
    GoTo(4);
    settings.Show();
    settings.txtTimeZone.SetText("");
    settings.txtTimeZone.onGotFocus = [] { throw BoundsFault("a handler of another room"); };
    EXPECT_NO_THROW(form.cmdNext.UserClick());
    EXPECT_FALSE(form.IsLoaded());
}

TEST_F(WizardTest, CityButtonRebuildsTheTextsOfThePlace) {
    ShowWizard();
    settings.lblLocationLat.SetCaption("");
    platform.loop.AtPump(platform.loop.Pumps() + 2, [] { fMessage->UserClose(); });
    form.cmdSetCity.UserClick();
    EXPECT_THAT(settings.lblLocationLat.Caption(), StartsWith("Latitude: 21 degrees"));
    EXPECT_THAT(form.lblLocationLat.Caption(), StartsWith("Latitude: 21 degrees"));
}

TEST_F(WizardTest, CityButtonShowsTheDayOnTheFace) {
    ShowWizard();
    frmMain->lblCurrTime.SetCaption("");
    PickCity("Jakarta");
    EXPECT_EQ(frmMain->lblCurrTime.Caption(), "12:00:03 PM");
}

TEST_F(WizardTest, PickTakesTheDefaultFajrFromTheWizardsSliderToo) {
    ShowWizard();
    form.hsDepr.UserSlide(15);
    PickCity("Jakarta");
    EXPECT_EQ(Settings.FajrAngle, 18.0);
    EXPECT_EQ(form.hsDepr.Value(), 18);
    EXPECT_EQ(form.lblDepr.Caption(), "degrees 18");
}

TEST_F(WizardTest, OpenedTwiceItStaysOnItsPage) {
    ShowWizard();
    GoTo(3);
    form.chkDayLT.UserClick();
    form.hsBegin.UserSlide(50);
    ShowWizard();
    EXPECT_EQ(form.currentPage, 3);
    EXPECT_EQ(Settings.DstStart, 51);
}

}  // namespace
}  // namespace horavex
