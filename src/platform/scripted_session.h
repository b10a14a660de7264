#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/desktop_session.h"
#include "platform/media_players.h"
#include "platform/notices.h"

namespace horavex {

/// Keeps what was shown; a test acts as the user.
class RecordingNotices : public Notices {
public:
    bool hasService = false;
    std::vector<std::pair<NoticeKind, Notice>> shown;  // all of them, in order
    std::map<NoticeKind, Notice> onView;

    bool HasService() override { return hasService; }
    void Show(NoticeKind kind, const Notice& notice) override {
        if (hasService) {
            shown.emplace_back(kind, notice);
            onView[kind] = notice;
        }
    }
    void Withdraw(NoticeKind kind) override { onView.erase(kind); }
};

/// Counts.
class RecordingMediaPlayers : public MediaPlayers {
public:
    int pauses = 0;
    int goingsOn = 0;

    void PauseAll() override { ++pauses; }
    void GoOn() override { ++goingsOn; }
};

class ScriptedSession : public DesktopSession {
public:
    bool isBusy = false;

    bool IsBusy() override { return isBusy; }
};

}  // namespace horavex
