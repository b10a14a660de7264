#include <gtest/gtest.h>

#include <fstream>
#include <iostream>

#include "linux/sound/sound_file.h"
#include "sound/sound_files.h"
#include "support/temporary_folder.h"

namespace horavex {
namespace {

long ResidentKilobytes() {
    std::ifstream in("/proc/self/statm");
    long size = 0;
    long resident = 0;
    in >> size >> resident;
    return resident * 4;
}

TEST(HourOfSound, IsReadInTheMemoryOfASecond) {
    constexpr int kRate = 8000;
    const TemporaryFolder folder;
    const std::string path = folder / "hour.flac";
    SF_INFO info{};
    info.samplerate = kRate;
    info.channels = 1;
    info.format = SF_FORMAT_FLAC | SF_FORMAT_PCM_16;
    SNDFILE* written = ::sf_open(path.c_str(), SFM_WRITE, &info);
    const std::vector<float> minute = ToneOf(60.0, 440.0);
    for (int i = 0; i < 60; ++i) {
        ::sf_write_float(written, minute.data(), static_cast<sf_count_t>(minute.size()));
    }
    ::sf_close(written);

    SoundFile file;
    ASSERT_EQ(file.Open(path), 0);
    const auto readMinutes = [&file](int minutes) {
        std::size_t bytes = 0;
        for (int second = 0; second < 60 * minutes; ++second) {
            bytes += file.Read(2 * kRate).size();
        }
        return bytes;
    };
    EXPECT_EQ(readMinutes(1), 60U * 2 * kRate);
    const long before = ResidentKilobytes();
    EXPECT_EQ(readMinutes(59), 59U * 60 * 2 * kRate);
    const long grown = ResidentKilobytes() - before;
    std::cout << "an hour takes " << grown << " KiB more than a minute\n";
    EXPECT_LT(grown, 512);
}

}  // namespace
}  // namespace horavex
