// Where the athan's player sounds, how loud, and what it says of a silence.

#include <cmath>

#include "platform/sound_trouble.h"
#include "player_on_server.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

struct SoundDevices : PlayerOnAServer {
    SoundDevices() {
        server.AddDevice("other", "The other room");
        other.emplace(server, "other");
    }

    std::string Sound(double seconds) { return Write("a.wav", Glide(seconds, 440.0, 440.0)); }

    void PlayToTheEnd(const std::string& path, const Loudness& loudness = {}) {
        OpenFileForPlay(path, loudness);
        RunUntil([] { return !IsPlaying(); });
    }

    std::optional<SinkRecording> other;
};

TEST_F(SoundDevices, AreListedWithTheirNamesForPeople) {
    const std::vector<SoundDevice> devices = player.Devices();
    EXPECT_THAT(devices,
                ElementsAre(Field(&SoundDevice::id, "nul"), Field(&SoundDevice::id, "other")));
    EXPECT_EQ(devices.at(1).name, "The other room");
}

TEST_F(SoundDevices, ChosenOneAloneSounds) {
    player.UseDevice("other");
    PlayToTheEnd(Sound(0.5));
    other->WaitForSound();
    EXPECT_THAT(SoundsIn(recording.Taken()), IsEmpty());
    EXPECT_EQ(player.Trouble(), "");
}

TEST_F(SoundDevices, DefaultOneSoundsWithoutAChoiceAndAgainWhenItIsTakenBack) {
    PlayToTheEnd(Sound(0.3));
    const std::size_t first = recording.WaitForSilence(recording.WaitForSound());
    player.UseDevice("other");
    player.UseDevice("");
    PlayToTheEnd(Sound(0.3));
    recording.WaitForSound(first);
    EXPECT_THAT(SoundsIn(other->Taken()), IsEmpty());
}

TEST_F(SoundDevices, DefaultOnePlaysInPlaceOfOneThatIsGone) {
    player.UseDevice("other");
    server.RemoveDevice("other");
    OpenFileForPlay(Sound(2.0));
    recording.WaitForSound();
    EXPECT_EQ(player.Trouble(), "");
    StopPlay();
    server.AddDevice("other", "The other room");
    const SinkRecording again(server, "other");
    PlayToTheEnd(Sound(0.3));
    again.WaitForSound();
}

TEST_F(SoundDevices, VolumeIsHeard) {
    const auto loudness = [&](int percent) {
        const std::size_t before = recording.Taken().size();
        PlayToTheEnd(Sound(1.0), {percent, 0});
        const std::size_t from = recording.WaitForSound(before);
        recording.WaitForSilence(from);
        return RootMeanSquare(recording.Taken(), from + kWavRate / 4, kWavRate / 2);
    };
    const double full = loudness(100);
    EXPECT_NEAR(loudness(80) / full, 0.512, 0.02);
    EXPECT_NEAR(loudness(60) / full, 0.216, 0.01);
}

TEST_F(SoundDevices, FadeIsHeardRisingSecondBySecond) {
    PlayToTheEnd(Sound(6.0), {100, 3});
    const std::size_t end = recording.WaitForSilence(recording.WaitForSound());
    const Samples heard = recording.Taken();
    const auto second = [&](std::size_t index) {
        return RootMeanSquare(heard, end - (6 - index) * kWavRate, kWavRate);
    };
    EXPECT_LT(second(0), 0.05 * second(4));
    EXPECT_GT(second(1), 3.0 * second(0));
    EXPECT_GT(second(2), 2.0 * second(1));
    EXPECT_GT(second(3), 1.2 * second(2));
    EXPECT_NEAR(second(4) / second(3), 1.0, 0.02);
}

using TroubleWithSound = SoundDevices;

TEST_F(TroubleWithSound, IsNoneBeforeAStartAndWhileItSounds) {
    EXPECT_EQ(player.Trouble(), "");
    OpenFileForPlay(Sound(3.0));
    RunFor(0.5);
    EXPECT_EQ(player.Trouble(), "");
}

