// What users choose for an athan, in the built program: on a session bus with a notification
// service and media players, a system bus with a login manager, and a sound device that is
// recorded.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <csignal>

#include "e2e/harness/athan_fixture.h"
#include "e2e/harness/session_services.h"
#include "e2e/harness/sink_recording.h"
#include "e2e/harness/status_notifier_host.h"
#include "e2e/harness/tray_host.h"
#include "e2e/harness/wait_until.h"
#include "support/build_folder.h"

namespace horavex {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::size_t kZuhr = 2;
constexpr std::size_t kAsr = 3;

class AthanOptionsTest : public AthanProgramTest {
protected:
    /// Lets a prayer arrive, and its ten seconds go by once it is told or heard.
    void LetArrive(std::size_t prayer, const std::string& line) {
        GoTo(prayer);
        told = services.WaitFor(line);
        SetClock(SecondOf(prayer) + 60);
    }

    SessionServices services{desktop};
    std::string told;  // the line of the notice
};

TEST_F(AthanOptionsTest, NotificationStandsInForTheWindowAndItsButtonStopsTheAthan) {
    StoreOptions({{"Athan Shown", "notification"}});
    const SinkRecording recording(*sound);
    const ChildProcess program = Start();
    LetArrive(kAsr, "standing");
    EXPECT_THAT(told, HasSubstr("| Asr 03:1"));
    EXPECT_THAT(told, HasSubstr("stop Stop"));
    recording.WaitForSound();
    EXPECT_FALSE(IsOnView(program));
    services.Press(told, "stop");
    const std::size_t stopped = recording.Taken().size();
    EXPECT_LT((Stretch{stopped, recording.WaitForSilence(stopped)}.Seconds()), 2.0);
    services.WaitFor("withdrawn");
    ExpectTicks();
    EXPECT_FALSE(IsOnView(program));
    EXPECT_THAT(services.LinesOf("standing"), SizeIs(1));
}

TEST_F(AthanOptionsTest, NotificationThatIsPutAwayTakesTheAthanAlong) {
    StoreOptions({{"Athan Shown", "notification"}});
    const SinkRecording recording(*sound);
    const ChildProcess program = Start();
    LetArrive(kAsr, "standing");
    const std::size_t start = recording.WaitForSound();
    services.PutAway(told);
    recording.WaitForSilence(start);
}

TEST_F(AthanOptionsTest, NotificationBringsTheHiddenFaceBackAndTheAthanGoesOn) {
    StoreOptions({{"Athan Shown", "notification"}});
    const SinkRecording recording(*sound);
    StatusNotifierHost host(desktop);
    const ChildProcess program = Start();
    host.AwaitIcon();
    ExpectTicks();
    Click(face, 397, 23);
    WaitUntil("a hidden face", [&] { return !desktop.IsOnView(program, face); });
    LetArrive(kAsr, "standing");
    recording.WaitForSound();
    services.Press(told, "open");
    EXPECT_TRUE(WaitUntil("the face", [&] { return desktop.IsOnView(program, face); }));
    EXPECT_THAT(services.LinesOf("withdrawn"), IsEmpty());
    recording.WaitForSound(recording.Taken().size());
}

TEST_F(AthanProgramTest, WindowRisesOverTheFaceThatFillsTheScreenAndCanBeStopped) {
    StoreOptions({{"Face Full Screen", "1"}});
    const ChildProcess program = Start();
    desktop.WaitForAnother(program, {}, 900);
    GoTo(kAsr);
    const std::string window = WaitForAthan(program);
    desktop.SaveScreen("athan-over-full-screen");
    SetClock(SecondOf(kAsr) + 60);
    ExpectTicks();
    PressStop(window);
    EXPECT_TRUE(WaitUntil("a stopped athan", [&] { return !IsOnView(program); }));
}

TEST_F(AthanProgramTest, WithoutANotificationServiceTheWindowRisesAsEver) {
    StoreOptions({{"Athan Shown", "notification"}});
    const ChildProcess program = Start();
    GoTo(kAsr);
    WaitForAthan(program);
}

TEST_F(AthanOptionsTest, NotificationComesInPlaceOfTheWindowWhileAnotherWindowFillsTheScreen) {
    StoreOptions({{"Athan Shown", "notification while busy"}, {"Athan Once", "1"}});
    const ChildProcess program = Start();
    {
        const ChildProcess film({BuildPath("bin/bare_window"), "full screen"}, desktop.variables,
                                desktop / "film.out", desktop / "film.err");
        const std::string screen = desktop.WaitForWindow(film, "bare");
        WaitUntil("a full screen", [&] { return desktop.PlaceOf(screen).width == 1280; });
        LetArrive(kZuhr, "standing");
        EXPECT_FALSE(IsOnView(program));
        services.Press(told, "stop");
        services.WaitFor("withdrawn");
    }
    GoTo(kAsr);
    WaitForAthan(program);
    EXPECT_THAT(services.LinesOf("standing"), SizeIs(1));
}

TEST_F(AthanOptionsTest, PlayerPausesWhileTheAthanSoundsAndGoesOnAfterwards) {
    StoreOptions({{"Athan Shown", "notification"}, {"Pause Players", "1"}});
    const SinkRecording recording(*sound);
    const ChildProcess program = Start();
    LetArrive(kAsr, "standing");
    services.WaitFor("music Paused");
    recording.WaitForSound();
    EXPECT_THAT(services.LinesOf("music Playing"), IsEmpty());
    services.Press(told, "stop");
    services.WaitFor("music Playing");
    EXPECT_THAT(services.LinesOf("radio"), IsEmpty());
}

TEST_F(AthanOptionsTest, EndOfTheProgramLeavesNoPlayerPausedAndNoNotificationOnView) {
    StoreOptions({{"Athan Shown", "notification"}, {"Pause Players", "1"}});
    ChildProcess program = Start();
    LetArrive(kAsr, "standing");
    services.WaitFor("music Paused");
    program.Signal(SIGTERM);
    EXPECT_EQ(program.Wait(), 0);
    services.WaitFor("music Playing");
    services.WaitFor("withdrawn");
}

TEST_F(AthanOptionsTest, ServicesThatHangHoldNeitherTheAthanUpNorTheClockNorTheEnd) {
    StoreOptions({{"Athan Shown", "both"}, {"Pause Players", "1"}, {"Tell Missed", "1"}});
    const SinkRecording recording(*sound);
    ChildProcess program = Start();
    ExpectTicks();
    services.Hang();
    GoTo(kAsr);
    WaitForAthan(program);
    recording.WaitForSound();
    ExpectTicks();
    ExpectTicks();
    const auto asked = std::chrono::steady_clock::now();
    program.Signal(SIGTERM);
    EXPECT_EQ(program.Wait(), 0);
    EXPECT_LT(std::chrono::steady_clock::now() - asked, std::chrono::seconds(5));
}

TEST_F(AthanOptionsTest, PrayerThatCameInASleepIsToldOnceAndItsAthanNeverSoundsLate) {
    StoreOptions({{"Tell Missed", "1"}});
    const SinkRecording recording(*sound);
    const ChildProcess program = Start();
    // The first other picture may be the face that comes up, before it has ticked.
    for (int second = 0; second < 3; ++second) {
        ExpectTicks();
    }
    services.TellSleep(true);
    SetClock(SecondOf(kAsr) + 20 * 60);
    services.TellSleep(false);
    EXPECT_THAT(services.WaitFor("quiet"), HasSubstr("| Asr 03:1"));
    for (int second = 0; second < 3; ++second) {
        ExpectTicks();
    }
    services.TellSleep(false);
    ExpectTicks();
    EXPECT_THAT(services.LinesOf("quiet"), SizeIs(1));
    EXPECT_THAT(SoundsIn(recording.Taken()), IsEmpty());
    EXPECT_FALSE(IsOnView(program));
}

/// The icon's picture, without the tool's first line, which counts answers.
std::string PictureOf(const StatusNotifierHost& host) {
    const std::string printed = host.PropertyOf("IconPixmap");
    return printed.substr(printed.find('\n'));
}

TEST_F(AthanOptionsTest, PrayerInAQuietHourIsASilentNotificationAndTheIconShowsTheQuiet) {
    StoreOptions({{"Quiet Hours", "1"}, {"Quiet From", "900"}, {"Quiet To", "960"}});
    const SinkRecording recording(*sound);
    StatusNotifierHost host(desktop);
    const ChildProcess program = Start();
    host.AwaitIcon();
    ExpectTicks();
    const std::string awake = PictureOf(host);
    LetArrive(kAsr, "quiet");
    EXPECT_THAT(told, HasSubstr("| Asr 03:1"));
    EXPECT_NE(PictureOf(host), awake);
    recording.Continue(1.0);
    EXPECT_THAT(SoundsIn(recording.Taken()), IsEmpty());
    EXPECT_FALSE(IsOnView(program));
    SetClock(960 * 60 + 1);
    EXPECT_TRUE(WaitUntil("the icon as before", [&] { return PictureOf(host) == awake; }));
}

TEST_F(AthanOptionsTest, QuietThatIsChosenInTheIconsMenuSilencesTheAthanThatSoundsAndTheNextOne) {
    const SinkRecording recording(*sound);
    StatusNotifierHost host(desktop);
    const ChildProcess program = Start();
    host.AwaitIcon();
    GoTo(kZuhr);
    WaitForAthan(program);
    const std::size_t start = recording.WaitForSound();
    SetClock(SecondOf(kZuhr) + 60);
    ExpectTicks();
    host.Choose("Quiet _Today");
    recording.WaitForSilence(start);
    WaitUntil("no window", [&] { return !IsOnView(program); });
    const std::size_t silent = recording.Taken().size();
    LetArrive(kAsr, "quiet");
    recording.Continue(1.0);
    const Samples taken = recording.Taken();
    EXPECT_THAT(SoundsIn({taken.begin() + static_cast<std::ptrdiff_t>(silent), taken.end()}),
                IsEmpty());
    EXPECT_TRUE(WaitUntil("a tip that tells it", [&] {
        return host.PropertyOf("ToolTip").find("Quiet until") != std::string::npos;
    }));
}

TEST_F(AthanOptionsTest, IconInAPanelThatEmbedsItShowsTheQuiet) {
    StoreOptions({{"Quiet Hours", "1"}, {"Quiet From", "720"}, {"Quiet To", "780"}});
    const TrayHost host(desktop.variables);
    const ChildProcess program = Start();
    // The bar that strikes the emblem out is redder than all else there.
    const auto isStruckOut = [&] {
        return std::stod(desktop.Use({"import", "-window", "root", "-crop", "60x26+1220+934",
                                      "-format", "%[fx:maxima.r]", "info:"})) > 0.93;
    };
    EXPECT_TRUE(WaitUntil("a quiet icon", isStruckOut));
    desktop.SaveScreen("tray-quiet");
    SetClock(780 * 60);
    EXPECT_TRUE(WaitUntil("the icon as ever", [&] { return !isStruckOut(); }));
}

TEST_F(AthanOptionsTest, WindowAndNotificationGoTogether) {
    StoreOptions({{"Athan Shown", "both"}});
    const ChildProcess program = Start();
    LetArrive(kAsr, "standing");
    PressStop(WaitForAthan(program));
    services.WaitFor("withdrawn");
    WaitUntil("no window", [&] { return !IsOnView(program); });
    GoTo(4);
    WaitForAthan(program);
    EXPECT_TRUE(WaitUntil("another", [&] { return services.LinesOf("standing").size() == 2; }));
    SetClock(SecondOf(4) + 60);
    services.Press(services.LinesOf("standing").back(), "stop");
    EXPECT_TRUE(WaitUntil("no window", [&] { return !IsOnView(program); }));
}

TEST_F(AthanOptionsTest, ReminderComesBeforeAndTheIqamaBehindThePrayer) {
    StoreOptions({{"Reminder Asr", "10"}, {"Iqama Asr", "15"}, {"Athan Shown", "notification"}});
    const ChildProcess program = Start();
    SetClock(SecondOf(kAsr) - 601);
    EXPECT_THAT(services.WaitFor("quiet"), HasSubstr("10 min"));
    LetArrive(kAsr, "standing");
    services.Press(told, "stop");
    SetClock(SecondOf(kAsr) + 15 * 60 - 1);
    EXPECT_TRUE(WaitUntil("the iqama", [&] { return services.LinesOf("quiet").size() == 2; }));
    EXPECT_THAT(services.LinesOf("quiet").back(), HasSubstr("Iqama of Asr"));
}

/// How loud a stretch of the recording is, of full scale.
double Loudness(const Samples& recorded, std::size_t from, double seconds) {
    double sum = 0.0;
    const auto count = static_cast<std::size_t>(seconds * kWavRate);
    for (std::size_t i = from; i < from + count; ++i) {
        sum += std::pow(recorded.at(i) / 32768.0, 2.0);
    }
    return std::sqrt(sum / static_cast<double>(count));
}

TEST_F(AthanProgramTest, AthanOfHalfTheVolumeIsHeardAsLoudAsTheEarTakesForHalf) {
    StoreOptions({{"Athan Volume Asr", "50"}});
    const SinkRecording recording(*sound);
    const ChildProcess program = Start();
    GoTo(kAsr);
    const std::size_t start = recording.WaitForSound();
    recording.Continue(1.5);
    EXPECT_NEAR(Loudness(recording.Taken(), start, 1.0) / Loudness(others, 0, 1.0), 0.125, 0.01);
}

TEST_F(AthanProgramTest, AthanRisesFromSilenceInTheSecondsOfItsFade) {
    StoreOptions({{"Athan Fade", "6"}});
    const SinkRecording recording(*sound);
    const ChildProcess program = Start();
    GoTo(kAsr);
    const std::size_t start = recording.WaitForSound();  // past its first, inaudible second
    recording.Continue(6.5);
    const Samples taken = recording.Taken();
    const auto at = [&](double second) {
        return Loudness(taken, start + static_cast<std::size_t>(second * kWavRate), 0.5) /
               Loudness(others, 0, 1.0);
    };
    EXPECT_LT(at(0.0), 0.1);
    EXPECT_LT(at(1.0), 0.4);
    EXPECT_LT(at(1.0), at(2.0));
    EXPECT_LT(at(2.0), at(3.0));
    EXPECT_NEAR(at(6.0), 1.0, 0.05);
}

}  // namespace
}  // namespace horavex
