#pragma once

#include <unistd.h>

#include <cerrno>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "base/bytes.h"
#include "base/fault.h"

namespace horavex {

/// Owns a file descriptor of the system; negative owns none.
class Descriptor {
public:
    explicit Descriptor(int number = -1) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor() {
        if (number_ >= 0) {
            ::close(number_);
        }
    }

    bool IsOpen() const { return number_ >= 0; }
    int Number() const { return number_; }

private:
    int number_;
};

/// Turns an error number of the system into a FileFault that names the path.
[[noreturn]] inline void ThrowFileFault(const std::string& path, int error = errno) {
    throw FileFault(path, std::generic_category().message(error));
}

/// The path as the system takes it. Throws FileFault for one with a zero character inside, which
/// the system would cut short there.
inline const char* SystemPath(const std::string& path) {
    if (path.find('\0') != std::string::npos) {
        ThrowFileFault(path, EINVAL);
    }
    return path.c_str();
}

/// Writes all bytes, however many calls it takes. Throws FileFault with the path.
void WriteAll(const Descriptor& file, ByteView bytes, const std::string& path);

/// The same with the bytes of a text, none of which are copied.
void WriteText(const Descriptor& file, std::string_view text, const std::string& path);

}  // namespace horavex
