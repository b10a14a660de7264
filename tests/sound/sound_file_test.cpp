#include "linux/sound/sound_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <limits>

#include "platform/files.h"
#include "sound/sound_files.h"
#include "support/temporary_folder.h"

namespace horavex {
namespace {

using testing::IsEmpty;

std::vector<std::int16_t> SamplesOf(const Bytes& bytes) {
    std::vector<std::int16_t> samples(bytes.size() / 2);
    std::memcpy(samples.data(), bytes.data(), samples.size() * 2);
    return samples;
}

struct SoundFileTest : testing::Test {
    SoundFileTest() { file.SetMode(kSampleBytes); }

    std::string Path(const std::string& name) const { return folder / name; }

    void WriteText(const std::string& name, const std::string& text) const {
        std::ofstream(Path(name), std::ios::binary) << text;
    }

    /// All samples of the open file, a second at a time.
    std::vector<std::int16_t> ReadAll() {
        std::vector<std::int16_t> all;
        const std::int32_t second = file.SampleRate() * file.Format().MomentBytes();
        for (Bytes block = file.Read(second); !block.empty(); block = file.Read(second)) {
            const auto samples = SamplesOf(block);
            all.insert(all.end(), samples.begin(), samples.end());
        }
        return all;
    }

    TemporaryFolder folder;
    SoundFile file;
};

TEST_F(SoundFileTest, ReadsSamplesOfSixteenBitsUnchanged) {
    WriteSound(Path("a.wav"), SF_FORMAT_WAV | SF_FORMAT_PCM_16, {0.0F, 0.5F, -0.5F, 1.0F, -1.0F});
    ASSERT_EQ(file.Open(Path("a.wav")), 0);
    EXPECT_TRUE(file.HasAudio());
    EXPECT_EQ(file.SampleRate(), 8000);
    EXPECT_EQ(file.Format(), SampleFormat{1});
    const auto samples = ReadAll();
    EXPECT_THAT(samples, testing::ElementsAre(0, 16384, -16384, 32767, -32767));
}

TEST_F(SoundFileTest, SamplesBeyondFullScaleAreCut) {
    WriteSound(Path("a.wav"), SF_FORMAT_WAV | SF_FORMAT_FLOAT, {3.0F, -3.0F});
    file.Open(Path("a.wav"));
    EXPECT_THAT(ReadAll(), testing::ElementsAre(32767, -32768));
}

TEST_F(SoundFileTest, ReadsOnInWholeMomentsAndEndsShort) {
    WriteSound(Path("a.wav"), SF_FORMAT_WAV | SF_FORMAT_PCM_16, std::vector<float>(10), 8000, 2);
    file.Open(Path("a.wav"));
    EXPECT_EQ(file.Read(15).size(), 12U);
    EXPECT_EQ(file.Read(12).size(), 8U);
    EXPECT_THAT(file.Read(12), IsEmpty());
}

struct Format {
    const char* ending;
    int format;
};

constexpr Format kFormats[] = {
    {"wav", SF_FORMAT_WAV | SF_FORMAT_PCM_24},   {"mp3", SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III},
    {"ogg", SF_FORMAT_OGG | SF_FORMAT_VORBIS},   {"opus", SF_FORMAT_OGG | SF_FORMAT_OPUS},
    {"flac", SF_FORMAT_FLAC | SF_FORMAT_PCM_16}, {"aiff", SF_FORMAT_AIFF | SF_FORMAT_PCM_16},
    {"au", SF_FORMAT_AU | SF_FORMAT_G721_32},    {"wav", SF_FORMAT_WAV | SF_FORMAT_GSM610},
    {"wav", SF_FORMAT_WAV | SF_FORMAT_IMA_ADPCM}};

constexpr Format kWithoutHeader[] = {{"vox", SF_FORMAT_RAW | SF_FORMAT_VOX_ADPCM},
                                     {"gsm", SF_FORMAT_RAW | SF_FORMAT_GSM610}};

/// The loudness of a tone at half of full scale.
void ExpectTone(const std::vector<std::int16_t>& samples, std::size_t least) {
    ASSERT_GE(samples.size(), least);
    double sum = 0.0;
    for (const double sample : samples) {
        sum += sample * sample;
    }
    const double loudness = std::sqrt(sum / static_cast<double>(samples.size())) / 32768.0;
    EXPECT_NEAR(loudness, 0.354, 0.05);
}

TEST_F(SoundFileTest, ContentTellsTheFormatWhateverTheName) {
    for (const Format& format : kFormats) {
        SCOPED_TRACE(format.ending);
        const bool needs48 = format.format == (SF_FORMAT_OGG | SF_FORMAT_OPUS);
        const int rate = needs48 ? 48000 : 8000;
        const std::string path = Path("athan.mp3");
        WriteSound(path, format.format, ToneOf(2.0, 440.0, rate), rate);
        ASSERT_EQ(file.Open(path), 0);
        EXPECT_TRUE(file.HasAudio());
        ExpectTone(ReadAll(), static_cast<std::size_t>(rate));
    }
}

TEST_F(SoundFileTest, FileWithoutAHeaderIsKnownByItsEnding) {
    for (const Format& format : kWithoutHeader) {
        SCOPED_TRACE(format.ending);
        const std::string path = Path(std::string("a.") + format.ending);
        WriteSound(path, format.format, ToneOf(2.0, 440.0));
        ASSERT_EQ(file.Open(path), 0);
        ExpectTone(ReadAll(), 8000);
    }
}

TEST_F(SoundFileTest, WhatIsNoSoundDoesNotOpen) {
    WriteText("text.mp3", "These are words, and many of them.\n");
    WriteText("empty.mp3", "");
    for (const std::string name : {"text.mp3", "empty.mp3", "missing.mp3", ""}) {
        EXPECT_NE(file.Open(Path(name)), 0) << name;
        EXPECT_FALSE(file.HasAudio());
        EXPECT_THAT(file.Read(100), IsEmpty());
        EXPECT_EQ(file.Seek(10), 0);
    }
}

TEST_F(SoundFileTest, PipeFolderAndDeviceDoNotOpenAndAreNoWait) {
    ASSERT_EQ(::mkfifo(Path("pipe.wav").c_str(), 0600), 0);
    std::filesystem::create_symlink("pipe.wav", Path("link.wav"));
    EXPECT_NE(file.Open(Path("pipe.wav")), 0);
    EXPECT_NE(file.Open(Path("link.wav")), 0);
    EXPECT_NE(file.Open(folder.Path()), 0);
    EXPECT_NE(file.Open("/dev/null"), 0);
}

TEST_F(SoundFileTest, FileLargerThanAnySoundDoesNotOpen) {
    WriteSound(Path("a.wav"), SF_FORMAT_WAV | SF_FORMAT_PCM_16, std::vector<float>(10));
    std::filesystem::resize_file(Path("a.wav"), std::uintmax_t{kLargestSound} + 1);  // of holes
    EXPECT_NE(file.Open(Path("a.wav")), 0);
    std::filesystem::resize_file(Path("a.wav"), kLargestSound);
    EXPECT_EQ(file.Open(Path("a.wav")), 0);
}

TEST_F(SoundFileTest, SoundThatNoServerPlaysDoesNotOpen) {
    constexpr int kFormat = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    WriteSound(Path("fast.wav"), kFormat, std::vector<float>(10), 400'000);
    WriteSound(Path("wide.wav"), kFormat, std::vector<float>(330), 8000, 33);
    WriteSound(Path("huge.wav"), kFormat, std::vector<float>(2048), 2'000'000'000, 1024);
    for (const char* name : {"fast.wav", "wide.wav", "huge.wav"}) {
        EXPECT_NE(file.Open(Path(name)), 0) << name;
        EXPECT_FALSE(file.HasAudio()) << name;
        EXPECT_EQ(file.SampleRate(), 0) << name;
    }
    WriteSound(Path("most.wav"), kFormat, std::vector<float>(320), 384'000, 32);
    EXPECT_EQ(file.Open(Path("most.wav")), 0);
}

TEST_F(SoundFileTest, FileWithoutASampleHasNoAudio) {
    WriteSound(Path("a.wav"), SF_FORMAT_WAV | SF_FORMAT_PCM_16, {});
    EXPECT_EQ(file.Open(Path("a.wav")), 0);
    EXPECT_FALSE(file.HasAudio());
}

TEST_F(SoundFileTest, CutOffFileIsReadAsFarAsItGoes) {
    WriteSound(Path("a.mp3"), SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III, ToneOf(4.0, 440.0, 44100),
               44100);
    std::ifstream in(Path("a.mp3"), std::ios::binary);
    const std::string whole(std::istreambuf_iterator<char>(in), {});
    WriteText("b.mp3", whole.substr(0, whole.size() / 2));
    ASSERT_EQ(file.Open(Path("b.mp3")), 0);
    const auto samples = ReadAll();
    EXPECT_GT(samples.size(), 44100U);
    EXPECT_LT(samples.size(), 3U * 44100);
}

TEST_F(SoundFileTest, SeekGoesToTheWholeMoment) {
    WriteSound(Path("a.wav"), SF_FORMAT_WAV | SF_FORMAT_PCM_16, ToneOf(1.0, 440.0), 8000, 2);
    file.Open(Path("a.wav"));
    const Bytes all = file.Read(100);
    EXPECT_EQ(file.Seek(41), 40);
    EXPECT_EQ(file.Read(4), Bytes(all.begin() + 40, all.begin() + 44));
    EXPECT_EQ(file.Seek(0), 0);
    EXPECT_EQ(file.Read(4), Bytes(all.begin(), all.begin() + 4));
    EXPECT_EQ(file.Seek(std::numeric_limits<std::int32_t>::max()), 16000);
    EXPECT_THAT(file.Read(4), IsEmpty());
}

TEST_F(SoundFileTest, SeekGoesToTheSameSampleInEveryFormat) {
    const auto check = [&](const std::string& path) {
        ASSERT_EQ(file.Open(path), 0);
        const auto all = ReadAll();
        ASSERT_EQ(file.Seek(40000), 40000);
        const auto rest = ReadAll();
        ASSERT_EQ(rest.size(), all.size() - 20000);
        for (std::size_t i = 0; i < rest.size(); ++i) {
            ASSERT_NEAR(rest[i], all[i + 20000], 2) << path << " " << i;
        }
    };
    const auto tone = ToneOf(4.0, 440.0);
    for (const Format& format : kWithoutHeader) {
        SCOPED_TRACE(format.ending);
        WriteSound(Path(std::string("a.") + format.ending), format.format, tone);
        check(Path(std::string("a.") + format.ending));
    }
    WriteSound(Path("a.mp3"), SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III, tone);
    check(Path("a.mp3"));
    WriteSound(Path("a.ogg"), SF_FORMAT_OGG | SF_FORMAT_VORBIS, tone);
    check(Path("a.ogg"));
}

TEST_F(SoundFileTest, NextFileTakesThePlaceOfTheOpenOne) {
    WriteSound(Path("a.wav"), SF_FORMAT_WAV | SF_FORMAT_PCM_16, std::vector<float>(10));
    WriteSound(Path("b.wav"), SF_FORMAT_WAV | SF_FORMAT_PCM_16, std::vector<float>(20), 44100, 2);
    file.Open(Path("a.wav"));
    file.Open(Path("b.wav"));
    EXPECT_EQ(file.SampleRate(), 44100);
    EXPECT_EQ(file.Format(), SampleFormat{2});
    file.Close();
    EXPECT_FALSE(file.HasAudio());
    EXPECT_EQ(file.SampleRate(), 0);
}

}  // namespace
}  // namespace horavex
