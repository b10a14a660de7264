#pragma once

#include <string>

namespace horavex {

/// The program's one icon in the notification area. Never fails; where there is no such area
/// nothing shows.
class Tray {
public:
    virtual ~Tray() = default;

    virtual void Add(const std::string& tip) = 0;
    virtual void Remove() = 0;
    virtual void SetTip(const std::string& tip) = 0;
};

}  // namespace horavex
