#include "ctl/number_range.h"

#include "base/number_text.h"

namespace horavex {

CLI::Validator NumberFrom(double smallest, double largest) {
    const std::string range = NumberToText(smallest) + " to " + NumberToText(largest);
    const auto refuse = [=](const std::string& text) {
        double value = 0.0;
        const bool within =
            CLI::detail::lexical_cast(text, value) && value >= smallest && value <= largest;
        return within ? std::string() : "\"" + text + "\" is no number from " + range;
    };
    return {refuse, range, "number"};
}

}  // namespace horavex
