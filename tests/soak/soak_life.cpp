#include "soak/soak_life.h"

#include <cmath>
#include <limits>
#include <utility>

#include "engine/day_driver.h"
#include "engine/year_table.h"
#include "linux/zone_database.h"
#include "store/settings_record.h"

namespace horavex {

namespace {

constexpr int kDaySeconds = 86400;
constexpr int kHourSeconds = 3600;
constexpr int kCoarseStep = 2 * kHourSeconds;
constexpr int kMostActions = 25;  // at one go
constexpr int kProcessDays = 20;  // of a process, about

UtcSeconds UtcOf(Date utc) {
    return static_cast<UtcSeconds>((utc - DateSerial(1970, 1, 1)) * kSecondsPerDay);
}

Date DateOf(UtcSeconds utc) {
    return DateSerial(1970, 1, 1) + static_cast<double>(utc) / kSecondsPerDay;
}

/// The computer's clock, all turns of its zone in thirty years told. Returns them.
std::vector<ZoneChange> TurnsFrom(const std::string& zone, Date begin) {
    return ZoneDatabase().ChangesBetween(zone, UtcOf(begin), UtcOf(begin + 31 * 366));
}

void TellZone(ManualClock& clock, const std::string& zone, Date begin,
              const std::vector<ZoneChange>& turns) {
    const auto told = [](ZoneOffset offset) {
        return ClockOffset{static_cast<double>(offset.seconds) / kHourSeconds, offset.daylight};
    };
    clock.SetOffset(0.0, told(ZoneDatabase().OffsetAt(zone, UtcOf(begin))));
    for (const ZoneChange& turn : turns) {
        clock.SetOffset(DateOf(turn.moment + turn.before.seconds), told(turn.after));
    }
}

}  // namespace

SoakLife::SoakLife(const SoakPlace& place, std::uint32_t seed, Date begin, int idleStops)
    : place_(place),
      idleStops_(idleStops),
      chance_(seed),
      own_(StoreOf(place)),
      turns_(TurnsFrom(place.zone, begin)) {
    Begin(begin);
}

SoakLife::~SoakLife() = default;

void SoakLife::Begin(Date now) {
    world_ = std::make_unique<SoakWorld>(chance_, record_, own_, now);
    TellZone(world_->platform.clock, place_.zone, now, turns_);
}

// The next process reads what this one has left, or what the user has kept elsewhere.
void SoakLife::BeginAnew() {
    const Date now = Now();
    const SoakStore store = chance_.OneIn(2) ? world_->Store() : own_;
    world_.reset();
    world_ = std::make_unique<SoakWorld>(chance_, record_, store, now);
    TellZone(world_->platform.clock, place_.zone, now, turns_);
}

void SoakLife::LiveUntil(Date end) {
    bool isFirst = true;
    while (!testing::Test::HasFailure() && Now() < end) {
        if (!std::exchange(isFirst, false)) {
            BeginAnew();
        }
        try {
            world_->Start();
            LiveOn(end);
        } catch (const ProcessEnded&) {
            record_.Note("end");
        }
    }
}

void SoakLife::LiveOn(Date end) {
    while (!testing::Test::HasFailure() && Now() < end) {
        world_->GoOnTo(NextStop());
        TurnClock();
        if (chance_.OneIn(idleStops_)) {
            Meddle();
        }
        if (chance_.OneIn(kProcessDays * 60)) {
            return;
        }
    }
}

int SoakLife::Second() const {
    const Date now = Now();
    return static_cast<int>(std::floor((now - std::floor(now)) * kDaySeconds + 0.0001));
}

/// The next second that something is looked at in: around the prayers, the alarm and midnight, and
/// every other hour. Counts from the midnight that began the day.
int SoakLife::NextStop() const {
    const int now = Second();
    int next = (now / kCoarseStep + 1) * kCoarseStep;
    const auto look = [&](double second) {
        for (const int behind : {-1, 0, 1, 9, 10}) {
            const int stop = static_cast<int>(std::floor(second)) + behind;
            if (stop > now && stop < next) {
                next = stop;
            }
        }
    };
    for (const Moment& moment : ShownDay.moments) {
        look(moment.hours * kHourSeconds);
    }
    for (const auto* beside : {&ShownDay.late, &ShownDay.early}) {
        for (const PrayerMoment& one : *beside) {
            look(one.moment.hours * kHourSeconds);
        }
    }
    look(AlarmMoment(ActiveSettings) * kDaySeconds);
    look(kDaySeconds);
    look(0.0);
    return next;
}

/// The computer's clock follows its zone.
void SoakLife::TurnClock() {
    const auto isOver = [&](const ZoneChange& turn) {
        return DateOf(turn.moment + turn.before.seconds) <= Now();
    };
    while (!turns_.empty() && isOver(turns_.front())) {
        const ZoneChange turn = turns_.front();
        turns_.erase(turns_.begin());
        record_.Note("the clock is turned");
        world_->SetClock(Now() + (turn.after.seconds - turn.before.seconds) / kSecondsPerDay);
    }
}

void SoakLife::Meddle() {
    if (chance_.OneIn(12)) {
        JumpAndComeBack();
    } else {
        world_->LetUserAct(chance_.Between(1, kMostActions));
    }
    world_->LetUserClose();
    world_->GoOnTo(Second() + 1);
    CheckWhatIsAccepted(world_->platform);
}

/// A clock that is set by seconds, hours, days or years, and found to be wrong.
void SoakLife::JumpAndComeBack() {
    constexpr double kDays[] = {5.0 / kDaySeconds, 1.0 / 24.0, 0.4, 1.0, 3.0, 200.0, 3000.0};
    const double days = chance_.Of(kDays) * (chance_.OneIn(2) ? 1.0 : -1.0);
    const Date before = Now();
    const double steady = world_->platform.clock.SteadySeconds();
    record_.Note("the clock jumps by days: " + std::to_string(days));
    world_->SetClock(std::round((before + days) * kSecondsPerDay) / kSecondsPerDay);
    world_->GoOnTo(Second() + 1);
    world_->LetUserAct(3);
    const double gone = world_->platform.clock.SteadySeconds() - steady;
    world_->SetClock(before + gone / kSecondsPerDay);
    record_.Note("the clock is right again");
}

}  // namespace horavex
