#pragma once

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "support/run_ctl.h"

namespace horavex {

using Json = nlohmann::ordered_json;

/// What a call with --json prints; it ends with the given status. Throws, and so fails the test,
/// for anything else than one JSON text.
inline Json JsonOf(const Ctl& ctl, const std::string& line, std::vector<std::string> more = {},
                   int status = 0) {
    more.push_back("--json");
    const ProgramRun run = ctl.Run(line, more);
    EXPECT_EQ(run.status, status) << line << "\n" << run.err;
    return Json::parse(run.out);
}

/// The keys of an object in the order of the text.
inline std::vector<std::string> KeysOf(const Json& object) {
    std::vector<std::string> keys;
    for (const auto& [key, value] : object.items()) {
        keys.push_back(key);
    }
    return keys;
}

}  // namespace horavex
