#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/data_folder.h"
#include "support/test_platform.h"

namespace horavex {

/// A fresh process over in-memory ports with an empty program folder.
class DataFolderTest : public testing::Test {
protected:
    TestPlatform platform;
    DataFolder data{platform.files};
};

}  // namespace horavex
