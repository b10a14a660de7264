// Plays a score of data/athan into a sound file.
// Arguments: the score, the sound file.

#include <sndfile.h>

#include <filesystem>
#include <iostream>
#include <memory>
#include <vector>

#include "base/fault.h"
#include "lib/data_writer.h"
#include "lib/instruments.h"
#include "lib/mastering.h"
#include "lib/room.h"

namespace {

using namespace horavex;

// A library that was built without the first writes the second; players go by the content.
constexpr int kFormats[] = {SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III,
                            SF_FORMAT_OGG | SF_FORMAT_VORBIS};

SF_INFO FormatOfThisLibrary() {
    SF_INFO info{};
    info.samplerate = kPlayedRate;
    info.channels = 2;
    for (const int format : kFormats) {
        info.format = format;
        if (::sf_format_check(&info) != 0) {
            return info;
        }
    }
    throw BoundsFault("the sound library writes neither MP3 nor Ogg");
}

std::vector<float> SideBySide(const StereoSound& sound) {
    std::vector<float> samples;
    samples.reserve(sound.left.size() * 2);
    for (std::size_t i = 0; i < sound.left.size(); ++i) {
        samples.push_back(static_cast<float>(sound.left[i]));
        samples.push_back(static_cast<float>(sound.right[i]));
    }
    return samples;
}

void WriteSound(const std::string& path, const StereoSound& sound) {
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    SF_INFO info = FormatOfThisLibrary();
    const std::unique_ptr<SNDFILE, int (*)(SNDFILE*)> file(
        ::sf_open(path.c_str(), SFM_WRITE, &info), ::sf_close);
    const std::vector<float> samples = SideBySide(sound);
    const auto count = static_cast<sf_count_t>(samples.size());
    if (file == nullptr || ::sf_write_float(file.get(), samples.data(), count) != count) {
        throw FileFault(path, ::sf_strerror(file.get()));
    }
}

void Build(char** arguments) {
    const Score score = ReadScore(arguments[0]);
    const StereoSound sound =
        Master(PlayInRoom(PlayScore(score), score.tail), LengthOf(score) + score.tail, score.tail);
    WriteSound(arguments[1], sound);
    std::cout << sound.left.size() / kPlayedRate << " seconds\n";
}

}  // namespace

int main(int argumentCount, char** arguments) {
    return RunTool("build_athan", argumentCount, 2, Build, arguments);
}
