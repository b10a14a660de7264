#pragma once

#include "base/fault.h"
#include "platform/fixed_zone_rules.h"
#include "platform/memory_audio.h"
#include "platform/nth_call.h"
#include "platform/recording_desktop.h"
#include "platform/scripted_event_loop.h"
#include "platform/scripted_network.h"

namespace horavex {

// Ports in memory that share one count of calls and fail at the one that a test picks, each as its
// contract says. What never fails is not here.

class FailingShell : public RecordingShell {
public:
    FailingShell(DesktopLog& log, NthCall& call) : RecordingShell(log), call_(call) {}

    bool StartProgram(const std::string& path) override {
        return !call_.Count() && RecordingShell::StartProgram(path);
    }
    bool OpenSystemInformation() override {
        return !call_.Count() && RecordingShell::OpenSystemInformation();
    }
    void WriteStartupEntry(const std::string& baseName) override {
        Check(baseName);
        RecordingShell::WriteStartupEntry(baseName);
    }
    void DeleteStartupEntry(const std::string& baseName) override {
        Check(baseName);
        RecordingShell::DeleteStartupEntry(baseName);
    }

private:
    void Check(const std::string& baseName) {
        if (call_.Count()) {
            throw FileFault(StartupEntryPath(baseName), "made to fail");
        }
    }

    NthCall& call_;
};

/// The machine is offline at the picked call, or its fetch fails.
class FailingNetwork : public ScriptedNetwork {
public:
    explicit FailingNetwork(NthCall& call) : call_(call) {}

    ConnectionState Connection() override {
        return call_.Count() ? ConnectionState{false, 0} : ScriptedNetwork::Connection();
    }
    Bytes Get(const std::string& address) override {
        return call_.Count() ? Bytes() : ScriptedNetwork::Get(address);
    }

private:
    NthCall& call_;
};

/// The sound file vanishes at the picked call.
class FailingAudioFile : public MemoryAudioFile {
public:
    FailingAudioFile(DesktopLog& log, NthCall& call) : MemoryAudioFile(log), call_(call) {}

    int Open(const std::string& path) override {
        return call_.Count() ? 1 : MemoryAudioFile::Open(path);
    }
    bool HasAudio() override { return !call_.Count() && MemoryAudioFile::HasAudio(); }
    Bytes Read(std::int32_t bytes) override {
        return call_.Count() ? Bytes() : MemoryAudioFile::Read(bytes);
    }
    std::int64_t Seek(std::int64_t position) override {
        return call_.Count() ? 0 : MemoryAudioFile::Seek(position);
    }

private:
    NthCall& call_;
};

/// The sound server goes away at the picked call, and tells so out of the event loop.
class FailingAudioPlayer : public MemoryAudioPlayer {
public:
    FailingAudioPlayer(ScriptedEventLoop& loop, NthCall& call) : loop_(loop), call_(call) {}

    void Start() override {
        Check();
        MemoryAudioPlayer::Start();
    }
    void Write(ByteView block) override {
        Check();
        MemoryAudioPlayer::Write(block);
    }
    std::int64_t Position() override {
        Check();
        return MemoryAudioPlayer::Position();
    }

private:
    void Check() {
        if (call_.Count()) {
            loop_.After(0.0, [this] { LoseDevice(); });
        }
    }

    ScriptedEventLoop& loop_;
    NthCall& call_;
};

/// The zone database has no file for the zone at the picked call.
class FailingZoneRules : public FixedZoneRules {
public:
    explicit FailingZoneRules(NthCall& call) : call_(call) {}

    ZoneOffset OffsetAt(const std::string& zone, UtcSeconds moment) const override {
        Check(zone);
        return FixedZoneRules::OffsetAt(zone, moment);
    }
    std::vector<ZoneChange> ChangesBetween(const std::string& zone, UtcSeconds from,
                                           UtcSeconds end) const override {
        Check(zone);
        return FixedZoneRules::ChangesBetween(zone, from, end);
    }

private:
    void Check(const std::string& zone) const {
        if (call_.Count()) {
            throw UnknownZoneFault(zone);
        }
    }

    NthCall& call_;
};

}  // namespace horavex
