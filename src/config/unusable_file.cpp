#include "config/unusable_file.h"

#include <set>
#include <string>

#include "base/program_state.h"
#include "platform/platform.h"
#include "store/settings_record.h"
#include "store/text_table.h"

namespace horavex {

namespace {

std::set<std::string> told;

const ProgramStateReset reset([] { told.clear(); });

/// Without a table of texts the fault speaks for itself.
std::string Introduction() {
    std::string text;
    RunStep([&] { text = TextItem(TextEntry::kUnusableFile, ActiveSettings.Language) + ":\n"; });
    return text;
}

}  // namespace

void TellUnusableFile(const Fault& fault) {
    if (told.insert(fault.what()).second) {
        Ports().dialogs.ShowMessage(Introduction() + fault.what(), "", MessageIcon::kExclamation);
    }
}

}  // namespace horavex
