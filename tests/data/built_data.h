#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/program_state.h"
#include "linux/posix_files.h"
#include "platform/fixed_formats.h"
#include "platform/fixed_instance_guard.h"
#include "platform/manual_clock.h"
#include "platform/memory_registry.h"
#include "platform/platform.h"
#include "platform/recording_dialogs.h"
#include "platform/scripted_event_loop.h"
#include "support/build_folder.h"

namespace horavex {

/// A fresh process over the program folder that the build has compiled; everything else is in
/// memory.
class BuiltData : public testing::Test {
protected:
    BuiltData() {
        InstallPlatform(&platform_);
        ResetProgramState();
    }
    ~BuiltData() override {
        ResetProgramState();
        InstallPlatform(nullptr);
    }

    PosixFiles files;
    ProgramFolder folder{files, BuiltProgramFolder(), BuiltProgramFolder()};
    RecordingDialogs dialogs;

private:
    ManualClock clock_;
    ScriptedEventLoop loop_{clock_};
    FixedFormats formats_;
    MemoryRegistry registry_;
    FixedInstanceGuard instanceGuard_;
    Platform platform_{clock_, loop_, files, folder, formats_, dialogs, registry_, instanceGuard_};
};

}  // namespace horavex
