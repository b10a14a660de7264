#pragma once

#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "base/fault.h"
#include "platform/dialogs.h"
#include "platform/face.h"
#include "platform/instance_guard.h"
#include "platform/shell.h"
#include "platform/tray.h"
#include "platform/windows.h"

namespace horavex {

/// Writes down in one list, in order, what the ports of the desktop are asked for.
struct DesktopLog {
    std::vector<std::string> calls;

    void Note(std::string call) { calls.push_back(std::move(call)); }
};

class RecordingFace : public Face {
public:
    /// name goes in front of what is noted; empty for the face of frmMain.
    explicit RecordingFace(DesktopLog& log, std::string name = "")
        : log_(log), name_(std::move(name)) {}

    void LoadMovie(int layer, const std::string& url) override {
        log_.Note(name_ + "LoadMovie " + std::to_string(layer) + " " + url);
    }
    void SetVariable(const std::string& name, const std::string& value) override {
        variables.emplace_back(name, value);
    }
    void ShowDay(const DayView& day) override { onShowDay(day); }
    void TakeShape(const FaceShape& taken) override { shape = taken; }
    void Play() override { log_.Note(name_ + "Play"); }
    void Place(double left, double top) override {
        log_.Note(name_ + "Place " + std::to_string(static_cast<int>(left)) + " " +
                  std::to_string(static_cast<int>(top)));
    }

    /// The last value of a variable; empty where it was never set.
    std::string Value(const std::string& name) const {
        for (auto it = variables.rbegin(); it != variables.rend(); ++it) {
            if (it->first == name) {
                return it->second;
            }
        }
        return {};
    }

    std::vector<std::pair<std::string, std::string>> variables;  // in the order of setting
    FaceShape shape;
    std::function<void(const DayView&)> onShowDay = [](const DayView&) {};

private:
    DesktopLog& log_;
    std::string name_;
};

class RecordingWindows : public Windows {
public:
    explicit RecordingWindows(DesktopLog& log) : log_(log) {}

    ScreenSize Screen() override { return screen; }
    ScreenCorner WorkArea() override { return workArea; }
    void StartDrag(const std::string& form) override { log_.Note("StartDrag " + form); }
    void PopUpMenu(const std::string& form, const std::string& menu, int x, int y) override {
        log_.Note("PopUpMenu " + form + " " + menu + " " + std::to_string(x) + " " +
                  std::to_string(y));
    }
    void PopUpMenuAtPointer(const std::string& form, const std::string& menu) override {
        log_.Note("PopUpMenuAtPointer " + form + " " + menu);
    }
    void Activate(const std::string& form) override { log_.Note("Activate " + form); }
    void SetForeground(const std::string& form) override { log_.Note("SetForeground " + form); }
    void SetTopMost(const std::string& form, bool topMost) override {
        log_.Note((topMost ? "SetTopMost " : "SetNotTopMost ") + form);
    }
    void Print(const std::string& form) override { log_.Note("Print " + form); }

    ScreenSize screen{19200.0, 10800.0};
    ScreenCorner workArea{19200.0, 10400.0};

private:
    DesktopLog& log_;
};

class RecordingTray : public Tray {
public:
    explicit RecordingTray(DesktopLog& log) : log_(log) {}

    void Add(const std::string& tip) override { log_.Note("TrayAdd " + tip); }
    void Remove() override { log_.Note("TrayRemove"); }
    void SetTip(const std::string& tip) override { log_.Note("TraySetTip " + tip); }
    void SetQuiet(bool quiet) override { isQuiet = quiet; }
    bool HasHost() override { return hasHost; }

    bool hasHost = true;
    bool isQuiet = false;

private:
    DesktopLog& log_;
};

class RecordingShell : public Shell {
public:
    explicit RecordingShell(DesktopLog& log) : log_(log) {}

    void OpenDateTimeTool() override { log_.Note("OpenDateTimeTool"); }
    void OpenAddress(const std::string& address) override { log_.Note("OpenAddress " + address); }
    bool StartProgram(const std::string& path) override {
        log_.Note("StartProgram " + path);
        return startsPrograms;
    }
    bool OpenSystemInformation() override {
        log_.Note("OpenSystemInformation");
        return hasSystemInformation;
    }
    void ShowHelp(const HelpView& view) override {
        log_.Note("ShowHelp " + view.pages.at(view.page).title);
        help = view;
    }
    void CloseHelp() override { help.reset(); }
    void WriteStartupEntry(const std::string& baseName) override {
        log_.Note("WriteStartupEntry " + baseName);
        if (refusesStartupEntries) {
            throw FileFault(StartupEntryPath(baseName), "not allowed");
        }
        startupEntries.insert(baseName);
    }
    bool HasStartupEntry(const std::string& baseName) override {
        return startupEntries.contains(baseName);
    }
    void DeleteStartupEntry(const std::string& baseName) override {
        log_.Note("DeleteStartupEntry " + baseName);
        if (keepsStartupEntries) {
            throw FileFault(StartupEntryPath(baseName), "not allowed");
        }
        startupEntries.erase(baseName);
    }
    std::string StartupEntryPath(const std::string& baseName) override {
        return "/startup/" + baseName;
    }

    std::set<std::string> startupEntries;
    bool keepsStartupEntries = false;    // refuses to delete
    bool refusesStartupEntries = false;  // refuses to write
    bool startsPrograms = true;
    bool hasSystemInformation = true;
    std::optional<HelpView> help;  // what the viewer shows

private:
    DesktopLog& log_;
};

/// Writes down each message box and closes it at once; answers for the user who chooses a file to
/// open or to save.
class RecordingDialogs : public Dialogs {
public:
    struct Message {
        std::string text;
        std::string title;
        MessageIcon icon;
    };

    void ShowMessage(const std::string& text, const std::string& title, MessageIcon icon) override {
        messages.push_back({text, title, icon});
    }

    std::string OpenFile(const FileRequest& request) override {
        fileRequests.push_back(request);
        return chosenFile;
    }

    void Beep() override { ++beeps; }

    std::string SaveFile(const FileRequest& request, const std::string& suffix) override {
        saveRequests.push_back({request, suffix});
        return savedFile;
    }

    struct SaveRequest {
        FileRequest request;
        std::string suffix;
    };

    std::vector<Message> messages;
    std::vector<FileRequest> fileRequests;
    std::string chosenFile;  // empty for a user who cancels
    std::vector<SaveRequest> saveRequests;
    std::string savedFile;  // empty for a user who cancels
    int beeps = 0;
};

/// Answers as it is told.
class FixedInstanceGuard : public InstanceGuard {
public:
    bool AnotherIsRunning() override { return anotherIsRunning; }

    bool anotherIsRunning = false;
};

}  // namespace horavex
