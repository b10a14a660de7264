#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace horavex {

/// A place on earth, degrees; north and east positive.
struct EarthPosition {
    double latitude = 0.0;
    double longitude = 0.0;

    bool operator==(const EarthPosition&) const = default;
};

/// What this computer knows of the place where it is. Never fails.
class Whereabouts {
public:
    virtual ~Whereabouts() = default;

    /// The names that the zone database has for the computer's own zone, the one in use first
    /// ("Asia/Calcutta", "Asia/Kolkata"). Empty where the zone has no name.
    virtual std::vector<std::string> ZoneNames() const = 0;

    /// The country of the user's locale in English ("Norway"); empty for a locale without one.
    virtual std::string Country() const = 0;

    /// Whether there is a service that could be asked for the position. Nothing is asked yet.
    virtual bool CanLocate() const = 0;

    /// Takes the position, or nothing where it is not told.
    using Answer = std::function<void(const std::optional<EarthPosition>& point)>;

    /// Asks once for the position. The answer comes once, from the event loop, within the port's
    /// own limit of time. Another question takes the place of one that is still open, whose answer
    /// never comes then.
    virtual void Locate(Answer answer) = 0;

    /// The question that is open, if any, is over: its answer never comes.
    virtual void StopLocating() = 0;
};

}  // namespace horavex
