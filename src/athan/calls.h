#pragma once

#include "base/date.h"
#include "base/prayers.h"

namespace horavex {

/// What can be told of a prayer, each once; kArrival to other programs.
enum class CallKind { kReminder, kPrayer, kIqama, kArrival };

/// Something that was told, or is to be.
struct Call {
    CallKind kind = CallKind::kPrayer;
    Prayer prayer = kFajr;
    Date at = 0.0;  // local date and time of the prayer's moment
};

/// Whether the process has noted it. A moment that settings have moved by less than half an hour is
/// the same one.
bool WasCalled(const Call& call);

/// Forgets what lies days back.
void NoteCall(const Call& call);

}  // namespace horavex
