// The athan sounds that come with the program, as a player reads them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <set>

#include "linux/sound/sound_file.h"
#include "support/build_folder.h"
#include "support/run_program.h"

namespace horavex {
namespace {

constexpr double kFullScale = 32768.0;

class BuiltInSounds : public testing::TestWithParam<std::string> {
protected:
    BuiltInSounds() {
        SoundFile file;
        file.SetMode(kSampleBytes);
        if (file.Open(Path(GetParam())) != 0) {
            return;
        }
        rate = file.SampleRate();
        channels = file.Format().channels;
        for (Bytes block = file.Read(1'000'000); !block.empty(); block = file.Read(1'000'000)) {
            const std::size_t former = samples.size();
            samples.resize(former + block.size() / 2);
            std::memcpy(samples.data() + former, block.data(), block.size());
        }
    }

    static std::string Path(const std::string& name) {
        return BuiltProgramFolder() + "/Athan/" + name + ".mp3";
    }

    double Seconds() const { return static_cast<double>(samples.size()) / channels / rate; }

    /// The loudest sample of a span, of full scale.
    double PeakIn(double from, double to) const {
        const auto at = [&](double second) {
            return static_cast<std::size_t>(second * rate) * static_cast<std::size_t>(channels);
        };
        double peak = 0.0;
        for (std::size_t i = at(from); i < std::min(at(to), samples.size()); ++i) {
            peak = std::max(peak, std::abs(samples[i] / kFullScale));
        }
        return peak;
    }

    std::vector<std::int16_t> samples;
    int rate = 0;
    int channels = 0;
};

TEST_P(BuiltInSounds, IsAnMp3OfTwentyToSixtySeconds) {
    const std::string content = ContentOf(Path(GetParam()));
    EXPECT_TRUE(content.starts_with("ID3") || content.starts_with("\xFF\xFB"));
    EXPECT_EQ(rate, 44100);
    EXPECT_EQ(channels, 2);
    EXPECT_GE(Seconds(), 20.0);
    EXPECT_LE(Seconds(), 60.0);
}

TEST_P(BuiltInSounds, IsLoudEnoughAndNeverAtFullScale) {
    EXPECT_GT(PeakIn(0.0, Seconds()), 0.4);
    EXPECT_LT(PeakIn(0.0, Seconds()), 0.95);
}

TEST_P(BuiltInSounds, BeginsAndEndsInSilence) {
    EXPECT_LT(PeakIn(0.0, 0.005), 0.01);
    EXPECT_LT(PeakIn(Seconds() - 0.25, Seconds()), 0.01);
}

TEST_P(BuiltInSounds, JumpsNowhere) {
    const auto step = static_cast<std::size_t>(channels);
    int largest = 0;
    for (std::size_t i = step; i < samples.size(); ++i) {
        largest = std::max(largest, std::abs(samples[i] - samples[i - step]));
    }
    EXPECT_LT(largest / kFullScale, 0.12);
}

TEST_P(BuiltInSounds, FallsSilentNowhereInTheMiddle) {
    for (double second = 1.0; second + 3.0 < Seconds() - 3.0; second += 1.0) {
        EXPECT_GT(PeakIn(second, second + 2.0), 0.01) << second;
    }
}

const std::string kNames[] = {"athan1", "athan2", "athan3", "fagr_athan1", "fagr_athan2"};

INSTANTIATE_TEST_SUITE_P(All, BuiltInSounds, testing::ValuesIn(kNames),
                         [](const auto& name) { return name.param; });

TEST(BuiltInSoundsTogether, AreFiveDifferentOnes) {
    std::set<std::string> contents;
    for (const std::string& name : kNames) {
        contents.insert(ContentOf(BuiltProgramFolder() + "/Athan/" + name + ".mp3"));
    }
    EXPECT_EQ(contents.size(), 5U);
}

}  // namespace
}  // namespace horavex
