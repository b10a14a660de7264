#pragma once

namespace horavex {

/// Tells whether another instance of the program runs in this user's session.
class InstanceGuard {
public:
    virtual ~InstanceGuard() = default;

    /// The first question claims the place; the claim lasts as long as the process. False when
    /// the system cannot tell, so that a broken lock folder never keeps the program away.
    virtual bool AnotherIsRunning() = 0;
};

}  // namespace horavex
