#include "platform/folder_names.h"

#include "base/fault.h"

namespace horavex {

// The stamp is taken first: a folder that changes meanwhile has another one at the next look.
std::vector<std::string> FolderNames::In(const std::string& folder) {
    try {
        const std::string stamp = files_.StampOf(folder);
        if (stamp.empty()) {
            return files_.List(folder);
        }
        Known& known = known_[folder];
        if (known.stamp != stamp) {
            known.names = files_.List(folder);
            known.stamp = stamp;
        }
        return known.names;
    } catch (const FileFault&) {
        return {};
    }
}

}  // namespace horavex
