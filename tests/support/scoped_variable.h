#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace horavex {

/// A variable of the environment, set or (with nullptr) taken away for the length of a test.
class ScopedVariable {
public:
    ScopedVariable(std::string name, const char* value) : name_(std::move(name)) {
        if (const char* former = std::getenv(name_.c_str())) {
            former_ = former;
        }
        Put(value);
    }

    ~ScopedVariable() { Put(former_ ? former_->c_str() : nullptr); }

    ScopedVariable(const ScopedVariable&) = delete;
    ScopedVariable& operator=(const ScopedVariable&) = delete;

private:
    void Put(const char* value) const {
        if (value == nullptr) {
            ::unsetenv(name_.c_str());
        } else {
            ::setenv(name_.c_str(), value, 1);
        }
    }

    std::string name_;
    std::optional<std::string> former_;
};

}  // namespace horavex
