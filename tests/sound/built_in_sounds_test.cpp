// The sounds that come with the program, as a player reads them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <map>

#include "lib/loudness_meter.h"
#include "linux/sound/sound_file.h"
#include "sound_traits.h"
#include "support/build_folder.h"
#include "support/run_program.h"

namespace horavex {
namespace {

constexpr double kFullScale = 32768.0;

struct ReadSound {
    explicit ReadSound(const std::string& name) : path(PathOf(name)) {
        SoundFile file;
        file.SetMode(kSampleBytes);
        if (file.Open(path) != 0) {
            return;
        }
        rate = file.SampleRate();
        channels = file.Format().channels;
        for (Bytes block = file.Read(1'000'000); !block.empty(); block = file.Read(1'000'000)) {
            Take(block);
        }
    }

    static std::string PathOf(const std::string& name) {
        return BuiltProgramFolder() + "/Athan/" + name + ".mp3";
    }

    void Take(const Bytes& block) {
        std::vector<std::int16_t> samples(block.size() / 2);
        std::memcpy(samples.data(), block.data(), block.size());
        for (std::size_t i = 0; i + 1 < samples.size(); i += 2) {
            sound.left.push_back(samples[i] / kFullScale);
            sound.right.push_back(samples[i + 1] / kFullScale);
        }
    }

    double Seconds() const { return static_cast<double>(sound.left.size()) / rate; }

    /// The loudest sample of a span, of full scale.
    double PeakIn(double from, double to) const {
        const auto first = static_cast<std::size_t>(from * rate);
        const auto last = std::min(static_cast<std::size_t>(to * rate), sound.left.size());
        double peak = 0.0;
        for (std::size_t i = first; i < last; ++i) {
            peak = std::max({peak, std::abs(sound.left[i]), std::abs(sound.right[i])});
        }
        return peak;
    }

    std::string path;
    StereoSound sound;
    int rate = 0;
    int channels = 0;
};

const std::vector<std::string> kMelodies = {"athan1", "athan2", "fagr_athan1", "fagr_athan2"};
const std::vector<std::string> kAthans = {"athan1", "athan2", "athan3", "fagr_athan1",
                                          "fagr_athan2"};
const std::vector<std::string> kAll = {"athan1",      "athan2",      "athan3",
                                       "fagr_athan1", "fagr_athan2", "tone"};

std::string NameOf(const testing::TestParamInfo<std::string>& name) {
    return name.param;
}

struct BuiltInSounds : testing::TestWithParam<std::string> {
    const ReadSound read{GetParam()};
};

TEST_P(BuiltInSounds, IsAnMp3InStereo) {
    const std::string content = ContentOf(read.path);
    EXPECT_TRUE(content.starts_with("ID3") || content.starts_with("\xFF\xFB"));
    EXPECT_EQ(read.rate, 44100);
    EXPECT_EQ(read.channels, 2);
}

TEST_P(BuiltInSounds, IsAsLoudAsTheOthers) {
    const bool gated = read.Seconds() > 3.0;  // two or three blocks are too few for the gates
    EXPECT_NEAR(gated ? GatedLoudness(read.sound) : UngatedLoudness(read.sound), -18.0, 0.5);
}

TEST_P(BuiltInSounds, PeaksBelowFullScaleBetweenTheSamplesToo) {
    EXPECT_LT(TruePeak(read.sound), -1.0);
}

TEST_P(BuiltInSounds, BeginsAndEndsInSilence) {
    EXPECT_LT(read.PeakIn(0.0, 0.02), 0.001);
    EXPECT_LT(read.PeakIn(read.Seconds() - 0.02, read.Seconds()), 0.001);
}

TEST_P(BuiltInSounds, SwellsOutOfItsSilenceAndFadesIntoIt) {
    EXPECT_LT(read.PeakIn(0.02, 0.035), 0.1);
    EXPECT_LT(read.PeakIn(read.Seconds() - 0.25, read.Seconds()), 0.01);
}

TEST_P(BuiltInSounds, JumpsNowhere) {
    double largest = 0.0;
    for (std::size_t i = 1; i < read.sound.left.size(); ++i) {
        largest = std::max(largest, std::abs(read.sound.left[i] - read.sound.left[i - 1]));
    }
    EXPECT_LT(largest, 0.2);
}

INSTANTIATE_TEST_SUITE_P(All, BuiltInSounds, testing::ValuesIn(kAll), NameOf);

struct BuiltInMelodies : BuiltInSounds {};

TEST_P(BuiltInMelodies, LastsHalfAMinuteToAMinute) {
    EXPECT_GE(read.Seconds(), 25.0);
    EXPECT_LE(read.Seconds(), 60.0);
}

TEST_P(BuiltInMelodies, FallsSilentNowhereInTheMiddle) {
    for (double second = 1.0; second + 3.0 < read.Seconds() - 3.0; second += 1.0) {
        EXPECT_GT(read.PeakIn(second, second + 2.0), 0.01) << second;
    }
}

INSTANTIATE_TEST_SUITE_P(All, BuiltInMelodies, testing::ValuesIn(kMelodies), NameOf);

TEST(BuiltInChime, IsShort) {
    const ReadSound read("athan3");
    EXPECT_GE(read.Seconds(), 3.0);
    EXPECT_LE(read.Seconds(), 6.0);
}

TEST(BuiltInTone, IsOverInTwoSeconds) {
    const ReadSound read("tone");
    EXPECT_GE(read.Seconds(), 1.2);
    EXPECT_LE(read.Seconds(), 2.0);
}

SoundTraits TraitsOfBuilt(const std::string& name) {
    const ReadSound read(name);
    return TraitsOf(read.sound.left, read.rate);
}

/// By how much the larger is more than the smaller.
double Apart(double one, double other) {
    return std::max(one, other) / std::max(std::min(one, other), 1e-9);
}

/// In what two sounds are plainly apart.
std::vector<std::string> Differences(const SoundTraits& one, const SoundTraits& other) {
    std::vector<std::string> differences;
    if (Apart(one.centroid, other.centroid) > 1.25) {
        differences.push_back("brightness");
    }
    if (Apart(one.onsets, other.onsets) > 1.5) {
        differences.push_back("pace");
    }
    if (LikenessOfPitches(one, other) < 0.8) {
        differences.push_back("pitches");
    }
    return differences;
}

TEST(BuiltInSoundsTogether, DifferPlainlyInTwoOfBrightnessPaceAndPitches) {
    std::map<std::string, SoundTraits> traits;
    for (const std::string& name : kAthans) {
        traits[name] = TraitsOfBuilt(name);
    }
    for (const auto& [name, one] : traits) {
        for (const auto& [otherName, other] : traits) {
            if (name < otherName) {
                EXPECT_GE(Differences(one, other).size(), 2U)
                    << name << " and " << otherName << ": " << one.centroid << " and "
                    << other.centroid << " Hz, " << one.onsets << " and " << other.onsets
                    << " onsets a second, pitches alike by " << LikenessOfPitches(one, other);
            }
        }
    }
}

}  // namespace
}  // namespace horavex
