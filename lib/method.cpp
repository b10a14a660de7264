#include "config/authorities.h"
#include "lib/answers.h"

using namespace horavex;

horavex_status horavex_method_take(horavex_method* method, const char* key, horavex_error* error) {
    return Answer(error, [&] {
        horavex_method taken = Taken("method", method);
        Require(key != nullptr, "key is NULL");
        const Authority* authority = AuthorityOfKey(key);
        if (authority == nullptr) {
            throw Refusal(HORAVEX_UNKNOWN_NAME, "there is no method \"" + std::string(key) + "\"");
        }
        taken.fajr_angle = authority->fajrAngle;
        if (authority->ishaAngle != 0.0) {
            taken.isha_angle = authority->ishaAngle;
        }
        if (authority->asrRatio != 0.0) {
            taken.asr_shadow = static_cast<std::int32_t>(authority->asrRatio);
        }
        taken.maghrib_angle = authority->maghribAngle;
        taken.isha_interval = authority->ishaInterval;
        taken.isha_interval_ramadan = authority->ishaIntervalRamadan;
        std::ranges::copy(authority->margins, taken.minutes);
        Give(taken, method);
    });
}

const char* horavex_method_key(std::size_t index) {
    return index < Authorities().size() ? Authorities()[index].key : nullptr;
}

const char* horavex_method_name(std::size_t index) {
    return index < Authorities().size() ? Authorities()[index].name : nullptr;
}
