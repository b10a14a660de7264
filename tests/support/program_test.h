#pragma once

#include <gtest/gtest.h>

#include "engine/year_table.h"
#include "forms/form_host.h"
#include "shell/wiring.h"
#include "store/location_record.h"
#include "store/settings_files.h"
#include "store/settings_record.h"
#include "support/program_copy.h"
#include "support/test_platform.h"
#include "windows/f_message.h"
#include "windows/frm_main.h"
#include "windows/horavex_main_form.h"

namespace horavex {

/// Writes into the desktop's log when windows come and go.
class LoggingHost : public FormHost {
public:
    explicit LoggingHost(DesktopLog& log) : log_(log) { InstallFormHost(this); }
    ~LoggingHost() override { InstallFormHost(nullptr); }

    void Loaded(Form& form) override { log_.Note("load " + form.Name()); }
    void Unloaded(Form& form) override { log_.Note("unload " + form.Name()); }
    void BroughtUp(Form& form) override { log_.Note("show " + form.Name()); }
    void RunModal(Form& form) override { log_.Note("modal " + form.Name()); }

private:
    DesktopLog& log_;
};

/// The whole program on the ports in memory, over the compiled data: a fresh install whose clock
/// stands at noon of Saturday, 21 November 2026.
struct ProgramTest : testing::Test {
    ProgramTest() {
        CopyBuiltProgramFolder(platform.files);
        BindWindows();
    }

    /// Starts as the process does.
    void Start() { frmMain->Load(); }

    /// A start that is no first run, with its calls forgotten.
    void StartAgain() {
        platform.registry.CreateKey("Software\\Horavex\\Settings");
        platform.registry.SetValue("Software\\Horavex\\Settings", "Isha Dep Angle", "18");
        Start();
        platform.desktop.calls.clear();
        platform.face.variables.clear();
    }

    std::string Stored(const std::string& valueName) {
        std::string value;
        platform.registry.QueryValue("Software\\Horavex\\Settings", valueName, value);
        return value;
    }

    void SetClock(int year, int month, int day, int hour, int minute, int second) {
        platform.clock.Set(DateSerial(year, month, day) + TimeSerial(hour, minute, second));
    }

    TestPlatform platform;
    LoggingHost windows{platform.desktop};
};

}  // namespace horavex
