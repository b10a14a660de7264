#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "base/bytes.h"
#include "support/run_ctl.h"

namespace horavex {

/// A copy of the built program folder, the one that its ctl reads, to be damaged file by file.
/// Names of files are relative to it.
class DamagedFolder {
public:
    Ctl ctl;
    const std::string path = ctl.UseFolderCopy();

    std::size_t SizeOf(const std::string& file) const {
        return std::filesystem::file_size(path + "/" + file);
    }

    void Truncate(const std::string& file, std::size_t size) const {
        std::filesystem::resize_file(path + "/" + file, size);
    }

    void Remove(const std::string& file) const { std::filesystem::remove(path + "/" + file); }

    /// Puts a number over the bytes from an offset on.
    void PutNumber(const std::string& file, std::size_t offset, std::int16_t value) const {
        Bytes bytes = Read(file);
        PutInt16(bytes, offset, value);
        Write(file, bytes);
    }

    void Append(const std::string& file, std::size_t count, std::uint8_t byte) const {
        Bytes bytes = Read(file);
        bytes.resize(bytes.size() + count, byte);
        Write(file, bytes);
    }

    /// Random bytes in the number that the file had; the same in every run.
    void Randomize(const std::string& file) const {
        std::mt19937 random(1);
        Bytes bytes(SizeOf(file));
        for (std::uint8_t& byte : bytes) {
            byte = static_cast<std::uint8_t>(random());
        }
        Write(file, bytes);
    }

    void Write(const std::string& file, const Bytes& bytes) const {
        std::ofstream(path + "/" + file, std::ios::binary) << StringOf(bytes);
    }

private:
    Bytes Read(const std::string& file) const {
        std::ifstream in(path + "/" + file, std::ios::binary);
        return BytesOf(std::string(std::istreambuf_iterator<char>(in), {}));
    }
};

/// Every file of a program folder.
inline constexpr const char* kDataFiles[] = {
    "Dat/SI.DAt", "Dat/S.DAT",  "Dat/CI.DAT",       "Dat/C.DAt",        "Dat/PI.DAT",
    "Dat/P.DAT",  "Dat/RI.DAT", "Dat/A.dat",        "Dat/UQ.DAT",       "Dat/TI.DAT",
    "Dat/T.DAT",  "Dat/AI.DAT", "Dat/Settings.DAT", "lang/English.ini", "lang/Arabic.ini",
    "Dat/ZI.DAT", "Dat/Z.DAT",  "Dat/N.DAT"};

/// The name of a test for a file.
inline std::string TestName(const testing::TestParamInfo<const char*>& info) {
    std::string name = info.param;
    for (char& c : name) {
        c = c == '/' || c == '.' ? '_' : c;
    }
    return name;
}

}  // namespace horavex
