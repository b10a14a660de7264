#pragma once

#include <memory>

#include "soak/soak_place.h"
#include "soak/soak_world.h"

namespace horavex {

/// A user's life with the program at a place: days with what they bring, in one process behind the
/// other, each of which is started with what the former has stored.
class SoakLife {
public:
    /// idleStops: of so many moments that are looked at one has the user at the program, about.
    SoakLife(const SoakPlace& place, std::uint32_t seed, Date begin, int idleStops);
    ~SoakLife();

    /// Until a day begins, or until something is wrong.
    void LiveUntil(Date end);

    const SoakRecord& Record() const { return record_; }

private:
    void Begin(Date now);
    void BeginAnew();
    void LiveOn(Date end);
    int NextStop() const;
    void TurnClock();
    void Meddle();
    void JumpAndComeBack();
    Date Now() const { return world_->platform.clock.Now(); }
    int Second() const;  // whole ones since midnight

    const SoakPlace& place_;
    const int idleStops_;
    Chance chance_;
    SoakRecord record_;
    const SoakStore own_;  // what is put back from time to time
    std::vector<ZoneChange> turns_;
    std::unique_ptr<SoakWorld> world_;
};

}  // namespace horavex
