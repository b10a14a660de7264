#include "athan/player.h"

#include <limits>

#include "athan/athan_state.h"
#include "athan/prayer_sound.h"
#include "base/fault.h"
#include "base/int16.h"
#include "base/program_state.h"
#include "platform/platform.h"
#include "windows/frm_azan.h"

namespace horavex {

std::int16_t Paused = kFalse;

namespace {

std::int16_t fileOpen = kFalse;
std::int16_t playing = kFalse;  // a pause included
std::uint64_t plays = 0;
std::int32_t blockBytes = 0;   // one second of the open file, the size of one read
std::int32_t playedBytes = 0;  // where a pause has stopped, from the beginning of the file
std::int64_t readBytes = 0;    // where the next block begins, likewise
Gain gain;                     // of the open file

const ProgramStateReset reset([] {
    fileOpen = kFalse;
    playing = kFalse;
    Paused = kFalse;
    plays = 0;
    blockBytes = 0;
    playedBytes = 0;
    readBytes = 0;
    gain = {};
});

constexpr int kBlockMs = 1000;
constexpr std::size_t kShortestBlock = 2;  // bytes; less is the end of the file

std::int32_t ToPosition(std::int64_t bytes) {
    if (bytes > std::numeric_limits<std::int32_t>::max()) {
        throw OverflowFault("a position in a sound is too large: " + std::to_string(bytes));
    }
    return static_cast<std::int32_t>(bytes);
}

bool OpenSound(const std::string& path) {
    AudioFile& file = Ports().audioFile;
    return !path.empty() && file.Open(path) == 0 && file.HasAudio();
}

/// Leaves a file without a rise untouched: what tells its length is a walk to its end, which may
/// cost the file where somebody takes it away meanwhile.
Gain GainOfOpenFile(const Loudness& loudness) {
    AudioFile& file = Ports().audioFile;
    const int rate = file.SampleRate();
    const SampleFormat format = file.Format();
    std::int64_t length = 0;
    if (loudness.fadeSeconds > 0) {
        length = file.Seek(std::numeric_limits<std::int64_t>::max());
        file.Seek(0);
    }
    return {loudness, rate, format, length};
}

void RemoveAthanWindow() {
    athanActive = kFalse;
    frmAzan->Unload();
}

void Pause() {
    Paused = kTrue;
    if (fileOpen != kFalse) {
        playedBytes = ToPosition(playedBytes + Ports().audioPlayer.Position());
    }
    Ports().audioPlayer.Pause();
}

void Resume() {
    Paused = kFalse;
    if (fileOpen != kFalse) {
        playedBytes = ToPosition(Ports().audioFile.Seek(playedBytes));
        readBytes = playedBytes;
    }
    FeedAudio();
    FeedAudio();
    Ports().audioPlayer.Start();
}

/// An athan and a sound that is only tried end alike. A window would be gone with a short tone
/// before it can be read.
void AudioPlayer_EndPlay() {
    if (!EndsBeforeItsAthan()) {
        RemoveAthanWindow();
    }
    StopPlay();
}

}  // namespace

bool IsPlaying() {
    return playing != kFalse;
}

std::uint64_t PlayNumber() {
    return plays;
}

void OpenFileForPlay(const std::string& path, const Loudness& loudness) {
    ++plays;
    StopPlay();
    CloseFile();
    if (!OpenSound(path)) {
        return;
    }
    AudioPlayer& player = Ports().audioPlayer;
    player.SetFormat(Ports().audioFile.SampleRate(), Ports().audioFile.Format());
    blockBytes = player.BytesFor(kBlockMs);
    fileOpen = kTrue;
    readBytes = 0;
    gain = GainOfOpenFile(loudness);
    StartPlay();
}

void StartPlay() {
    if (fileOpen == kFalse) {
        return;
    }
    if (playing == kFalse) {
        playing = kTrue;
        Ports().audioPlayer.Start();
        FeedAudio();
        FeedAudio();
    }
    if (Paused != kFalse) {
        PausePlay();
    }
}

void FeedAudio() {
    if (playing == kFalse) {
        RemoveAthanWindow();
        return;
    }
    if (fileOpen == kFalse) {
        return;
    }
    Bytes block = Ports().audioFile.Read(blockBytes);
    // Behind the last block the player's own end of play comes.
    if (block.size() >= kShortestBlock) {
        gain.Apply(block, readBytes);
        readBytes += static_cast<std::int64_t>(block.size());
        Ports().audioPlayer.Write(block);
    }
}

void PausePlay() {
    if (playing == kFalse) {
        return;
    }
    if (Paused != kFalse) {
        Resume();
    } else {
        Pause();
    }
}

void StopPlay() {
    Ports().audioPlayer.Stop();
    playing = kFalse;
    Paused = kFalse;
    playedBytes = 0;
    if (fileOpen != kFalse) {
        Ports().audioFile.Seek(0);
        readBytes = 0;
    }
}

void CloseFile() {
    if (fileOpen != kFalse) {
        Ports().audioFile.Close();
        fileOpen = kFalse;
    }
}

void BindPlayer() {
    AudioPlayer& player = Ports().audioPlayer;
    player.onEndArrayPlay = FeedAudio;
    player.onRequestOnLoadArray = FeedAudio;
    player.onEndPlay = AudioPlayer_EndPlay;
}

}  // namespace horavex
