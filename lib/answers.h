#pragma once

#include <algorithm>
#include <cstddef>
#include <string>

#include "base/fault.h"
#include "lib/horavex.h"

namespace horavex {

// The edge of the library: values come in and go out by the sizes that both sides know, and no
// exception leaves it.

/// An answer other than HORAVEX_OK.
class Refusal : public Fault {
public:
    Refusal(horavex_status status, const std::string& text, int dayOfYear = 0)
        : Fault(text), status_(status), dayOfYear_(dayOfYear) {}

    horavex_status Status() const { return status_; }
    int DayOfYear() const { return dayOfYear_; }

private:
    horavex_status status_;
    int dayOfYear_;
};

/// Throws HORAVEX_BAD_ARGUMENT unless sound. text: what has to be.
void Require(bool sound, const std::string& text);

/// The same for a number within a range; NaN is in none.
void RequireRange(const char* name, double value, double least, double most);

/// A caller's struct as this version has it. One of a later version is taken as long as it asks for
/// nothing that this one does not know.
template <class Struct>
Struct Taken(const char* name, const Struct* from) {
    Require(from != nullptr, std::string(name) + " is NULL");
    Require(from->size >= sizeof(Struct), std::string(name) + ".size is that of no version");
    const auto* bytes = reinterpret_cast<const unsigned char*>(from);
    Require(std::all_of(bytes + sizeof(Struct), bytes + from->size,
                        [](unsigned char byte) { return byte == 0; }),
            std::string(name) + " has fields that this version does not know");
    return *from;
}

/// Whether a caller's struct can take what this version fills.
template <class Struct>
void RequireRoom(const char* name, const Struct* to) {
    Require(to != nullptr, std::string(name) + " is NULL");
    Require(to->size >= sizeof(Struct), std::string(name) + ".size is that of no version");
}

/// Fills a caller's struct, which keeps its size and what a later version has behind.
template <class Struct>
void Give(Struct value, Struct* to) {
    value.size = to->size;
    *to = value;
}

/// Tells a caller who wants to know (error may be null) how the call ended.
void Tell(horavex_error* error, horavex_status status, const char* text, int dayOfYear = 0);

/// The same of the exception that is being handled.
horavex_status TellException(horavex_error* error);

/// Runs an action; its exceptions are the answers other than HORAVEX_OK.
template <class Action>
horavex_status Answer(horavex_error* error, Action action) {
    try {
        action();
        Tell(error, HORAVEX_OK, "");
        return HORAVEX_OK;
    } catch (...) {
        return TellException(error);
    }
}

}  // namespace horavex
