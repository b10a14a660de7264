#pragma once

#include "platform/face.h"
#include "platform/network.h"
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
    void StartDrag(const std::string&) override {}
    void PopUpMenu(const std::string&, const std::string&, int, int) override {}
    void PopUpMenuAtPointer(const std::string&, const std::string&) override {}
    void Activate(const std::string&) override {}
    void SetForeground(const std::string&) override {}
};

class AbsentTray : public Tray {
public:
    void Add(const std::string&) override {}
    void Remove() override {}
    void SetTip(const std::string&) override {}
    bool HasHost() override { return false; }
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
};

}  // namespace horavex
