#include "linux/sound/pulse_player.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <deque>
#include <optional>

#include "e2e/harness/sound_server.h"
#include "linux/sound/beep.h"
#include "sound/posted_events.h"
#include "support/scoped_variable.h"

namespace horavex {
namespace {

using std::chrono::duration;
using std::chrono::steady_clock;

constexpr int kRate = 8000;
constexpr int kSecond = 2 * kRate;  // bytes

struct PulsePlayerTest : testing::Test {
    PulsePlayerTest() {
        player.onEndArrayPlay = [this] {
            ++blocks;
            Bring();
        };
        player.onRequestOnLoadArray = [this] {
            ++requests;
            Bring();
        };
        player.onEndPlay = [this] { ++ends; };
        player.onUnreachable = [this] { ++unreachable; };
        player.SetFormat(kRate, {1});
    }

    /// Writes the next block, if there is one.
    void Bring() {
        if (!toCome.empty()) {
            player.Write(Bytes(static_cast<std::size_t>(toCome.front())));
            toCome.pop_front();
        }
    }

    /// Starts with blocks of those lengths, two of them at once.
    void Play(std::deque<int> blocksInBytes) {
        toCome = std::move(blocksInBytes);
        started = steady_clock::now();
        player.Start();
        Bring();
        Bring();
    }

    bool RunToTheEnd() {
        return events.RunUntil([this] { return ends > 0; });
    }

    double Seconds() const { return duration<double>(steady_clock::now() - started).count(); }

    PostedEvents events;
    PulsePlayer player{events.Post()};
    std::deque<int> toCome;
    steady_clock::time_point started;
    int blocks = 0;
    int requests = 0;
    int ends = 0;
    int unreachable = 0;
};

struct WithServer : PulsePlayerTest {
    WithServer() { variable.emplace("PULSE_SERVER", Address().c_str()); }

    std::string Address() const {
        Environment variables;
        server->InstallIn(variables);
        return variables.at("PULSE_SERVER");
    }

