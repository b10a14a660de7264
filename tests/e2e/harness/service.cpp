#include "e2e/harness/service.h"

#include <stdexcept>

#include "e2e/harness/wait_until.h"

namespace horavex {

Service::Service(const std::vector<std::string>& words, const Environment& environment)
    : process_(words, environment, folder_ / "out", folder_ / "err") {}

std::string Service::Printed() const {
    return ContentOf(folder_ / "out");
}

std::string Service::FirstLine() const {
    return WaitUntil(
               "a service's first line",
               [this]() -> std::optional<std::string> {
                   const std::string printed = Printed();
                   const std::size_t end = printed.find('\n');
                   if (end != std::string::npos) {
                       return printed.substr(0, end);
                   }
                   if (!IsRunning()) {
                       throw std::runtime_error("a service ended: " + ContentOf(folder_ / "err"));
                   }
                   return std::nullopt;
               })
        .value();
}

}  // namespace horavex
