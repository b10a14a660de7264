#pragma once

#include <gtest/gtest.h>

#include <string>
#include <tuple>

namespace horavex {

/// The name of a test of a language and of a text size: "GermanLarge".
inline std::string LanguageAndSize(
    const testing::TestParamInfo<std::tuple<std::string, double>>& test) {
    return std::get<0>(test.param) + (std::get<1>(test.param) > 1.0 ? "Large" : "");
}

}  // namespace horavex