    std::optional<SoundServer> server{std::in_place};
    std::optional<ScopedVariable> variable;
};

using PulsePlayerOnAServer = WithServer;

TEST_F(PulsePlayerOnAServer, EveryBlockIsTakenAndTheEndComesOnceAllIsHeard) {
    Play({kSecond / 4, kSecond / 4, kSecond / 4, kSecond / 4, 100});
    ASSERT_TRUE(RunToTheEnd());
    EXPECT_EQ(blocks, 5);
    EXPECT_GE(requests, 1);
    EXPECT_EQ(ends, 1);
    EXPECT_GT(Seconds(), 0.95);
    EXPECT_LT(Seconds(), 3.0);
}

TEST_F(PulsePlayerOnAServer, ShortBlockAloneComesToItsEnd) {
    Play({100});
    ASSERT_TRUE(RunToTheEnd());
    EXPECT_EQ(blocks, 1);
    EXPECT_LT(Seconds(), 2.0);
}

TEST_F(PulsePlayerOnAServer, StartWithNothingComesToItsEnd) {
    Play({});
    ASSERT_TRUE(RunToTheEnd());
    EXPECT_EQ(blocks, 0);
    EXPECT_EQ(requests, 1);
}

TEST_F(PulsePlayerOnAServer, BlocksBeforeTheStartArePlayed) {
    player.Write(Bytes(kSecond / 2));
    player.Start();
    ASSERT_TRUE(RunToTheEnd());
    EXPECT_EQ(blocks, 1);
}

TEST_F(PulsePlayerOnAServer, PositionGoesOnWithWhatIsHeardAndCountsFromEachStart) {
    Play({kSecond, kSecond, kSecond});
    ASSERT_TRUE(events.RunUntil([this] { return blocks == 1; }));
    // A second is taken in; up to the latency of it is still to be heard.
    const std::int64_t first = player.Position();
    EXPECT_GT(first, kSecond / 2);
    EXPECT_LE(first, kSecond);
    player.Pause();
    EXPECT_NEAR(static_cast<double>(player.Position()), static_cast<double>(first), kSecond / 4);
    EXPECT_EQ(player.Position() % 2, 0);
    Play({kSecond / 10});
    EXPECT_LT(player.Position(), kSecond / 4);
    ASSERT_TRUE(RunToTheEnd());
}

TEST_F(PulsePlayerOnAServer, StopDropsWhatIsOnItsWay) {
    Play({kSecond / 4, kSecond / 4});
    ASSERT_TRUE(events.RunUntil([this] { return blocks == 1; }));
    player.Stop();
    const int before = blocks;
    Play({100});
    ASSERT_TRUE(RunToTheEnd());
    EXPECT_EQ(blocks, before + 1) << "none of the former play";
    EXPECT_EQ(ends, 1);
}

TEST_F(PulsePlayerOnAServer, VanishedServerEndsThePlay) {
    Play({kSecond, kSecond, kSecond, kSecond});
    ASSERT_TRUE(events.RunUntil([this] { return blocks == 1; }));
    server.reset();
    ASSERT_TRUE(RunToTheEnd());
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(unreachable, 0);
}

TEST_F(PulsePlayerOnAServer, VanishedDeviceEndsThePlay) {
    Play({kSecond, kSecond, kSecond, kSecond});
    ASSERT_TRUE(events.RunUntil([this] { return blocks == 1; }));
    server->Use({"pactl", "unload-module", "module-null-sink"});
    ASSERT_TRUE(RunToTheEnd());
    EXPECT_EQ(ends, 1);
}

TEST_F(PulsePlayerOnAServer, StartTellsOfAServerWithoutADevice) {
    server->Use({"pactl", "unload-module", "module-null-sink"});
    Play({100});
    ASSERT_TRUE(events.RunUntil([this] { return unreachable > 0; }));
    EXPECT_EQ(ends, 0);
}

TEST_F(PulsePlayerOnAServer, EndOfThePlayerInMidPlayIsQuiet) {
    std::optional<PulsePlayer> other(std::in_place, events.Post());
    other->onEndArrayPlay = [] { FAIL() << "it is gone"; };
    other->SetFormat(kRate, {1});
    other->Start();
    other->Write(Bytes(kSecond));
    other.reset();
    Play({100});
    EXPECT_TRUE(RunToTheEnd());
}

TEST_F(PulsePlayerOnAServer, BeepIsHeardInFull) {
    bool fellBack = false;
    Beep beep(events.Post(), [&] { fellBack = true; });
    beep.Sound();
    beep.Sound();
    // The sound of the player behind it comes later than an answer that nothing is there.
    Play({kSecond / 2});
    ASSERT_TRUE(RunToTheEnd());
    EXPECT_FALSE(fellBack);
}

struct PulsePlayerWithoutAServer : PulsePlayerTest {
    ScopedVariable variable{"PULSE_SERVER", "unix:/nonexistent/socket"};
};

TEST_F(PulsePlayerWithoutAServer, StartReturnsAtOnceAndNoEventOfAPlayFollows) {
    Play({kSecond, kSecond});
    EXPECT_LT(Seconds(), 0.2);
    ASSERT_TRUE(events.RunUntil([this] { return unreachable > 0; }));
    EXPECT_EQ(blocks + requests + ends, 0);
    EXPECT_EQ(player.Position(), 0);
}

TEST_F(PulsePlayerWithoutAServer, NextStartTriesAgain) {
    Play({kSecond});
    ASSERT_TRUE(events.RunUntil([this] { return unreachable == 1; }));
    Play({kSecond});
    ASSERT_TRUE(events.RunUntil([this] { return unreachable == 2; }));
    EXPECT_EQ(unreachable, 2);
}

TEST_F(PulsePlayerWithoutAServer, BeepFallsBack) {
    bool fellBack = false;
    Beep beep(events.Post(), [&] { fellBack = true; });
    beep.Sound();
    EXPECT_TRUE(events.RunUntil([&] { return fellBack; }));
}

TEST_F(PulsePlayerWithoutAServer, FormatThatNoServerPlaysIsSilent) {
    player.SetFormat(10'000'000, {1});
    player.Start();
    player.SetFormat(kRate, {1000});
    player.Start();
    EXPECT_EQ(player.Position(), 0);
}

TEST(PulsePlayerFormat, SpanIsWholeMoments) {
    PulsePlayer player([](auto) {});
    player.SetFormat(44100, {2});
    EXPECT_EQ(player.BytesFor(1000), 176400);
    player.SetFormat(11025, {1});
    EXPECT_EQ(player.BytesFor(1000), 22050);
}

}  // namespace
}  // namespace horavex