TEST_F(TroubleWithSound, MutedDeviceIsTold) {
    server.Use({"pactl", "set-sink-mute", "nul", "1"});
    PlayToTheEnd(Sound(0.5));
    EXPECT_EQ(player.Trouble(), sound_trouble::kMutedDevice);
    server.Use({"pactl", "set-sink-mute", "nul", "0"});
    PlayToTheEnd(Sound(0.5));
    EXPECT_EQ(player.Trouble(), "");
}

TEST_F(TroubleWithSound, DeviceAtNoVolumeIsTold) {
    server.Use({"pactl", "set-sink-volume", "nul", "0"});
    PlayToTheEnd(Sound(0.5));
    EXPECT_EQ(player.Trouble(), sound_trouble::kMutedDevice);
}

TEST_F(TroubleWithSound, MutingAndItsEndAreHeardOfInMidPlay) {
    OpenFileForPlay(Sound(20.0));
    const auto waitFor = [&](const std::string& trouble) {
        RunFor(0.3);
        events.RunWhile([&] { return IsPlaying() && player.Trouble() != trouble; });
        EXPECT_EQ(player.Trouble(), trouble);
    };
    waitFor("");
    server.Use({"pactl", "set-sink-mute", "nul", "1"});
    waitFor(sound_trouble::kMutedDevice);
    server.Use({"pactl", "set-sink-mute", "nul", "0"});
    waitFor("");
    server.Use({"pactl", "set-sink-input-mute", "0", "1"});
    waitFor(sound_trouble::kMutedProgram);
}

// Mixers remember of a program that it was muted.
TEST_F(TroubleWithSound, ProgramThatTheMixerMutesIsTold) {
    server.Use({"pactl", "load-module", "module-stream-restore"});
    OpenFileForPlay(Sound(20.0));
    events.RunWhile([&] {
        return IsPlaying() && server.Use({"pactl", "list", "short", "sink-inputs"}).empty();
    });
    server.Use({"pactl", "set-sink-input-mute", "0", "1"});
    StopPlay();
    PlayToTheEnd(Sound(0.5));
    EXPECT_EQ(player.Trouble(), sound_trouble::kMutedProgram);
}

TEST_F(TroubleWithSound, ServerWithoutADeviceIsTold) {
    server.Use({"pactl", "unload-module", "module-null-sink"});
    bool unreachable = false;
    player.onUnreachable = [&] { unreachable = true; };
    OpenFileForPlay(Sound(0.5));
    RunUntil([&] { return unreachable; });
    EXPECT_EQ(player.Trouble(), sound_trouble::kNoDevice);
    EXPECT_THAT(player.Devices(), IsEmpty());
}

// What servers offer where there is no hardware takes sounds and makes none.
TEST_F(TroubleWithSound, DummyDeviceIsNone) {
    server.Use({"pactl", "unload-module", "module-null-sink"});
    server.AddDevice("auto_null", "Dummy Output");
    PlayToTheEnd(Sound(0.5));
    EXPECT_EQ(player.Trouble(), sound_trouble::kNoDevice);
    EXPECT_THAT(player.Devices(), IsEmpty());
}

TEST_F(TroubleWithSound, ServerThatIsNotThereIsTold) {
    const ScopedVariable nowhere("PULSE_SERVER", "unix:/nonexistent/socket");
    bool unreachable = false;
    player.onUnreachable = [&] { unreachable = true; };
    OpenFileForPlay(Sound(0.5));
    RunUntil([&] { return unreachable; });
    EXPECT_EQ(player.Trouble(), sound_trouble::kNoServer);
    EXPECT_THAT(player.Devices(), IsEmpty());
}

TEST_F(TroubleWithSound, FormatThatNothingPlaysIsTold) {
    player.SetFormat(10'000'000, {1});
    player.Start();
    EXPECT_EQ(player.Trouble(), sound_trouble::kFormat);
}

}  // namespace
}  // namespace horavex
