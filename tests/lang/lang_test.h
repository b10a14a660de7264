#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "support/data_folder.h"
#include "support/test_platform.h"

namespace horavex {

/// A fresh process over in-memory ports whose program folder gets the packs that a test writes.
class LangTest : public testing::Test {
protected:
    void WritePack(const std::string& fileName, const std::string& text) {
        data.Write("lang/" + fileName, text);
    }

    TestPlatform platform;
    DataFolder data{platform.files};
};

}  // namespace horavex
