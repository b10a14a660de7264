#pragma once

#include <string>

#include "e2e/harness/service.h"
#include "e2e/harness/test_desktop.h"

namespace horavex {

/// A panel that takes icons in over the bus.
class StatusNotifierHost {
public:
    explicit StatusNotifierHost(const TestDesktop& desktop);

    /// Waits until an icon is there.
    void AwaitIcon() { icon_ = service_.FirstLine(); }

    /// A property of the icon, as the bus's own tool prints it.
    std::string PropertyOf(const std::string& name) const;

    /// What the panel does when the user clicks the icon.
    void Activate() const;

    /// The entries of the icon's menu, as the bus's own tool prints them, after announcing that
    /// they are about to be shown.
    std::string Menu() const;

    /// Clicks the entry with this caption. Throws where there is none.
    void Choose(const std::string& caption) const;

private:
    std::string Call(const std::string& object, const std::string& method,
                     const std::vector<std::string>& arguments) const;

    const TestDesktop& desktop_;
    Service service_;
    std::string icon_;
};

}  // namespace horavex
