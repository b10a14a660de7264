#include "athan/calls.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "base/program_state.h"

namespace horavex {

namespace {

constexpr double kSame = 0.5 / 24.0;  // days
constexpr double kKept = 3.0;         // days

std::vector<Call> noted;

const ProgramStateReset reset([] { noted.clear(); });

}  // namespace

bool WasCalled(const Call& call) {
    return std::ranges::any_of(noted, [&](const Call& one) {
        return one.kind == call.kind && one.prayer == call.prayer &&
               std::fabs(one.at - call.at) < kSame;
    });
}

void NoteCall(const Call& call) {
    std::erase_if(noted, [&](const Call& one) { return std::fabs(one.at - call.at) > kKept; });
    if (!WasCalled(call)) {
        noted.push_back(call);
    }
}

}  // namespace horavex
