#pragma once

#include <string>
#include <vector>

#include "forms/form_host.h"
#include "linux/zone_database.h"
#include "soak/chance.h"
#include "soak/monkey.h"
#include "soak/soak_checks.h"
#include "soak/soak_record.h"
#include "support/test_platform.h"

namespace horavex {

/// What a user keeps from one process to the next.
struct SoakStore {
    MemoryFiles files;
    MemoryRegistry registry;
};

/// Asks its hooks what a user would be asked.
class SoakDialogs : public Dialogs {
public:
    std::function<void(const std::string& text, const std::string& title)> onMessage;
    std::function<std::string()> onOpen;
    std::function<std::string(const std::string& suffix)> onSave;

    void ShowMessage(const std::string& text, const std::string& title, MessageIcon) override {
        onMessage(text, title);
    }
    std::string OpenFile(const FileRequest&) override { return onOpen(); }
    void Beep() override {}
    std::string SaveFile(const FileRequest&, const std::string& suffix) override {
        return onSave(suffix);
    }
};

class SoakWindows : public RecordingWindows {
public:
    using RecordingWindows::RecordingWindows;

    std::function<void(const std::string& form, const std::string& menu)> onMenu;

    void PopUpMenu(const std::string& form, const std::string& menu, int, int) override {
        onMenu(form, menu);
    }
    void PopUpMenuAtPointer(const std::string& form, const std::string& menu) override {
        onMenu(form, menu);
    }
};

/// One process of the whole program on the ports in memory, with a user who does anything to it.
/// Its seconds go by in its event loop, in every wait and under every modal window. One at a time.
class SoakWorld : private FormHost {
public:
    SoakWorld(Chance& chance, SoakRecord& record, const SoakStore& store, Date now);
    ~SoakWorld() override;

    /// Starts as the process does. Throws ProcessEnded as what follows does.
    void Start();

    /// Goes on to a second that is to come, counted from the midnight that began the day, and
    /// ticks.
    void GoOnTo(int second);

    /// So many things are done one behind the other, and waited for.
    void LetUserAct(int actions);

    /// What is open is closed by its user, but for the face, and edits that wait are thrown away.
    void LetUserClose();

    /// Sets the wall clock.
    void SetClock(Date now);

    SoakStore Store() const { return {platform.files, platform.registry}; }

    TestPlatform platform;

private:
    struct Actor;

    void Loaded(Form& form) override { loaded_.push_back(&form); }
    void Unloaded(Form& form) override { std::erase(loaded_, &form); }
    void BroughtUp(Form& form) override;
    void RunModal(Form& form) override;

    void BindHooks();
    void ExpectSecond();
    void OnSecond();
    void Tick();
    void LetSoundGoOn();
    void LetAlarmEnd();
    void Act();
    void ActOnWindows();
    void ActFromOutside();
    void OpenMenu(const std::string& form, const std::string& menu);
    std::vector<Form*> Reachable() const;
    void Tell(const std::string& text, const std::string& title);

    Chance& chance_;
    SoakRecord& record_;
    Monkey monkey_{chance_};
    ZoneDatabase zones_;
    SoakDialogs dialogs_;
    SoakWindows windows_{platform.desktop};
    const Platform ports_;
    ArrivalLedger arrivals_;
    std::vector<Form*> loaded_;
    std::vector<Form*> modals_;
    std::vector<const char*> actors_;  // who is at it, the innermost last
    int pending_ = 0;                  // actions to come
};

}  // namespace horavex
