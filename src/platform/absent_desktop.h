#pragma once

#include "platform/audio_file.h"
#include "platform/audio_player.h"
#include "platform/broadcast.h"
#include "platform/desktop_session.h"
#include "platform/face.h"
#include "platform/media_players.h"
#include "platform/network.h"
#include "platform/notices.h"
#include "platform/shell.h"
#include "platform/tray.h"
#include "platform/windows.h"

namespace horavex {

// The desktop's ports of a front end that has no desktop: nothing shows and nothing happens.

class AbsentFace : public Face {
public:
    void LoadMovie(int, const std::string&) override {}
    void SetVariable(const std::string&, const std::string&) override {}
    void Play() override {}
    void Place(double, double) override {}
};

class AbsentWindows : public Windows {
public:
    ScreenSize Screen() override { return {0.0, 0.0}; }
    ScreenCorner WorkArea() override { return {0.0, 0.0}; }
    void StartDrag(const std::string&) override {}
    void PopUpMenu(const std::string&, const std::string&, int, int) override {}
    void PopUpMenuAtPointer(const std::string&, const std::string&) override {}
    void Activate(const std::string&) override {}
    void SetForeground(const std::string&) override {}
    void SetTopMost(const std::string&, bool) override {}
    void Print(const std::string&) override {}
};

class AbsentTray : public Tray {
public:
    void Add(const std::string&) override {}
    void Remove() override {}
    void SetTip(const std::string&) override {}
    bool HasHost() override { return false; }
    void SetQuiet(bool) override {}
};

class AbsentShell : public Shell {
public:
    void OpenDateTimeTool() override {}
    void OpenAddress(const std::string&) override {}
    bool StartProgram(const std::string&) override { return false; }
    bool OpenSystemInformation() override { return false; }
    void ShowHelp(const HelpView&) override {}
    void CloseHelp() override {}
    void WriteStartupEntry(const std::string&) override {}
    bool HasStartupEntry(const std::string&) override { return false; }
    void DeleteStartupEntry(const std::string&) override {}
    std::string StartupEntryPath(const std::string&) override { return {}; }
};

class AbsentNetwork : public Network {
public:
    ConnectionState Connection() override { return {false, 0}; }
    Bytes Get(const std::string&) override { return {}; }
    SignedBody GetSigned(const std::string&, const std::string&) override { return {{}, false}; }
};

/// No file opens.
class AbsentAudioFile : public AudioFile {
public:
    void SetMode(int) override {}
    int Open(const std::string&) override { return 1; }
    void Close() override {}
    bool HasAudio() override { return false; }
    int SampleRate() override { return 0; }
    SampleFormat Format() override { return {0}; }
    Bytes Read(std::int32_t) override { return {}; }
    std::int64_t Seek(std::int64_t) override { return 0; }
};

class AbsentAudioPlayer : public AudioPlayer {
public:
    void SetFormat(int, SampleFormat) override {}
    std::int32_t BytesFor(int) override { return 0; }
    void Start() override {}
    void Write(ByteView) override {}
    void Pause() override {}
    void Stop() override {}
    std::int64_t Position() override { return 0; }
    std::vector<SoundDevice> Devices() override { return {}; }
    void UseDevice(const std::string&) override {}
    std::string Trouble() override { return {}; }
};

class AbsentNotices : public Notices {
public:
    bool HasService() override { return false; }
    void Show(NoticeKind, const Notice&) override {}
    void Withdraw(NoticeKind) override {}
};

class AbsentMediaPlayers : public MediaPlayers {
public:
    void PauseAll() override {}
    void GoOn() override {}
};

class AbsentBroadcast : public Broadcast {
public:
    void Publish(const ToldState&) override {}
    void TellPrayerArrived(const std::string&, const std::string&) override {}
    void TellReminderDue(const std::string&, const std::string&, int) override {}
    void TellAthanStopped() override {}
    void TellDayChanged(const std::string&) override {}
    bool ShowRunning() override { return false; }
};

class AbsentSession : public DesktopSession {
public:
    bool IsBusy() override { return false; }
};

}  // namespace horavex
