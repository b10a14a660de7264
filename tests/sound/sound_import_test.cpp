#include "linux/sound/sound_import.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <fstream>

#include "base/fault.h"
#include "linux/sound/sound_file.h"
#include "sound/sound_files.h"
#include "support/temporary_folder.h"

namespace horavex {
namespace {

constexpr int kVox = SF_FORMAT_RAW | SF_FORMAT_VOX_ADPCM;
constexpr int kGsm = SF_FORMAT_RAW | SF_FORMAT_GSM610;
constexpr int kBare = SF_FORMAT_RAW | SF_FORMAT_PCM_16;

struct SoundImportTest : testing::Test {
    std::string Make(const std::string& name, int format) const {
        WriteSound(folder / name, format, ToneOf(2.0, 440.0));
        return folder / name;
    }

    /// What the player reads of these bytes under the name of an athan.
    std::vector<std::int16_t> Played(const Bytes& sound) const {
        const std::string path = folder / "athan.mp3";
        std::ofstream(path, std::ios::binary)
            .write(reinterpret_cast<const char*>(sound.data()),
                   static_cast<std::streamsize>(sound.size()));
        SoundFile file;
        EXPECT_EQ(file.Open(path), 0);
        EXPECT_EQ(file.SampleRate(), 8000);
        const Bytes bytes = file.Read(1'000'000);
        std::vector<std::int16_t> samples(bytes.size() / 2);
        std::memcpy(samples.data(), bytes.data(), bytes.size());
        return samples;
    }

    TemporaryFolder folder;
};

TEST_F(SoundImportTest, ContentTellsWhateverTheEnding) {
    EXPECT_EQ(KindOfSoundFile(Make("a.wav", SF_FORMAT_WAV | SF_FORMAT_PCM_16)),
              SoundKind::kByContent);
    EXPECT_EQ(KindOfSoundFile(Make("b.raw", SF_FORMAT_FLAC | SF_FORMAT_PCM_16)),
              SoundKind::kByContent);
}

TEST_F(SoundImportTest, VoxAndGsmAreKnownByTheirEndingAlone) {
    EXPECT_EQ(KindOfSoundFile(Make("a.vox", kVox)), SoundKind::kByEnding);
    EXPECT_EQ(KindOfSoundFile(Make("a.gsm", kGsm)), SoundKind::kByEnding);
    EXPECT_EQ(KindOfSoundFile(Make("a.mp3", kGsm)), SoundKind::kUnknown);
}

TEST_F(SoundImportTest, NothingTellsOfBareSamples) {
    for (const std::string name : {"a.raw", "a.PCM", "adpcm", "a.g721", "a.g723", "a.g726"}) {
        EXPECT_EQ(KindOfSoundFile(Make(name, kBare)), SoundKind::kBareSamples) << name;
    }
}

TEST_F(SoundImportTest, WhatIsNoFileIsUnknownAndNotWaitedFor) {
    ::mkfifo((folder / "pipe.raw").c_str(), 0600);
    ::mkdir((folder / "folder.raw").c_str(), 0700);
    for (const std::string name : {"pipe.raw", "folder.raw", "missing.raw"}) {
        EXPECT_EQ(KindOfSoundFile(folder / name), SoundKind::kUnknown) << name;
    }
}

TEST_F(SoundImportTest, ReencodedSoundPlaysByAnyName) {
    for (const std::string& path : {Make("a.vox", kVox), Make("a.gsm", kGsm)}) {
        const auto samples = Played(FlacOf(path));
        ASSERT_NEAR(static_cast<double>(samples.size()), 16000.0, 200.0) << path;
        double sum = 0.0;
        for (const double sample : samples) {
            sum += sample * sample;
        }
        EXPECT_NEAR(std::sqrt(sum / static_cast<double>(samples.size())) / 32768.0, 0.354, 0.05);
    }
}

TEST_F(SoundImportTest, WhatIsNoSoundIsAFault) {
    EXPECT_THROW(FlacOf(folder / "missing.vox"), FileFault);
    EXPECT_THROW(FlacOf(Make("a.raw", kBare)), FileFault);
}

}  // namespace
}  // namespace horavex
