#pragma once

#include <array>
#include <string>

#include "sky/crescent.h"

namespace horavex {

/// What the classes of the criteria mean, in a language; English unless somebody else fills it.
struct ClassWords {
    std::array<std::string, 6> yallop = {"easily visible",           "visible in a clear sky",
                                         "may need optical aid",     "needs optical aid",
                                         "not visible by telescope", "not visible"};
    std::array<std::string, 4> odeh = {"visible by naked eye", "optical aid, perhaps naked eye",
                                       "visible by optical aid alone", "not visible"};
    std::string beforeNewMoon = "before the new moon";
    std::string moonSetsFirst = "moon sets before the sun";
    std::string noSunset = "no sunset";

    /// letter: one that the criterion has.
    const std::string& Of(Criterion criterion, char letter) const {
        const auto number = static_cast<std::size_t>(letter - 'A');
        return criterion == Criterion::kYallop ? yallop.at(number) : odeh.at(number);
    }

    /// kind: one in which no criterion is asked.
    const std::string& Of(EveningKind kind) const {
        switch (kind) {
            case EveningKind::kBeforeNewMoon:
                return beforeNewMoon;
            case EveningKind::kMoonSetsFirst:
                return moonSetsFirst;
            default:
                return noSunset;
        }
    }
};

/// The last letter of a criterion.
constexpr char LastLetter(Criterion criterion) {
    return criterion == Criterion::kYallop ? 'F' : 'D';
}

}  // namespace horavex
