#include "store/angle_band.h"

#include <cstdlib>

#include "base/program_state.h"
#include "store/indexed_file.h"

namespace horavex {

AngleLimits AngleBand = kNoBand;

namespace {

const ProgramStateReset reset([] { AngleBand = kNoBand; });

AngleLimits DecodeLimits(ByteView record) {
    const Bytes codes = DecodeText(record.subspan(2, 3));
    return {codes[0], codes[1], codes[2]};
}

}  // namespace

AngleLimits BandOf(std::int16_t latitude, AngleLimits former) {
    const int distance = std::abs(int{latitude});
    const RecordFile file("Dat\\A.dat", 5);
    const std::int64_t count = file.Count();
    for (std::int64_t number = 1; number <= count; ++number) {
        const Bytes record = file.Read(number);
        if (distance <= GetInt16(record, 0)) {
            break;
        }
        former = DecodeLimits(record);
    }
    return former;
}

void LoadAngleBand(std::int16_t latitude) {
    AngleBand = BandOf(latitude, AngleBand);
}

}  // namespace horavex
