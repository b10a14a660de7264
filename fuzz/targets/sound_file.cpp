#include "linux/sound/sound_file.h"

#include "fuzz/input.h"
#include "fuzz/nameless_file.h"
#include "fuzz/target.h"
#include "fuzz/targets/targets.h"

namespace horavex {

namespace {

constexpr std::size_t kLongest = 1 << 16;
constexpr std::int32_t kBlock = 4096;

void Play(AudioFile& sound, std::int64_t position) {
    constexpr int kMostBlocks = 64;
    const int moment = sound.Format().MomentBytes();
    Require(sound.Format().channels > 0 && sound.SampleRate() > 0,
            "a sound has channels and a rate");
    const std::int64_t reached = sound.Seek(position);
    Require(reached >= 0 && reached % moment == 0, "whole moments");
    for (int i = 0; i < kMostBlocks; ++i) {
        const Bytes block = sound.Read(kBlock);
        Require(block.size() <= kBlock && block.size() % static_cast<std::size_t>(moment) == 0,
                "a block holds whole moments and no more than wanted");
        if (block.empty()) {
            return;
        }
    }
}

}  // namespace

void FuzzSoundFile(ByteView bytes) {
    FuzzInput input(bytes);
    const std::int64_t position = input.TakeInt16();
    const NamelessFile file(input.TakeBytes(kLongest));
    SoundFile sound;
    sound.SetMode(kSampleBytes);
    if (sound.Open(file.Path()) == 0 && sound.HasAudio()) {
        Play(sound, position);
    }
    sound.Close();
}

}  // namespace horavex
