#pragma once

#include <gtest/gtest.h>

#include <string>

#include "e2e/harness/wait_until.h"
#include "platform/broadcast.h"
#include "support/bus_configuration.h"
#include "support/child_process.h"
#include "support/run_ctl.h"
#include "support/temporary_folder.h"

namespace horavex {

/// What a running program tells of a day whose Asr is long over for this machine's clock.
inline ToldState DayInCairo() {
    return {.place = "Cairo, Egypt",
            .zone = "Africa/Cairo",
            .moments = {{"Fajr", "2026-11-21T04:56:00+02:00", "sun"},
                        {"Shurooq", "2026-11-21T06:24:00+02:00", "sun"},
                        {"Zuhr", "2026-11-21T11:41:00+02:00", "sun"},
                        {"Asr", "2026-11-21T14:38:00+02:00", "sun"},
                        {"Maghrib", "2026-11-21T16:57:00+02:00", "sun"},
                        {"Isha", "", "rule"}},
            .nextPrayer = "Asr",
            .nextTime = "2026-11-21T14:38:00+02:00",
            .hijriDate = "1448-06-11",
            .athanPlaying = false,
            .quietUntil = ""};
}

/// A session with a bus of its own.
struct SessionBus : testing::Test {
    SessionBus() {
        WaitUntil("the bus", [this] { return ContentOf(folder / "out").ends_with('\n'); });
        ctl.variables["DBUS_SESSION_BUS_ADDRESS"] = Address();
    }

    std::string Address() const { return "unix:path=" + folder / "bus"; }

    TemporaryFolder folder;
    ChildProcess daemon{{"dbus-daemon", "--nofork", "--print-address=1",
                         "--config-file=" + WriteBusConfiguration(folder.Path())},
                        {},
                        folder / "out",
                        folder / "err"};
    Ctl ctl;
};

}  // namespace horavex
