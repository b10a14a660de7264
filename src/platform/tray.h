#pragma once

#include <functional>
#include <string>

namespace horavex {

/// What the user does at the icon.
enum class TrayMessage { kMove, kLeftDown, kLeftDoubleClick, kRightDown, kRightUp };

/// The program's one icon in the notification area. Never fails; where there is no such area
/// nothing shows until one comes.
class Tray {
public:
    virtual ~Tray() = default;

    virtual void Add(const std::string& tip) = 0;
    virtual void Remove() = 0;
    virtual void SetTip(const std::string& tip) = 0;

    /// False while the desktop has no notification area.
    virtual bool HasHost() = 0;

    /// Whether the icon shows that athans are silenced.
    virtual void SetQuiet(bool quiet) = 0;

    /// Set once by the program. A desktop that draws the menu of the icon itself sends no kRightUp.
    std::function<void(TrayMessage)> onMessage;
};

}  // namespace horavex
