#pragma once

#include <filesystem>

#include "lib/text_source.h"
#include "lib/tool_platform.h"

namespace horavex::bench {

/// The built data files, in memory.
struct BuiltPlaces : ToolPlatform {
    BuiltPlaces() {
        for (const auto& file : std::filesystem::directory_iterator(HORAVEX_DATA_FOLDER "/Dat")) {
            files.WriteWhole("/program/Dat/" + file.path().filename().string(),
                             BytesOf(ReadText(file.path().string())));
        }
    }
};

}  // namespace horavex::bench
