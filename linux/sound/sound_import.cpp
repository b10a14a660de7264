#include "linux/sound/sound_import.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

#include "base/fault.h"
#include "base/text.h"
#include "linux/sound/sndfile_library.h"
#include "linux/system_call.h"

namespace horavex {

namespace {

constexpr sf_count_t kCopiedAtOnce = 65536;  // moments
constexpr const char* kBareEndings[] = {".raw", ".pcm", "adpcm", ".g721", ".g723", ".g726"};

struct Closer {
    void operator()(SNDFILE* file) const { sndfile::sf_close(file); }
};

using Sound = std::unique_ptr<SNDFILE, Closer>;

// The library would wait for the writer of a pipe.
Descriptor OpenRegular(const std::string& path) {
    Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat status = {};
    const bool isRegular =
        file.IsOpen() && ::fstat(file.Number(), &status) == 0 && S_ISREG(status.st_mode);
    return isRegular ? std::move(file) : Descriptor(-1);
}

// Without a name the library has the content alone to go by.
bool OpensByContent(const Descriptor& file) {
    SF_INFO info{};
    return Sound(sndfile::sf_open_fd(file.Number(), SFM_READ, &info, SF_FALSE)) != nullptr;
}

bool OpensByName(const std::string& path) {
    SF_INFO info{};
    return Sound(sndfile::sf_open(path.c_str(), SFM_READ, &info)) != nullptr;
}

bool HasBareEnding(const std::string& path) {
    const std::string name = AsciiLower(path);
    return std::any_of(std::begin(kBareEndings), std::end(kBareEndings),
                       [&name](const char* ending) { return name.ends_with(ending); });
}

// A file in memory, as the library writes it: it comes back to its header in the end.

struct Memory {
    Bytes bytes;
    std::size_t at = 0;
};

Memory& MemoryOf(void* user) {
    return *static_cast<Memory*>(user);
}

sf_count_t Length(void* user) {
    return static_cast<sf_count_t>(MemoryOf(user).bytes.size());
}

sf_count_t Tell(void* user) {
    return static_cast<sf_count_t>(MemoryOf(user).at);
}

sf_count_t SeekIn(sf_count_t offset, int whence, void* user) {
    const sf_count_t from = whence == SEEK_SET ? 0 : whence == SEEK_CUR ? Tell(user) : Length(user);
    MemoryOf(user).at = static_cast<std::size_t>(std::max<sf_count_t>(from + offset, 0));
    return Tell(user);
}

sf_count_t ReadFrom(void* target, sf_count_t count, void* user) {
    Memory& memory = MemoryOf(user);
    const std::size_t rest = memory.bytes.size() - std::min(memory.at, memory.bytes.size());
    const std::size_t taken = std::min(rest, static_cast<std::size_t>(count));
    std::memcpy(target, memory.bytes.data() + memory.at, taken);
    memory.at += taken;
    return static_cast<sf_count_t>(taken);
}

sf_count_t WriteTo(const void* source, sf_count_t count, void* user) {
    Memory& memory = MemoryOf(user);
    const auto size = static_cast<std::size_t>(count);
    memory.bytes.resize(std::max(memory.bytes.size(), memory.at + size));
    std::memcpy(memory.bytes.data() + memory.at, source, size);
    memory.at += size;
    return count;
}

Sound OpenFlac(Memory& memory, const SF_INFO& source) {
    SF_VIRTUAL_IO calls{Length, SeekIn, ReadFrom, WriteTo, Tell};
    SF_INFO info{};
    info.samplerate = source.samplerate;
    info.channels = source.channels;
    info.format = SF_FORMAT_FLAC | SF_FORMAT_PCM_16;
    return Sound(sndfile::sf_open_virtual(&calls, SFM_WRITE, &info, &memory));
}

void Copy(SNDFILE* from, SNDFILE* to, int channels) {
    std::vector<float> samples(static_cast<std::size_t>(kCopiedAtOnce * channels));
    sf_count_t read = 0;
    while ((read = sndfile::sf_readf_float(from, samples.data(), kCopiedAtOnce)) > 0) {
        sndfile::sf_writef_float(to, samples.data(), read);
    }
}

}  // namespace

SoundKind KindOfSoundFile(const std::string& path) {
    const Descriptor file = OpenRegular(path);
    if (!file.IsOpen()) {
        return SoundKind::kUnknown;
    }
    if (OpensByContent(file)) {
        return SoundKind::kByContent;
    }
    if (OpensByName(path)) {
        return SoundKind::kByEnding;
    }
    return HasBareEnding(path) ? SoundKind::kBareSamples : SoundKind::kUnknown;
}

Bytes FlacOf(const std::string& path) {
    SF_INFO info{};
    const Sound sound(sndfile::sf_open(path.c_str(), SFM_READ, &info));
    Memory memory;
    Sound flac = sound == nullptr ? nullptr : OpenFlac(memory, info);
    if (flac == nullptr) {
        throw FileFault(path, "is no sound that can be re-encoded");
    }
    Copy(sound.get(), flac.get(), info.channels);
    flac.reset();
    return std::move(memory.bytes);
}

}  // namespace horavex
