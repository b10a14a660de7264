#include "lib/answers.h"

#include <cstdio>
#include <exception>
#include <new>

#include "base/number_text.h"
#include "platform/zone_rules.h"

namespace horavex {

void Require(bool sound, const std::string& text) {
    if (!sound) {
        throw Refusal(HORAVEX_BAD_ARGUMENT, text);
    }
}

void RequireRange(const char* name, double value, double least, double most) {
    if (!(value >= least && value <= most)) {
        throw Refusal(HORAVEX_BAD_ARGUMENT, std::string(name) + " is not from " +
                                                NumberToText(least) + " to " + NumberToText(most));
    }
}

void Tell(horavex_error* error, horavex_status status, const char* text, int dayOfYear) {
    if (error == nullptr || error->size < sizeof(horavex_error)) {
        return;
    }
    error->status = status;
    error->day_of_year = dayOfYear;
    std::snprintf(error->text, sizeof error->text, "%s", text);
}

horavex_status TellException(horavex_error* error) {
    const auto tell = [error](horavex_status status, const char* text, int dayOfYear = 0) {
        Tell(error, status, text, dayOfYear);
        return status;
    };
    try {
        throw;
    } catch (const Refusal& refusal) {
        return tell(refusal.Status(), refusal.what(), refusal.DayOfYear());
    } catch (const UnknownZoneFault& fault) {
        return tell(HORAVEX_UNKNOWN_NAME, fault.what());
    } catch (const MemoryFault& fault) {
        return tell(HORAVEX_NO_MEMORY, fault.what());
    } catch (const std::bad_alloc&) {
        return tell(HORAVEX_NO_MEMORY, MemoryFault().what());
    } catch (const std::exception& exception) {
        return tell(HORAVEX_NO_ANSWER, exception.what());
    } catch (...) {
        return tell(HORAVEX_NO_ANSWER, "the calculation failed");
    }
}

}  // namespace horavex
