#pragma once

#include "fuzz/input.h"
#include "support/data_folder.h"
#include "support/test_platform.h"

namespace horavex {

/// A program folder of sound sample files, a few of which an input damages.
class DamagedFolder {
public:
    /// Each damage takes the number of a file, what is done and, two bytes each, where and how
    /// much: bytes are written over others, put at the end, cut off the end, or the file is put in
    /// the place of its whole content or taken away. Takes the input up to a byte of 255.
    DamagedFolder(FuzzInput& input, const std::vector<std::string>& files);

    TestPlatform platform;

private:
    void Damage(FuzzInput& input, const std::string& file);
};

}  // namespace horavex
