#include "athan/athan_state.h"

#include "base/program_state.h"
#include "store/register.h"

namespace horavex {

std::int16_t athanActive = 0;
std::int16_t alarmActive = 0;
std::int16_t alarmDismissed = 0;
std::array<std::string, 2> customAthanFiles;

namespace {

const ProgramStateReset reset([] {
    athanActive = 0;
    alarmActive = 0;
    alarmDismissed = 0;
    customAthanFiles = {};
});

}  // namespace

void LoadCustomAthanFiles() {
    for (std::size_t i = 0; i < customAthanFiles.size(); ++i) {
        CRegister().REGGetSetting(kLocalMachine, kSettingsKey,
                                  "Custom Athan File" + std::to_string(i), "", customAthanFiles[i]);
    }
}

}  // namespace horavex
