#pragma once

#include <atomic>

namespace horavex {

/// A library of C functions that is loaded with the first look into it and not at the start, which
/// it would make longer whether it is needed or not. It stays loaded. Any thread may look.
class LateLibrary {
public:
    /// name: of the file that the loader finds, with its version, as "libcurl.so.4".
    explicit constexpr LateLibrary(const char* name) : name_(name) {}

    /// The address of a function. Throws std::runtime_error, in the loader's words, for a library
    /// that cannot be loaded and a function that it does not have.
    void* Find(const char* function) const;

private:
    void* Handle() const;

    const char* name_;
    mutable std::atomic<void*> handle_ = nullptr;
};

/// A function of such a library, called as one that is linked. Signature: that of the library's
/// header. Throws as LateLibrary::Find.
template <typename Signature>
class LateFunction {
public:
    constexpr LateFunction(const LateLibrary& library, const char* name)
        : library_(library), name_(name) {}

    template <typename... Arguments>
    auto operator()(Arguments... arguments) const {
        return reinterpret_cast<Signature*>(library_.Find(name_))(arguments...);
    }

private:
    const LateLibrary& library_;
    const char* name_;
};

}  // namespace horavex

/// Declares a function of a library under its header's name: the compiler knows the one, the loader
/// finds the other.
#define HORAVEX_LATE(library, function)                            \
    inline constexpr LateFunction<decltype(::function)> function { \
        library, #function                                         \
    }
